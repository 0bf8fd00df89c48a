#include "saisie/Options.h"

#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Boites.h"
#include "plateforme/Horloge.h"
#include "saisie/Vue_Saisie.h"

using namespace Qt::StringLiterals;

namespace {

QString Oui_Ou_Non(bool oui)
{
    return oui ? u"Oui"_s : u"Non"_s;
}

} // namespace

void Choisit_Saisie(Poste &poste, Vue_Saisie &vue, bool differee)
{
    vue.Coche_Saisie_Differee(differee);
    poste.etat.saisie_differee = differee;
    // The accent of "reél" is misplaced in this label, unlike in the menu.
    vue.Ecrit(Controle::Label15, differee ? u"en differé"_s : u"en temps reél"_s);
    Ecrit_Station(poste, cles::date_auto, Oui_Ou_Non(!differee));
}

void Choisit_Separateur(Poste &poste, Vue_Saisie &vue, bool automatique)
{
    vue.Coche_Separateur_Auto(automatique);
    poste.etat.separateur_auto = automatique;
    Ecrit_Station(poste, cles::separateur_auto, Oui_Ou_Non(automatique));
}

void Tique(const Poste &poste, Vue_Saisie &vue)
{
    const QDateTime utc = poste.horloge.Utc();
    vue.Ecrit(Controle::Label37, utc.toString(u"hh:mm"_s) + u" Utc");
    vue.Ecrit(Controle::Label34, poste.horloge.Locale().toString(u"hh:mm"_s) + u" Loc");
    vue.Ecrit(Controle::Label33, utc.toString(u"dd/MM/yy"_s));
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
