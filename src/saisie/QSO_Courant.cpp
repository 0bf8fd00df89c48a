#include "saisie/QSO_Courant.h"

#include "log/Catalogue.h"
#include "log/Ecritures_Log.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Affichage.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "saisie/Ouverture_Diplome.h"
#include "saisie/Saisie.h"

using namespace Qt::StringLiterals;

namespace {

namespace aff = colonnes_affichage;

// The call sign is read from two columns too far left: one of 11 or 12 characters shows and edits without its end.
constexpr Champ ind_affiche{8, 12};
constexpr Champ rste_affiche{90, 4};
// A click shows a date with the first two digits of the hour behind it; an edit takes the date alone.
constexpr Champ date_affichee{54, 12};

void Remplit_Champs(Saisie &saisie, QStringView ligne, Champ date)
{
    const auto rogne = [&](Controle champ, Champ colonnes) {
        saisie.Ecrit(champ, Lit_Rogne(ligne, colonnes).toString());
    };
    rogne(Controle::Ind_A, ind_affiche);
    rogne(Controle::Dpt_A, aff::Dpt);
    rogne(Controle::Prenom_A, aff::Prenom);
    rogne(Controle::Ref_A, aff::Ref);
    saisie.Ecrit(Controle::Date_A, Lit(ligne, date).toString());
    saisie.Ecrit(Controle::Heure_A, Lit(ligne, aff::Heure).toString());
    rogne(Controle::Mode_A, aff::Mode);
    rogne(Controle::Bande_A, aff::Bande);
    rogne(Controle::RSTR_A, aff::RSTR);
    rogne(Controle::RSTE_A, rste_affiche);
    rogne(Controle::Nom_A, aff::Nom);
    saisie.Coche(Controle::QSL_A, Lit(ligne, aff::QSL) == qsl_tenue);
}

void Ouvre_Champs(Saisie &saisie)
{
    for (const Controle champ :
         {Controle::Bande_A, Controle::Ind_A, Controle::Prenom_A, Controle::Ref_A, Controle::Dpt_A, Controle::Date_A,
          Controle::Heure_A, Controle::Mode_A, Controle::RSTR_A, Controle::RSTE_A, Controle::Nom_A, Controle::QSL_A})
        saisie.Active(champ, true);
    saisie.Active(Controle::Valide_A, true);
}

} // namespace

void Clic_Liste(Saisie &saisie, const QString &ligne_affichage)
{
    saisie.ligne_selectionnee = ligne_affichage;
    saisie.qso_affiche = true;
    saisie.Ecrit(Controle::Mode_Aff, u"Affichage QSO"_s);
    // During an edit the target of the commit has changed while the fields keep their text: that is wanted.
    if (saisie.qso_en_edition)
        return;
    saisie.Active(Controle::Ind_A, false);
    Remplit_Champs(saisie, ligne_affichage, date_affichee);
    saisie.Active(Controle::Annule_Saisie, true);
}

void Double_Clic_Liste(Poste &poste, Saisie &saisie, const QString &ligne_affichage)
{
    saisie.ligne_selectionnee = ligne_affichage;
    if (saisie.qso_en_edition)
        return;
    saisie.qso_en_edition = true;
    if (saisie.ligne_selectionnee.isEmpty()) {
        poste.boites.Message(u"Cliquez sur une ligne pour l'editer"_s);
        return;
    }
    saisie.qso_affiche = true;
    Ouvre_Champs(saisie);
    Remplit_Champs(saisie, ligne_affichage, aff::Date);
    saisie.Ecrit(Controle::Mode_Aff, u"Modification QSO"_s);
    saisie.Donne_Focus(Controle::Ind_A);
}

void Commence_Insertion(Poste &poste, Saisie &saisie)
{
    if (!saisie.Est_Actif(Controle::Bande_A)) {
        poste.boites.Message(u"Selectionnez un diplome"_s);
        saisie.Donne_Focus(Controle::Dip_A);
        return;
    }
    if (!A_Un_Log_Ouvert(poste, saisie))
        return;
    // Only the option menu clears this again: the QSOs after this one go in as insertions too.
    saisie.saisie_differee = true;
    saisie.Ecrit(Controle::Mode_Aff, u"Insertion QSO"_s);
    saisie.qso_affiche = false;
    saisie.Donne_Focus(Controle::Bande_A);
}

void Supprime_QSO(Poste &poste, Saisie &saisie)
{
    if (saisie.ligne_selectionnee.isEmpty()) {
        poste.boites.Message(u"Cliquez sur une ligne pour l'effacer"_s);
        return;
    }
    if (!A_Un_Log_Ouvert(poste, saisie))
        return;
    const std::optional<Diplome> diplome = saisie.Dip_A();
    if (!diplome) {
        poste.boites.Message(u"Selectionnez un diplome"_s);
        return;
    }
    const QString ligne = Ligne_Log_Affichee(saisie.ligne_selectionnee);
    if (poste.boites.Question(u"Voulez vous Supprimer ce QSO ?"_s))
        Supprime_Ligne(poste, ligne, *diplome);
    saisie.Active(Controle::Annule_Saisie, false);
}
