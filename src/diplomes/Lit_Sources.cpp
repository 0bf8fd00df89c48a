#include "diplomes/Lit_Sources.h"

#include "listes/Recherche.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"

namespace diplomes {

namespace {

Diplome Diplome_Lu(const Sources &sources, const Station_Courante &station)
{
    return sources.autre && station.diplome == sources.autre ? *sources.autre : sources.diplome;
}

} // namespace

Lectures Lit_Sources(const Poste &poste, const Sources &sources)
{
    Lectures lues{poste.dossier.Lit_Lignes(poste.etat.station.Log(Diplome_Lu(sources, poste.etat.station)))};
    if (sources.references && !lues.log.empty())
        lues.references = poste.dossier.Lit_Lignes(sources.references->lecture.fichier.toString());
    return lues;
}

} // namespace diplomes
