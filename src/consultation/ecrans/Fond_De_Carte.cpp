#include "consultation/ecrans/Fond_De_Carte.h"

#include <QFile>
#include <QPolygonF>
#include <QTextStream>

using namespace Qt::StringLiterals;

// The resource is part of a static library, which the linker takes only where it is asked for. Outside of any
// namespace.
static void Prend_Ressource()
{
    Q_INIT_RESOURCE(carte);
}

namespace {

QPointF Point(const QString &texte)
{
    const QStringList nombres = texte.split(u',');
    return {nombres.value(0).toDouble(), nombres.value(1).toDouble()};
}

QPolygonF Contour(const QStringList &points)
{
    QPolygonF contour;
    for (const QString &point : points)
        contour.append(Point(point));
    return contour;
}

} // namespace

std::map<QString, Departement> Charge_Fond()
{
    Prend_Ressource();
    QFile fichier(u":/carte/departements.txt"_s);
    std::map<QString, Departement> departements;
    if (!fichier.open(QIODevice::ReadOnly | QIODevice::Text))
        return departements;
    QTextStream lecture(&fichier);
    QString ligne;
    while (lecture.readLineInto(&ligne)) {
        const QStringList mots = ligne.split(u' ');
        Departement &departement = departements[mots[0]];
        if (mots[1] == u"@")
            departement.place = Point(mots[2]);
        else {
            departement.contour.addPolygon(Contour(mots.sliced(1)));
            departement.contour.closeSubpath();
        }
    }
    return departements;
}
