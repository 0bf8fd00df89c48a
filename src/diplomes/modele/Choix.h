#pragma once

#include <QStringView>

#include <optional>

struct Etat_Commun;

namespace diplomes {

/// What an option or a button gives to the texts that the award screens share; nullopt leaves a text as it stands.
struct Choix {
    std::optional<QStringView> bande_liste = {};
    std::optional<QStringView> mode_liste = {};
    std::optional<QStringView> code_categorie = {};
    std::optional<QStringView> libelle_categorie = {};
    std::optional<QStringView> categorie_liste = {};
    std::optional<QStringView> niveau_liste = {};
};

void Applique(const Choix &choix, Etat_Commun &etat);

} // namespace diplomes
