#include "diplomes/regles/Compte.h"

#include "diplomes/regles/Departements.h"

namespace diplomes {

namespace {

struct Decompte {
    int n = 0;
    Departements departements = {};

    void Ajoute(QStringView ligne, bool avec_departement)
    {
        ++n;
        if (avec_departement)
            departements.Marque(Departement_De_Fiche(ligne));
    }
};

} // namespace

std::vector<Comptes> Compte(std::span<const Regle_Compte> regles, const Lignes_Texte &lignes, const Etat_Commun &etat)
{
    std::vector<Decompte> decomptes(regles.size());
    for (const QStringView ligne : lignes)
        for (std::size_t i = 0; i < regles.size(); ++i)
            if (regles[i].compte(ligne, etat))
                decomptes[i].Ajoute(ligne, regles[i].departements);

    std::vector<Comptes> comptes;
    for (const Decompte &decompte : decomptes)
        comptes.push_back({.n = decompte.n, .d = decompte.departements.Nombre()});
    return comptes;
}

} // namespace diplomes
