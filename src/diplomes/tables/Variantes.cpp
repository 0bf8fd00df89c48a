#include "diplomes/tables/Variantes.h"

#include "diplomes/tables/Tables.h"
#include "log/Etat_Commun.h"

namespace diplomes {

namespace {

void Ajoute_Option(std::vector<Variante> &variantes, Variante variante, const Option_Diplome &option)
{
    if (option.ecran != variante.fiche->ecran)
        return;
    variante.option = &option;
    if (!option.selecteur) {
        variantes.push_back(variante);
        return;
    }
    for (const QStringView bande : option.selecteur->bandes) {
        variante.bande = bande;
        variantes.push_back(variante);
    }
}

} // namespace

std::vector<Variante> Variantes_De(Diplome diplome)
{
    const Tables_Du_Diplome &tables = Tables_De(diplome);
    const Variante sans_choix = {.diplome = diplome, .fiche = tables.fiche};
    if (!tables.choix)
        return {sans_choix};
    std::vector<Variante> variantes;
    for (const Groupe_Options &groupe : tables.choix->groupes)
        for (const Option_Diplome &option : groupe.options)
            Ajoute_Option(variantes, sans_choix, option);
    return variantes;
}

void Applique(const Variante &variante, Etat_Commun &etat)
{
    etat.station.diplome = variante.diplome;
    if (variante.option)
        Applique(*variante.option, variante.bande.toString(), etat);
}

} // namespace diplomes
