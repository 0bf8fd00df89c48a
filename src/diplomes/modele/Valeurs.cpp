#include "diplomes/modele/Valeurs.h"

#include "log/Etat_Commun.h"
#include "log/Moment.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace diplomes {

Valeurs::Valeurs(const Etat_Commun &etat)
    : valeurs_{{u"Indicatif", etat.station.indicatif},
               {u"Bande_Liste", etat.bande_liste},
               {u"Mode_Liste", etat.mode_liste},
               {u"Code_Categorie", etat.code_categorie},
               {u"Libelle_Categorie", etat.libelle_categorie},
               {u"Categorie_Liste", etat.categorie_liste},
               {u"Niveau_Liste", etat.niveau_liste}}
{
}

void Valeurs::Pose(QStringView nom, QString texte)
{
    for (auto &[connu, valeur] : valeurs_)
        if (connu == nom) {
            valeur = std::move(texte);
            return;
        }
    valeurs_.emplace_back(nom, std::move(texte));
}

void Valeurs::Pose_Jour(QDate jour, const QString &date_courte)
{
    Pose(u"JJ_MM_AA", Date_De_Fichier(jour));
    Pose(u"JJ/MM/AA", jour.toString(u"dd/MM/yy"_s));
    Pose(u"AAAA", jour.toString(u"yyyy"_s));
    Pose(u"Date", date_courte);
}

const QString *Valeurs::Cherche(QStringView nom) const
{
    for (const auto &[connu, valeur] : valeurs_)
        if (connu == nom)
            return &valeur;
    return nullptr;
}

QString Compose(QStringView gabarit, const Valeurs &valeurs)
{
    QString texte;
    while (!gabarit.isEmpty()) {
        const qsizetype ouvre = gabarit.indexOf(u'{');
        const qsizetype ferme = ouvre < 0 ? -1 : gabarit.indexOf(u'}', ouvre);
        if (ferme < 0)
            break;
        const QStringView accolades = gabarit.sliced(ouvre, ferme + 1 - ouvre);
        const QString *valeur = valeurs.Cherche(accolades.sliced(1).chopped(1));
        texte += gabarit.first(ouvre);
        texte += valeur ? QStringView(*valeur) : accolades;
        gabarit = gabarit.sliced(ferme + 1);
    }
    texte += gabarit;
    return texte;
}

QString Date_Courte(QDate jour)
{
    return QLocale::system().toString(jour, QLocale::ShortFormat);
}

} // namespace diplomes
