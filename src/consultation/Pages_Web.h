#pragma once

#include <QString>

#include <array>

struct Poste;

/// One band of the spot ranking: its entry of Bande_CL, its part of the address, and whether it covers many bands.
struct Bande_Cluster {
    QStringView entree;
    QStringView segment;
    bool tout = false;
};

extern const std::array<Bande_Cluster, 14> bandes_cluster;

/// The path of the page for a place in Bande_CL: "/dxc/top_50_14_MHz.html".
QString Chemin_Cluster(std::size_t place);

/// The place in Bande_CL that was shown last; 0 for a setting that is none.
int Place_Cluster(const Poste &poste);

/// Stores the place and makes its page the page address. Empty without a host.
void Choisit_Cluster(Poste &poste, int place);

/// Makes the rules of the current award the page address, empty without a host; an award without rules leaves it as it
/// was.
void Choisit_Reglement(Poste &poste);

/// Opens the award's list of French islands in Affichage.
void Liste_Des_Iles(Poste &poste);

/// What a view says in the place of a page whose host nobody named.
QString Message_Sans_Serveur();
