#include "plateforme/qt/Imprimante_Qt.h"

#include <QApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal points_voulus = 9;

qreal Largeur(const QFont &police, QPrinter &imprimante, const std::vector<QString> &lignes)
{
    const QFontMetricsF mesure(police, &imprimante);
    qreal largeur = 0;
    for (const QString &ligne : lignes)
        largeur = qMax(largeur, mesure.horizontalAdvance(ligne));
    return largeur;
}

/// Qt falls back on a PDF without a name where no printer is installed: nothing would come of it.
bool A_Ou_Imprimer(const QPrinter &imprimante)
{
    return !imprimante.printerName().isEmpty() || !imprimante.outputFileName().isEmpty();
}

} // namespace

QFont Police_D_Impression(QPrinter &imprimante, const std::vector<QString> &lignes)
{
    QFont police(u"Courier New"_s);
    police.setStyleHint(QFont::TypeWriter);
    police.setFixedPitch(true);
    police.setBold(true);
    police.setPointSizeF(points_voulus);
    const qreal largeur = Largeur(police, imprimante, lignes);
    const qreal place = imprimante.pageRect(QPrinter::DevicePixel).width();
    if (largeur > place)
        police.setPointSizeF(points_voulus * place / largeur);
    return police;
}

bool Imprime_Lignes(QPrinter &imprimante, const std::vector<QString> &lignes)
{
    QPainter page;
    if (!page.begin(&imprimante))
        return false;
    page.setFont(Police_D_Impression(imprimante, lignes));
    const QFontMetricsF mesure = page.fontMetrics();
    const qreal hauteur = imprimante.pageRect(QPrinter::DevicePixel).height();
    qreal haut = 0;
    for (const QString &ligne : lignes) {
        if (haut + mesure.height() > hauteur) {
            if (!imprimante.newPage())
                return false;
            haut = 0;
        }
        page.drawText(QPointF(0, haut + mesure.ascent()), ligne);
        haut += mesure.lineSpacing();
    }
    return page.end();
}

std::optional<QString> Imprimante_Qt::Imprime(const std::vector<QString> &lignes)
{
    QPrinter imprimante(QPrinter::HighResolution);
    QPrintDialog choix(&imprimante, QApplication::activeWindow());
    choix.setOption(QAbstractPrintDialog::PrintToFile);
    // The answer is not looked at: a dismissed dialogue leaves the printer as it stood.
    choix.exec();
    if (!A_Ou_Imprimer(imprimante))
        return u"Aucune imprimante n'est disponible : rien n'a été imprimé"_s;
    if (!Imprime_Lignes(imprimante, lignes))
        return u"L'impression a échoué : l'imprimante ou le fichier choisi n'est pas accessible"_s;
    return std::nullopt;
}
