#include "programme/Inscriptions.h"

#include "consultation/ecrans/Detail_DFCF.h"
#include "consultation/ecrans/Detail_FFF.h"
#include "consultation/ecrans/Detail_PC.h"
#include "listes/ecrans/Liste_References.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "outils/Supprime_Doubles.h"
#include "outils/Trie_Log.h"
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

void Inscrit_Ecrans(Registre &registre, Poste &poste, Vue_Saisie &vue)
{
    registre.Inscrit_Ecran(u"Station"_s, [&poste, &vue] { return new Station(poste, vue); });
    Inscrit_Ecran<Detail_DFCF>(registre, poste, u"Detail_DFCF"_s);
    Inscrit_Ecran<Detail_FFF>(registre, poste, u"Detail_FFF"_s);
    Inscrit_Ecran<Detail_PC>(registre, poste, u"Detail_PC"_s);
    Inscrit_Ecran<Liste_References>(registre, poste, u"Liste_References"_s);
    Inscrit_Ecran<Sauvegarde_Log>(registre, poste, u"Sauvegarde_Log"_s);
    Inscrit_Ecran<Select_Annee>(registre, poste, u"Select_Annee"_s);
}

void Inscrit_Commandes(Registre &registre, Poste &poste)
{
    const auto commande = [&](const QString &nom, void (*operation)(Poste &)) {
        registre.Inscrit_Commande(nom, [&poste, operation] { operation(poste); });
    };
    commande(u"Trie_Log"_s, Trie_Log);
    commande(u"Supprime_Doubles"_s, Supprime_Doubles);
    Inscrit_Annee_Challenge(registre, poste, u"Annee_Ch_DFCF"_s, u"DFCF"_s);
    Inscrit_Annee_Challenge(registre, poste, u"Annee_Ch_DMF"_s, u"DMF"_s);
}

} // namespace

void Inscrit(Registre &registre, Poste &poste, Vue_Saisie &vue)
{
    Inscrit_Ecrans(registre, poste, vue);
    Inscrit_Commandes(registre, poste);
}
