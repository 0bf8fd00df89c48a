#include "diplomes/regles/Regle_DDFM.h"

#include "log/Catalogue.h"
#include "log/Ligne_Log.h"

#include <algorithm>
#include <map>

namespace diplomes {

namespace {

namespace col = colonnes_log;

// "18 Mhz" has no counter in the sheet, though the list shows it.
constexpr std::array<QStringView, 8> bandes_de_fiche = {
    u"1.8 Mhz", u"3.5 Mhz", u"7.0 Mhz", u"10 Mhz", u"14 Mhz", u"21 Mhz", u"24 Mhz", u"28 Mhz",
};
constexpr std::span bandes_de_liste = std::span(bandes).first(9);

constexpr int bandes_voulues = 5;
constexpr int peu_de_departements = 10;

using Comptes_Par_Bande = std::map<QStringView, int>;

bool Est_Confirme_En(QStringView ligne, QStringView mode)
{
    return Est_Confirme(ligne) && Lit_Rogne(ligne, col::Mode) == mode;
}

/// The confirmed lines in a mode, by band.
Comptes_Par_Bande Par_Bande(const Lignes_Texte &lignes, QStringView mode)
{
    Comptes_Par_Bande comptes;
    for (const QStringView ligne : lignes)
        if (Est_Confirme_En(ligne, mode))
            ++comptes[Lit_Rogne(ligne, col::Bande)];
    return comptes;
}

/// Departments from which on a band is in use.
int Seuil_De_Bande(QStringView bande, QStringView mode)
{
    // One department in phone on 1.8 MHz is not enough. It stands so for this band and this mode alone.
    return bande == u"1.8 Mhz" && mode == u"SSB" ? 2 : 1;
}

Comptes Resume_Cinq_Bandes(Comptes_Par_Bande comptes, QStringView mode)
{
    Comptes resume;
    for (const QStringView bande : bandes_de_fiche) {
        const int compte = comptes[bande];
        if (compte > peu_de_departements)
            resume.n += compte;
        if (compte >= Seuil_De_Bande(bande, mode))
            ++resume.d;
    }
    resume.d = std::min(resume.d, bandes_voulues);
    return resume;
}

Comptes Compte_Mode(const Lignes_Texte &lignes, QStringView bande, QStringView mode)
{
    Comptes_Par_Bande comptes = Par_Bande(lignes, mode);
    if (bande == cinq_bandes_ddfm)
        return Resume_Cinq_Bandes(comptes, mode);
    return {.n = comptes[bande]};
}

/// The bands whose lines stand in the list.
std::vector<QStringView> Bandes_Montrees(const Lignes_Texte &lignes, QStringView bande, QStringView mode)
{
    if (bande != cinq_bandes_ddfm)
        return {bande};
    Comptes_Par_Bande comptes = Par_Bande(lignes, mode);
    std::vector<QStringView> montrees;
    for (const QStringView possible : bandes_de_liste)
        // Ten are enough here, where the sheet asks for more than ten.
        if (comptes[possible] >= peu_de_departements)
            montrees.push_back(possible);
    return montrees;
}

} // namespace

std::array<Comptes, 2> Compte_DDFM(const Lignes_Texte &lignes, QStringView bande)
{
    return {Compte_Mode(lignes, bande, u"CW"), Compte_Mode(lignes, bande, u"SSB")};
}

std::vector<QStringView> Lignes_DDFM(const Lignes_Texte &lignes, QStringView bande, QStringView mode)
{
    const std::vector<QStringView> montrees = Bandes_Montrees(lignes, bande, mode);
    std::vector<QStringView> retenues;
    for (const QStringView ligne : lignes)
        if (Est_Confirme_En(ligne, mode) &&
            std::find(montrees.begin(), montrees.end(), Lit_Rogne(ligne, col::Bande)) != montrees.end())
            retenues.push_back(ligne);
    return retenues;
}

} // namespace diplomes
