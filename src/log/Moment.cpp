#include "log/Moment.h"

#include "log/Ligne_Log.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool A_La_Forme(QStringView texte, QStringView forme)
{
    // In `forme` a 0 stands for any digit; everything else for itself.
    return std::equal(texte.begin(), texte.end(), forme.begin(), forme.end(),
                      [](QChar lu, QChar voulu) { return voulu == u'0' ? lu >= u'0' && lu <= u'9' : lu == voulu; });
}

} // namespace

std::optional<QString> Moment(QStringView ligne_log)
{
    const QStringView date = Lit(ligne_log, colonnes_log::Date);
    const QStringView heure = Lit(ligne_log, colonnes_log::Heure);
    if (!A_La_Forme(date, u"00/00/00") || !A_La_Forme(heure, u"00:00"))
        return std::nullopt;
    const int annee = Annee_Entiere(date.last(2).toInt());
    return QString::number(annee) + date.sliced(3, 2) + date.first(2) + heure;
}

QString Date_De_Fichier(QDate date)
{
    return date.toString(u"dd_MM_yy"_s);
}

QString Date_De_Reglage(QDate date)
{
    return date.toString(u"dd/MM/yyyy"_s);
}

std::optional<QDate> Lit_Date_De_Reglage(const QString &texte)
{
    const QDate date = QDate::fromString(texte, u"dd/MM/yyyy"_s);
    if (!date.isValid())
        return std::nullopt;
    return date;
}
