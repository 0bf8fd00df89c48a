#include "saisie/Repos.h"

#include "saisie/Saisie.h"

using namespace Qt::StringLiterals;

namespace {

void Vide_Et_Ferme(Saisie &saisie, Controle champ)
{
    saisie.Ecrit(champ, QString());
    saisie.Active(champ, false);
}

void Vide_Les_Champs(Saisie &saisie, bool bande_active)
{
    saisie.Ecrit(Controle::Ind_A, QString());
    saisie.Active(Controle::Ind_A, true);
    for (const Controle champ : {Controle::Dpt_A, Controle::Ref_A, Controle::Date_A, Controle::Heure_A})
        Vide_Et_Ferme(saisie, champ);
    saisie.Active(Controle::Mode_A, false);
    saisie.Active(Controle::Bande_A, bande_active);
    Reports_Selon_Mode(saisie);
    saisie.Active(Controle::RSTR_A, false);
    saisie.Active(Controle::RSTE_A, false);
    saisie.Coche(Controle::QSL_A, false);
    saisie.Active(Controle::QSL_A, false);
    Vide_Et_Ferme(saisie, Controle::Prenom_A);
    Vide_Et_Ferme(saisie, Controle::Nom_A);
}

void Finit(Saisie &saisie)
{
    saisie.Active(Controle::Valide_A, false);
    saisie.Active(Controle::Annule_Saisie, false);
    saisie.qso_affiche = false;
    saisie.Ecrit(Controle::Mode_Aff, u"Saisie QSO"_s);
}

} // namespace

void Efface_Tout(Saisie &saisie)
{
    Vide_Les_Champs(saisie, false);
    saisie.qso_en_edition = false;
    saisie.Donne_Focus(Controle::Dip_A);
    Finit(saisie);
}

void Efface_Champs(Saisie &saisie)
{
    Vide_Les_Champs(saisie, true);
    saisie.Donne_Focus(Controle::Bande_A);
    Finit(saisie);
}

void Reports_Selon_Mode(Saisie &saisie)
{
    const QString report = saisie.Texte(Controle::Mode_A) == u"CW" ? u"599"_s : u"59"_s;
    saisie.Ecrit(Controle::RSTR_A, report);
    saisie.Ecrit(Controle::RSTE_A, report);
}
