#include "adif/Enregistrement_ADIF.h"

#include "log/Champ.h"
#include "plateforme/Lignes_Texte.h"

#include <array>

using namespace Qt::StringLiterals;

void Enregistrement_ADIF::Pose(QStringView etiquette, QStringView valeur)
{
    texte_ += u'<' + etiquette + u':' + QString::number(valeur.size()) + u'>' + valeur + u' ';
}

QString Enregistrement_ADIF::Termine() const
{
    return texte_ + u"<eor>";
}

QString Entete_ADIF(const QString &premiere, const QString &seconde)
{
    const std::array<QString, 6> lignes = {premiere, QString(), seconde, QString(), QString(), u"<eoh>"_s};
    QString entete;
    for (const QString &ligne : lignes)
        entete += ligne + fin_de_ligne;
    return entete;
}

QString Titre_ADIF(const QString &log)
{
    return u"Exportation du log de la station "_s + log + u" au format ADIF";
}

QString Date_ADIF(QStringView date)
{
    return u"20" + Lit(date, {7, 2}) + Lit(date, {4, 2}) + Lit(date, {1, 2});
}

QString Heure_ADIF(QStringView heure)
{
    const qsizetype deux = qMin(qsizetype{2}, heure.size());
    return heure.first(deux) + heure.last(deux);
}
