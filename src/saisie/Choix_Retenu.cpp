#include "saisie/Choix_Retenu.h"

#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"

void Retient_Choix(Poste &poste, const Saisie &saisie, Controle combo, QStringView cle)
{
    if (!saisie.QSO_Touche())
        Ecrit_Station(poste, cle, QString::number(saisie.Indice(combo)));
}

void Reprend_Choix(const Poste &poste, Saisie &saisie, Controle combo, QStringView cle)
{
    bool nombre = false;
    const int indice = Lit_Station(poste, cle, u"0").toInt(&nombre);
    if (nombre && indice >= -1 && indice < static_cast<int>(Entrees(combo).size()))
        saisie.Choisit(combo, indice);
}

void Reprend_Bande_Et_Mode(const Poste &poste, Saisie &saisie)
{
    Reprend_Choix(poste, saisie, Controle::Bande_A, cles::bande_utilisee);
    Reprend_Choix(poste, saisie, Controle::Mode_A, cles::mode_utilise);
}
