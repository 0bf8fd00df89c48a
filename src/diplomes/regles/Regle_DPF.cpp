#include "diplomes/regles/Regle_DPF.h"

#include "diplomes/modele/Classe_Bande.h"
#include "diplomes/regles/Bandes.h"
#include "diplomes/regles/Provinces.h"
#include "log/Catalogue.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "plateforme/Windows_1252.h"

#include <algorithm>

namespace diplomes {

namespace {

namespace col = colonnes_log;

/// 18 and 10 MHz are in no class, so they take that of the line before; 50 MHz is HF, unlike in the list.
Classe_Bande Classe(QStringView bande, Classe_Bande avant)
{
    if (Est_Bande_HF(bande))
        return Classe_Bande::HF;
    return bande == u"144 Mhz" || bande == u"432 Mhz" ? Classe_Bande::THF : avant;
}

Comptes Compte_Mode(const Lignes_Texte &lignes, const Etat_Commun &etat, QStringView mode)
{
    if (etat.code_categorie != cinq_bandes_dpf)
        return {.n = Compte_Provinces(lignes, etat, mode, {})};
    Comptes comptes;
    for (const QStringView bande : std::span(bandes).first(9)) {
        const int provinces = Compte_Provinces(lignes, etat, mode, bande);
        comptes.n += provinces;
        comptes.d += provinces >= static_cast<int>(nombre_provinces) ? 1 : 0;
    }
    return comptes;
}

} // namespace

int Compte_Provinces(const Lignes_Texte &lignes, const Etat_Commun &etat, QStringView mode, QStringView bande)
{
    const bool par_bande = etat.code_categorie == cinq_bandes_dpf;
    const std::optional<Classe_Bande> voulue = Classe_Nommee(etat.bande_liste);
    std::array<bool, nombre_provinces> vues = {};
    auto classe = Classe_Bande::Aucune;
    for (const QStringView ligne : lignes) {
        const QStringView sienne = Lit_Rogne(ligne, col::Bande);
        classe = Classe(sienne, classe);
        const bool comptee = par_bande ? sienne == bande : classe == voulue;
        if (!comptee || !Est_Confirme(ligne) || Lit_Rogne(ligne, col::Mode) != mode)
            continue;
        if (const auto numero = Numero_Province(Majuscules_1252(Lit_Rogne(ligne, col::Dpt))))
            vues[*numero] = true;
    }
    return static_cast<int>(std::count(vues.begin(), vues.end(), true));
}

std::array<Comptes, 2> Compte_DPF(const Lignes_Texte &lignes, const Etat_Commun &etat)
{
    return {Compte_Mode(lignes, etat, u"CW"), Compte_Mode(lignes, etat, u"SSB")};
}

} // namespace diplomes
