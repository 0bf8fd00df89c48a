#pragma once

#include <QFont>
#include <QString>

#include <vector>

class QPagedPaintDevice;
class QPainter;

/// Lines on the pages of a device, each character at its own column, so that none shifts those behind it.
class Mise_En_Page {
public:
    /// In Courier New, or a font of the same measures, bold, of 9 points. If the widest line would not fit the page the
    /// points give way, not the text. The lines must outlive the object.
    Mise_En_Page(QPagedPaintDevice &papier, const std::vector<QString> &lignes);

    [[nodiscard]] const QFont &Police() const { return police_; }
    /// False if the font had to be made smaller.
    [[nodiscard]] bool Tient() const { return tient_; }
    /// At least 1.
    [[nodiscard]] int Nombre_De_Pages() const;
    /// `page` counts from 0; `peintre` paints on the device.
    void Peint(QPainter &peintre, int page) const;

private:
    void Peint_Ligne(QPainter &peintre, qreal base, const QString &ligne) const;

    const std::vector<QString> &lignes_;
    QFont police_;
    bool tient_ = true;
    // In pixels of the device.
    qreal colonne_ = 0;
    qreal montee_ = 0;
    qreal interligne_ = 0;
    std::size_t lignes_par_page_ = 1;
};
