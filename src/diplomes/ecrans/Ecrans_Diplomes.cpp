#include "diplomes/ecrans/Ecrans_Diplomes.h"

#include "diplomes/ecrans/Detail_DPF.h"
#include "diplomes/ecrans/Ecran_Challenge.h"
#include "diplomes/ecrans/Ecran_Choix.h"
#include "diplomes/ecrans/Ecran_Fiche.h"
#include "diplomes/ecrans/Ecran_Liste.h"
#include "diplomes/ecrans/Scores_DYLF.h"
#include "diplomes/tables/Tables.h"
#include "log/Diplome.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

/// A sheet or list that awards share names the one it was made on, and its buttons go by the one on the main screen.
template <typename Table>
Attache Attache_De(const Table *table, const Table *Tables_Du_Diplome::*membre)
{
    const auto la_montre = [&](Diplome diplome) { return Tables_De(diplome).*membre == table; };
    return std::count_if(tous_les_diplomes.begin(), tous_les_diplomes.end(), la_montre) > 1 ? Attache::Log
                                                                                            : Attache::Station;
}

} // namespace

std::vector<Inscription> Ecrans_Diplomes(Poste &poste)
{
    using enum Reouverture;
    using enum Attache;
    std::vector<Inscription> ecrans;
    for (const Fiche_Diplome *fiche : Fiches())
        ecrans.push_back({fiche->ecran.toString(), [&poste, fiche] { return new Ecran_Fiche(poste, *fiche); },
                          Telle_Quelle, Attache_De(fiche, &Tables_Du_Diplome::fiche)});
    for (const Liste_Diplome *liste : Listes())
        ecrans.push_back({liste->ecran.toString(), [&poste, liste] { return new Ecran_Liste(poste, *liste); },
                          Telle_Quelle, Attache_De(liste, &Tables_Du_Diplome::liste)});
    for (const Choix_Diplome *choix : Choix_De_Diplomes())
        ecrans.push_back({choix->ecran.toString(), [&poste, choix] { return new Ecran_Choix(poste, *choix); }});
    ecrans.push_back({u"Scores_DYLF"_s, [&poste] { return new Scores_DYLF(poste); }, Refaite, Station});
    ecrans.push_back({u"Detail_DPF"_s, [&poste] { return new Detail_DPF(poste); }, Telle_Quelle, Libre});
    ecrans.push_back({u"Challenge"_s, [&poste] { return new Ecran_Challenge(poste); }, Refaite, Station});
    return ecrans;
}

} // namespace diplomes
