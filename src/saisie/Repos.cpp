#include "saisie/Repos.h"

#include "log/Etat_Commun.h"
#include "saisie/Vue_Saisie.h"

using namespace Qt::StringLiterals;

namespace {

void Vide_Et_Ferme(Vue_Saisie &vue, Controle champ)
{
    vue.Ecrit(champ, QString());
    vue.Active(champ, false);
}

void Vide_Les_Champs(Vue_Saisie &vue, bool bande_active)
{
    vue.Ecrit(Controle::Ind_A, QString());
    vue.Active(Controle::Ind_A, true);
    for (const Controle champ : {Controle::Dpt_A, Controle::Ref_A, Controle::Date_A, Controle::Heure_A})
        Vide_Et_Ferme(vue, champ);
    vue.Active(Controle::Mode_A, false);
    vue.Active(Controle::Bande_A, bande_active);
    Reports_Selon_Mode(vue);
    vue.Active(Controle::RSTR_A, false);
    vue.Active(Controle::RSTE_A, false);
    vue.Coche_QSL(false);
    vue.Active(Controle::QSL_A, false);
    Vide_Et_Ferme(vue, Controle::Prenom_A);
    Vide_Et_Ferme(vue, Controle::Nom_A);
}

void Finit(Etat_Commun &etat, Vue_Saisie &vue)
{
    vue.Active(Controle::Valide_A, false);
    vue.Active(Controle::Annule_Saisie, false);
    etat.qso_affiche = false;
    vue.Ecrit(Controle::Mode_Aff, u"Saisie QSO"_s);
}

} // namespace

void Efface_Tout(Etat_Commun &etat, Vue_Saisie &vue)
{
    Vide_Les_Champs(vue, false);
    etat.qso_en_edition = false;
    vue.Donne_Focus(Controle::Dip_A);
    Finit(etat, vue);
}

void Efface_Champs(Etat_Commun &etat, Vue_Saisie &vue)
{
    Vide_Les_Champs(vue, true);
    vue.Donne_Focus(Controle::Bande_A);
    Finit(etat, vue);
}

void Reports_Selon_Mode(Vue_Saisie &vue)
{
    const QString report = vue.Texte(Controle::Mode_A) == u"CW" ? u"599"_s : u"59"_s;
    vue.Ecrit(Controle::RSTR_A, report);
    vue.Ecrit(Controle::RSTE_A, report);
}
