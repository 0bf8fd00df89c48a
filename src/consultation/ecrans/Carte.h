#pragma once

#include "consultation/Colorie_Carte.h"
#include "consultation/ecrans/Fond_De_Carte.h"

#include <QWidget>

#include <array>

class QLabel;

/// The map of the French departments, as large as its window lets it be. A box with its number lies on each department
/// and bears its colour; Paris and its neighbours are drawn once more, larger, in a frame.
class Carte : public QWidget {
    Q_OBJECT

public:
    explicit Carte(QWidget *parent = nullptr);

    void Colore_Boites(const Couleurs_Carte &couleurs);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;

private:
    /// Pixels a unit of the picture.
    [[nodiscard]] qreal Echelle() const;
    /// From the units of the picture to pixels, and the same for what is drawn larger.
    [[nodiscard]] QTransform Transformation() const;
    [[nodiscard]] QTransform Transformation_Loupe() const;
    /// The middle of a box in pixels.
    [[nodiscard]] QPointF Place(const QString &numero) const;
    void Dessine_Contours(QPainter &dessin, const QTransform &transformation) const;
    void Dessine_Loupe(QPainter &dessin) const;

    std::map<QString, Departement> departements_;
    std::array<QLabel *, nombre_dep> boites_{};
};

/// A row that names the colours.
QWidget *Legende_Carte(const std::vector<std::pair<Couleur_Dep, QString>> &entrees, QWidget *parent);
