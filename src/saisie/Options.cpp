#include "saisie/Options.h"

#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Boites.h"
#include "plateforme/Horloge.h"
#include "saisie/Saisie.h"

using namespace Qt::StringLiterals;

namespace {

QString Oui_Ou_Non(bool oui)
{
    return oui ? u"Oui"_s : u"Non"_s;
}

void Pose_Separateur(Saisie &saisie, bool automatique)
{
    saisie.separateur_auto = automatique;
    saisie.Coche(Controle::Mnu_Sep_Oui, automatique);
    saisie.Coche(Controle::Mnu_Sep_Non, !automatique);
}

} // namespace

void Choisit_Saisie(Poste &poste, Saisie &saisie, bool differee)
{
    saisie.Coche(Controle::Mnu_Date_Auto_Oui, !differee);
    saisie.Coche(Controle::Mnu_Date_Auto_Non, differee);
    saisie.saisie_differee = differee;
    // The accent of "reél" is misplaced in this label, unlike in the menu.
    saisie.Ecrit(Controle::Label15, differee ? u"en differé"_s : u"en temps reél"_s);
    Ecrit_Station(poste, cles::date_auto, Oui_Ou_Non(!differee));
}

void Choisit_Separateur(Poste &poste, Saisie &saisie, bool automatique)
{
    Pose_Separateur(saisie, automatique);
    Ecrit_Station(poste, cles::separateur_auto, Oui_Ou_Non(automatique));
}

void Reprend_Separateur(const Poste &poste, Saisie &saisie)
{
    Pose_Separateur(saisie, Lit_Station(poste, cles::separateur_auto, u"Non") == u"Oui");
}

void Tique(const Poste &poste, Saisie &saisie)
{
    const QDateTime utc = poste.horloge.Utc();
    saisie.Ecrit(Controle::Label37, utc.toString(u"hh:mm"_s) + u" Utc");
    saisie.Ecrit(Controle::Label34, poste.horloge.Locale().toString(u"hh:mm"_s) + u" Loc");
    saisie.Ecrit(Controle::Label33, utc.toString(u"dd/MM/yy"_s));
}

void Affiche_A_Propos(Poste &poste)
{
    poste.boites.Message(u"Vorlain Revision "_s + poste.etat.version +
                         u"\n\nCe programme est fourni tel quel, sans aucune garantie.\n"
                         u"Carte des départements : Victor Cazanave (svg-maps), licence CC BY 4.0.");
}

void Affiche_Historique(Poste &poste)
{
    poste.boites.Message(poste.etat.historique);
}
