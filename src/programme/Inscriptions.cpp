#include "programme/Inscriptions.h"

#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "outils/ecrans/Sauvegarde_Log.h"
#include "outils/ecrans/Select_Annee.h"
#include "programme/Registre.h"
#include "saisie/ecrans/Station.h"

using namespace Qt::StringLiterals;

namespace {

/// A screen that is made from the operating position alone, under its own name.
template <typename Screen>
void Inscrit_Ecran(Registre &registre, Poste &poste, const QString &nom)
{
    registre.Inscrit_Ecran(nom, [&poste] { return new Screen(poste); });
}

void Inscrit_Annee_Challenge(Registre &registre, Poste &poste, const QString &commande, const QString &genre)
{
    registre.Inscrit_Commande(commande, [&poste, genre] {
        poste.etat.genre_challenge = genre;
        poste.ecrans.Montre_Modal(u"Select_Annee"_s);
    });
}

} // namespace

void Inscrit(Registre &registre, Poste &poste, Vue_Saisie &vue)
{
    registre.Inscrit_Ecran(u"Station"_s, [&poste, &vue] { return new Station(poste, vue); });
    Inscrit_Ecran<Sauvegarde_Log>(registre, poste, u"Sauvegarde_Log"_s);
    Inscrit_Ecran<Select_Annee>(registre, poste, u"Select_Annee"_s);
    Inscrit_Annee_Challenge(registre, poste, u"Annee_Ch_DFCF"_s, u"DFCF"_s);
    Inscrit_Annee_Challenge(registre, poste, u"Annee_Ch_DMF"_s, u"DMF"_s);
}
