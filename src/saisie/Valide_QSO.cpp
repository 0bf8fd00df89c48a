#include "saisie/QSO_Courant.h"

#include "log/Catalogue.h"
#include "log/Ecritures_Log.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Affichage.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Windows_1252.h"
#include "saisie/Choix_Retenu.h"
#include "saisie/Liste_Prenom.h"
#include "saisie/Ouverture_Diplome.h"
#include "saisie/Passage.h"
#include "saisie/Repos.h"

using namespace Qt::StringLiterals;

namespace {

namespace col = colonnes_log;

/// The length that a field must not go beyond, and what is said then.
struct Limite {
    Controle champ;
    qsizetype maximum;
    QStringView refus;
};

// An edit can come here without any field check, and a line of fixed columns has no room for more. The name is cut.
// clang-format off
constexpr Limite limites[] = {
    {Controle::Bande_A, col::Bande.largeur, u"7 caracteres maxi pour la bande"},
    {Controle::Ind_A, col::Ind.largeur, u"12 caracteres maxi pour l'indicatif"},
    {Controle::Prenom_A, col::Prenom.largeur, u"15 caracteres maxi pour le prénom"},
    {Controle::Ref_A, col::Ref.largeur, u"10 caracteres maxi pour la reference (pas de tiret)"},
    {Controle::Dpt_A, col::Dpt.largeur, u"2 caracteres pour le Departement ex : 05 ou 77"},
    {Controle::Mode_A, col::Mode.largeur, u"3 caracteres maxi pour le Mode"},
    {Controle::RSTR_A, col::RSTR.largeur, u"3 caracteres maxi pour le Report"},
    {Controle::RSTE_A, col::RSTE.largeur, u"3 caracteres maxi pour le Report"},
};
// clang-format on

bool Tient(Poste &poste, Saisie &saisie, Controle champ, const Refus &refus)
{
    if (Passe(poste, refus))
        return true;
    saisie.Active(champ, true);
    saisie.Donne_Focus(champ);
    return false;
}

Refus Refus_Longueur_Date(const QString &date)
{
    return date.size() == col::Date.largeur ? std::nullopt : Refus_Date(date);
}

Refus Refus_Longueur_Heure(const QString &heure)
{
    return heure.size() == col::Heure.largeur ? std::nullopt : Refus_Heure(heure);
}

/// False if a field does not fit its columns: the operator was told and stands in that field.
bool Tient_Dans_Les_Colonnes(Poste &poste, Saisie &saisie)
{
    for (const Limite &limite : limites) {
        const bool trop_long = saisie.Texte(limite.champ).size() > limite.maximum;
        if (!Tient(poste, saisie, limite.champ, trop_long ? Refus(limite.refus.toString()) : std::nullopt))
            return false;
    }
    return Tient(poste, saisie, Controle::Date_A, Refus_Longueur_Date(saisie.Texte(Controle::Date_A))) &&
           Tient(poste, saisie, Controle::Heure_A, Refus_Longueur_Heure(saisie.Texte(Controle::Heure_A)));
}

/// A new QSO goes to the log that Dip_A names, so that text must be an award.
bool Nomme_Un_Log(Poste &poste, Saisie &saisie)
{
    const bool ajoute = !saisie.qso_affiche && !saisie.saisie_differee;
    const bool sans_log = ajoute && !saisie.Dip_A();
    return Tient(poste, saisie, Controle::Dip_A, sans_log ? Refus(u"Selectionnez un diplome"_s) : std::nullopt);
}

/// A log that vanished since it was shown is not begun anew without a word: the operator may have another copy of it.
bool Garde_Son_Log(Poste &poste, Saisie &saisie)
{
    const bool ajoute = !saisie.qso_affiche && !saisie.saisie_differee;
    const QString nom = poste.etat.station.Log_Courant();
    if ((ajoute && saisie.Dip_A() != poste.etat.station.diplome) || poste.dossier.Existe(nom))
        return true;
    if (ajoute)
        return poste.boites.Question(u"Le log "_s + nom +
                                     u" n'existe plus.\n"
                                     u"Voulez vous enregistrer ce QSO dans un nouveau log ?");
    return Tient(poste, saisie, Controle::Dip_A, u"Selectionnez un diplome"_s);
}

void Retient_Prenom(Poste &poste, Saisie &saisie)
{
    if (!saisie.prenom_nouveau)
        return;
    const QString prenom = Majuscules_1252(saisie.Texte(Controle::Prenom_A));
    saisie.Ecrit(Controle::Prenom_A, prenom);
    Maj_Prenom(poste.dossier, QString(Complete(saisie.Texte(Controle::Ind_A), 13) +
                                      Complete(saisie.Texte(Controle::Dpt_A), 3) + prenom));
}

QString Compose(Saisie &saisie)
{
    if (saisie.Texte(Controle::Nom_A).size() > col::Nom.largeur)
        saisie.Ecrit(Controle::Nom_A, saisie.Texte(Controle::Nom_A).left(col::Nom.largeur));
    return Compose_Ligne_Log({.ind = saisie.Texte(Controle::Ind_A),
                              .dpt = saisie.Texte(Controle::Dpt_A),
                              .prenom = saisie.Texte(Controle::Prenom_A),
                              .ref = saisie.Texte(Controle::Ref_A),
                              .date = saisie.Texte(Controle::Date_A),
                              .heure = saisie.Texte(Controle::Heure_A),
                              .mode = saisie.Texte(Controle::Mode_A),
                              .bande = saisie.Texte(Controle::Bande_A),
                              .rstr = saisie.Texte(Controle::RSTR_A),
                              .rste = saisie.Texte(Controle::RSTE_A),
                              .nom = saisie.Texte(Controle::Nom_A),
                              .qsl = saisie.Est_Coche(Controle::QSL_A) ? qsl_tenue.toString() : u" "_s});
}

bool Range(Poste &poste, const Saisie &saisie, const QString &ligne)
{
    if (saisie.qso_affiche)
        return Remplace_Ligne(poste, ligne, Ligne_Log_Affichee(saisie.ligne_selectionnee));
    if (!saisie.saisie_differee)
        return Ajoute_Ligne(poste, ligne, saisie.Dip_A().value());
    return Insere_Ligne(poste, ligne);
}

/// The next QSO starts at Ind_A; award, band and mode stay.
void Prepare_Le_Suivant(Poste &poste, Saisie &saisie)
{
    saisie.qso_affiche = false;
    saisie.Ecrit(Controle::Mode_Aff, u"Saisie QSO"_s);
    saisie.qso_en_edition = false;
    for (const Controle champ : {Controle::Ind_A, Controle::Dpt_A, Controle::Prenom_A, Controle::Ref_A,
                                 Controle::Date_A, Controle::Heure_A, Controle::Nom_A})
        saisie.Ecrit(champ, QString());
    Reports_Selon_Mode(saisie);
    saisie.Coche(Controle::QSL_A, false);
    saisie.Active(Controle::Ind_A, true);
    saisie.Donne_Focus(Controle::Ind_A);
    for (const Controle champ :
         {Controle::Dpt_A, Controle::Prenom_A, Controle::Ref_A, Controle::Date_A, Controle::Heure_A, Controle::Mode_A,
          Controle::RSTR_A, Controle::RSTE_A, Controle::Nom_A, Controle::QSL_A, Controle::Valide_A})
        saisie.Active(champ, false);
    Reprend_Bande_Et_Mode(poste, saisie);
}

} // namespace

void Valide_QSO(Poste &poste, Saisie &saisie)
{
    if (!Montre_Un_Log(poste, saisie) || !Nomme_Un_Log(poste, saisie) || !Tient_Dans_Les_Colonnes(poste, saisie))
        return;
    if (!poste.boites.Question(u"Voulez vous enregistrer ces données ?"_s))
        return;
    if (!Garde_Son_Log(poste, saisie))
        return;
    Retient_Prenom(poste, saisie);
    if (!Range(poste, saisie, Compose(saisie)))
        return;
    Prepare_Le_Suivant(poste, saisie);
}
