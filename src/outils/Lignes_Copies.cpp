#include "outils/Lignes_Copies.h"

#include "plateforme/Horloge.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;

QString Moment_Local(const Copie &copie, const Horloge &horloge)
{
    return copie.moment.toTimeZone(horloge.Locale().timeZone()).toString(u"dd/MM/yyyy HH:mm:ss"_s);
}

QString Ligne_Copie(const Copie &copie, const Horloge &horloge, std::size_t qsos, const QString &difference)
{
    return Moment_Local(copie, horloge) + u"  " + Libelle(copie.outil).toString().leftJustified(30) +
           QString::number(qsos).rightJustified(13) + u"   " + difference;
}

QString Texte_Difference(const Difference_Logs &difference)
{
    return u"+%1 -%2"_s.arg(difference.reviendraient.size()).arg(difference.partiraient.size());
}
