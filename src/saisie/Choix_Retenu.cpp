#include "saisie/Choix_Retenu.h"

#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"

void Retient_Choix(Poste &poste, const Vue_Saisie &vue, Controle combo, QStringView cle)
{
    if (!poste.etat.QSO_Touche())
        Ecrit_Station(poste, cle, QString::number(vue.Indice_Combo(combo)));
}

void Reprend_Choix(const Poste &poste, Vue_Saisie &vue, Controle combo, QStringView cle)
{
    bool nombre = false;
    const int indice = Lit_Station(poste, cle, u"0").toInt(&nombre);
    if (nombre && indice >= -1 && indice < vue.Nombre_Combo(combo))
        vue.Choisit(combo, indice);
}

void Reprend_Bande_Et_Mode(const Poste &poste, Vue_Saisie &vue)
{
    Reprend_Choix(poste, vue, Controle::Bande_A, cles::bande_utilisee);
    Reprend_Choix(poste, vue, Controle::Mode_A, cles::mode_utilise);
}
