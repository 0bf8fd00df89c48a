#include "plateforme/qt/Mise_En_Page.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal points_voulus = 9;

QFont Police_De_Depart()
{
    QFont police;
    police.setFamilies({u"Courier New"_s, u"Liberation Mono"_s, u"DejaVu Sans Mono"_s});
    police.setStyleHint(QFont::TypeWriter);
    police.setFixedPitch(true);
    police.setBold(true);
    police.setPointSizeF(points_voulus);
    return police;
}

qreal Largeur_De_Colonne(const QFont &police, QPagedPaintDevice &papier)
{
    return QFontMetricsF(police, &papier).horizontalAdvance(u'M');
}

qsizetype Colonnes(const std::vector<QString> &lignes)
{
    qsizetype colonnes = 0;
    for (const QString &ligne : lignes)
        colonnes = std::max(colonnes, ligne.size());
    return colonnes;
}

/// A character that takes one column: tabs and other control characters are blanks, and a soft hyphen, which would be
/// drawn only where a text is broken, is a hyphen.
QChar D_Une_Colonne(QChar caractere)
{
    if (caractere == QChar::SoftHyphen)
        return u'-';
    return caractere.isPrint() && !caractere.isSpace() ? caractere : QChar(u' ');
}

} // namespace

Mise_En_Page::Mise_En_Page(QPagedPaintDevice &papier, const std::vector<QString> &lignes)
    : lignes_(lignes),
      police_(Police_De_Depart())
{
    const QSize place = papier.pageLayout().paintRectPixels(papier.logicalDpiX()).size();
    const qreal largeur = Largeur_De_Colonne(police_, papier) * static_cast<qreal>(Colonnes(lignes));
    tient_ = largeur <= place.width();
    if (!tient_)
        police_.setPointSizeF(points_voulus * place.width() / largeur);
    colonne_ = Largeur_De_Colonne(police_, papier);
    const QFontMetricsF mesure(police_, &papier);
    montee_ = mesure.ascent();
    interligne_ = mesure.lineSpacing();
    lignes_par_page_ = 1 + static_cast<std::size_t>(std::max(0.0, (place.height() - mesure.height()) / interligne_));
}

int Mise_En_Page::Nombre_De_Pages() const
{
    return static_cast<int>(std::max<std::size_t>(1, (lignes_.size() + lignes_par_page_ - 1) / lignes_par_page_));
}

void Mise_En_Page::Peint(QPainter &peintre, int page) const
{
    peintre.setFont(police_);
    const std::size_t premiere = static_cast<std::size_t>(page) * lignes_par_page_;
    const std::size_t suivante = std::min(lignes_.size(), premiere + lignes_par_page_);
    for (std::size_t rang = premiere; rang < suivante; ++rang)
        Peint_Ligne(peintre, montee_ + interligne_ * static_cast<qreal>(rang - premiere), lignes_[rang]);
}

void Mise_En_Page::Peint_Ligne(QPainter &peintre, qreal base, const QString &ligne) const
{
    QString colonnes = ligne;
    std::transform(ligne.cbegin(), ligne.cend(), colonnes.begin(), D_Une_Colonne);
    const qreal voulue = colonne_ * static_cast<qreal>(colonnes.size());
    // A line whose characters all have the width of a column, which is nearly every one, is drawn at once.
    if (std::abs(peintre.fontMetrics().horizontalAdvance(colonnes) - voulue) < colonne_ / 4) {
        peintre.drawText(QPointF(0, base), colonnes);
        return;
    }
    for (qsizetype i = 0; i < colonnes.size(); ++i)
        peintre.drawText(QPointF(colonne_ * static_cast<qreal>(i), base), QString(colonnes[i]));
}
