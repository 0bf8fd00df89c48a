#include "programme/Inscriptions.h"

#include "consultation/Pages_Web.h"
#include "consultation/ecrans/Aff_Contacte.h"
#include "consultation/ecrans/Affichage.h"
#include "consultation/ecrans/Affiche_Toutes_Activites.h"
#include "consultation/ecrans/Carte_Acti.h"
#include "consultation/ecrans/Carte_Detail.h"
#include "consultation/ecrans/Cluster.h"
#include "consultation/ecrans/Detail_Activite.h"
#include "consultation/ecrans/Detail_DFCF.h"
#include "consultation/ecrans/Detail_FFF.h"
#include "consultation/ecrans/Detail_PC.h"
#include "consultation/ecrans/Detail_TDC.h"
#include "consultation/ecrans/Recherche_Indicatif.h"
#include "consultation/ecrans/Reglements.h"
#include "diplomes/Ecran_Du_Diplome.h"
#include "diplomes/ecrans/Ecrans_Diplomes.h"
#include "listes/Maj_Liste.h"
#include "listes/Maj_Noms.h"
#include "listes/Nouvelle_Revision.h"
#include "listes/ecrans/Liste_References.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "outils/Collecte_DDFM.h"
#include "outils/Export_ADIF.h"
#include "outils/Fusion_Activite.h"
#include "outils/Fusion_Trelune.h"
#include "outils/Import_ADIF.h"
#include "outils/Supprime_Doubles.h"
#include "outils/Trie_Log.h"
#include "outils/ecrans/ADIF.h"
#include "outils/ecrans/Copies.h"
#include "outils/ecrans/Sauvegarde_Log.h"
#include "outils/ecrans/Select_Annee.h"
#include "programme/Registre.h"
#include "qsl/ecrans/Multi_QSL.h"
#include "saisie/ecrans/Station.h"

using namespace Qt::StringLiterals;

namespace {

/// Screens that are made from the operating position alone.
template <typename Screen>
void Inscrit_Ecran(Registre &registre, Poste &poste, const QString &nom, Reouverture reouverture = Reouverture::Refaite,
                   Attache attache = Attache::Libre)
{
    registre.Inscrit_Ecran({nom, [&poste] { return new Screen(poste); }, reouverture, attache});
}

void Inscrit_Annee_Challenge(Registre &registre, Poste &poste, const QString &commande, Diplome challenge)
{
    registre.Inscrit_Commande(commande, [&poste, challenge] {
        poste.etat.challenge = challenge;
        poste.ecrans.Montre_Modal(u"Select_Annee"_s);
    });
}

void Inscrit_Ecrans(Registre &registre, Poste &poste, Saisie &saisie)
{
    using enum Reouverture;
    registre.Inscrit_Ecran({u"Station"_s, [&poste, &saisie] { return new Station(poste, saisie); }});
    for (const Inscription &ecran : diplomes::Ecrans_Diplomes(poste))
        registre.Inscrit_Ecran(ecran);
    Inscrit_Ecran<Detail_DFCF>(registre, poste, u"Detail_DFCF"_s, Telle_Quelle);
    Inscrit_Ecran<Detail_FFF>(registre, poste, u"Detail_FFF"_s, Telle_Quelle);
    Inscrit_Ecran<Detail_PC>(registre, poste, u"Detail_PC"_s, Telle_Quelle);
    Inscrit_Ecran<Detail_TDC>(registre, poste, u"Detail_TDC"_s, Telle_Quelle);
    Inscrit_Ecran<Aff_Contacte>(registre, poste, u"Aff_Contacte"_s, Refaite, Attache::Station);
    Inscrit_Ecran<Affiche_Toutes_Activites>(registre, poste, u"Affiche_Toutes_Activites"_s, Refaite, Attache::Station);
    Inscrit_Ecran<Carte_Acti>(registre, poste, u"Carte_Acti"_s, Refaite, Attache::Station);
    Inscrit_Ecran<Multi_QSL>(registre, poste, u"Multi_QSL"_s, Refaite, Attache::Station);
    Inscrit_Ecran<ADIF>(registre, poste, u"ADIF"_s);
    Inscrit_Ecran<Affichage>(registre, poste, u"Affichage"_s);
    Inscrit_Ecran<Carte_Detail>(registre, poste, u"Carte_Detail"_s);
    Inscrit_Ecran<Copies>(registre, poste, u"Copies"_s);
    Inscrit_Ecran<Cluster>(registre, poste, u"Cluster"_s);
    Inscrit_Ecran<Detail_Activite>(registre, poste, u"Detail_Activite"_s);
    Inscrit_Ecran<Liste_References>(registre, poste, u"Liste_References"_s);
    Inscrit_Ecran<Recherche_Indicatif>(registre, poste, u"Recherche_Indicatif"_s);
    Inscrit_Ecran<Reglements>(registre, poste, u"Reglements"_s);
    Inscrit_Ecran<Sauvegarde_Log>(registre, poste, u"Sauvegarde_Log"_s);
    Inscrit_Ecran<Select_Annee>(registre, poste, u"Select_Annee"_s);
}

void Inscrit_Commandes(Registre &registre, Poste &poste)
{
    const auto commande = [&](const QString &nom, void (*operation)(Poste &)) {
        registre.Inscrit_Commande(nom, [&poste, operation] { operation(poste); });
    };
    commande(u"Import_ADIF"_s, Demande_Import);
    commande(u"Export_ADIF"_s, Export_ADIF);
    commande(u"Trie_Log"_s, Trie_Log);
    commande(u"Supprime_Doubles"_s, Supprime_Doubles);
    commande(u"Collecte_DDFM"_s, Collecte_DDFM);
    commande(u"Fusion_Trelune"_s, Fusion_Trelune);
    for (const Diplome source : {Diplome::DFCF, Diplome::DMF})
        registre.Inscrit_Commande(u"Fusion_Activite_"_s + Code(source),
                                  [&poste, source] { Fusion_Activite(poste, source); });
    commande(u"Liste_Des_Iles"_s, Liste_Des_Iles);
    commande(u"Nouvelle_Revision"_s, Nouvelle_Revision);
    // The award that Dip_A shows, opened with Enter or not; a text that is no award has no screen.
    registre.Inscrit_Commande(u"Fiche_Diplome"_s,
                              [&poste] { poste.ecrans.Montre(diplomes::Ecran_Du_Diplome(poste.ecran.Dip_A())); });
    for (const Maj &maj : Majs_Liste())
        registre.Inscrit_Commande(maj.menu.toString(), [&poste, &maj] { Maj_Liste(poste, maj); });
    for (const Maj_Nom &maj : Majs_Nom())
        registre.Inscrit_Commande(maj.menu.toString(), [&poste, &maj] { Maj_Noms(poste, maj); });
    Inscrit_Annee_Challenge(registre, poste, u"Annee_Ch_DFCF"_s, Diplome::Ch_DFCF);
    Inscrit_Annee_Challenge(registre, poste, u"Annee_Ch_DMF"_s, Diplome::Ch_DMF);
}

} // namespace

void Inscrit(Registre &registre, Poste &poste, Saisie &saisie)
{
    Inscrit_Ecrans(registre, poste, saisie);
    Inscrit_Commandes(registre, poste);
}
