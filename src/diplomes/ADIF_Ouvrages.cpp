#include "diplomes/ADIF_Ouvrages.h"

#include "diplomes/regles/Ligne_ADIF_Ouvrage.h"
#include "diplomes/regles/Lignes_Retenues.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "log/Moment.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Horloge.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The columns hold the department and are compared with a category. It stands so.
bool Categorie_Pour_Departement(QStringView ligne_log, const Etat_Commun &etat)
{
    constexpr Champ departement_de_ref{colonnes_log::Ref.colonne, 2};
    return Lit_Rogne(ligne_log, departement_de_ref) == etat.code_categorie;
}

void Ecrit_ADIF(Poste &poste, const Liste_Diplome &liste, Etat_Liste &etat, Predicat retient)
{
    etat.entete.replace(u'/', u'_');
    const QString jour = Date_De_Fichier(poste.horloge.Locale().date());
    const QString nom = poste.etat.station.indicatif + u' ' + etat.entete + u" le " + jour + u".adi";
    QString texte = Entete_ADIF(poste.etat, liste.diplome);
    for (const QStringView ligne : poste.dossier.Lit_Lignes(poste.etat.station.Log(liste.diplome)))
        if (retient(ligne, poste.etat))
            texte += Ligne_ADIF_Ouvrage(ligne) + fin_de_ligne;
    poste.dossier.Remplace(nom, texte, u"Temporaire_ADIF.txt"_s);
    poste.boites.Message(u"Le fichier a été enregistré sous le nom : "_s + nom);
}

} // namespace

QString Entete_ADIF(const Etat_Commun &etat, Diplome diplome)
{
    const std::array<QString, 6> lignes = {
        u"Vorlain_" + Code(diplome),
        QString(),
        u"Exportation du log de la station "_s + etat.station.indicatif + u" au format ADIF",
        QString(),
        QString(),
        u"<eoh>"_s,
    };
    QString entete;
    for (const QString &ligne : lignes)
        entete += ligne + fin_de_ligne;
    return entete;
}

void ADIF_DOHF(Poste &poste, const Liste_Diplome &liste, Etat_Liste &etat)
{
    Ecrit_ADIF(poste, liste, etat, Categorie_Pour_Departement);
}

void ADIF_DVFF(Poste &poste, const Liste_Diplome &liste, Etat_Liste &etat)
{
    Ecrit_ADIF(poste, liste, etat, Toute_Ligne);
}
