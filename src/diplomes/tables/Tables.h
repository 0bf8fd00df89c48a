#pragma once

#include "diplomes/modele/Choix_Diplome.h"
#include "diplomes/modele/Fiche_Diplome.h"
#include "diplomes/modele/Liste_Diplome.h"

#include <vector>

namespace diplomes {

// The awards as data, each in its own Table_<code>.cpp.

extern const Fiche_Diplome fiche_ch_dfcf;
extern const Fiche_Diplome fiche_daf;
extern const Fiche_Diplome fiche_dcf;
extern const Fiche_Diplome fiche_dcpf;
extern const Fiche_Diplome fiche_ddfm;
extern const Fiche_Diplome fiche_dfcf;
extern const Fiche_Diplome fiche_dff;
extern const Fiche_Diplome fiche_difi;
extern const Fiche_Diplome fiche_difm;
extern const Fiche_Diplome fiche_dlf;
extern const Fiche_Diplome fiche_dmf;
extern const Fiche_Diplome fiche_dohf;
extern const Fiche_Diplome fiche_dpf;
extern const Fiche_Diplome fiche_dplf;
extern const Fiche_Diplome fiche_dvff;
extern const Fiche_Diplome fiche_dylf;
extern const Fiche_Diplome fiche_fff;
extern const Fiche_Diplome fiche_pc;
extern const Fiche_Diplome fiche_tdc;
extern const Fiche_Diplome fiche_wlf;

extern const Liste_Diplome liste_ch_dfcf;
extern const Liste_Diplome liste_daf;
extern const Liste_Diplome liste_dcf;
extern const Liste_Diplome liste_dcpf;
extern const Liste_Diplome liste_ddfm;
extern const Liste_Diplome liste_dfcf;
extern const Liste_Diplome liste_dff;
extern const Liste_Diplome liste_difi;
extern const Liste_Diplome liste_difm;
extern const Liste_Diplome liste_dlf;
extern const Liste_Diplome liste_dmf;
extern const Liste_Diplome liste_dohf;
extern const Liste_Diplome liste_dpf;
extern const Liste_Diplome liste_dplf;
extern const Liste_Diplome liste_dvff;
extern const Liste_Diplome liste_dylf;
extern const Liste_Diplome liste_fff;
extern const Liste_Diplome liste_pc;
extern const Liste_Diplome liste_tdc;
extern const Liste_Diplome liste_wlf;

extern const Choix_Diplome choix_daf;
extern const Choix_Diplome choix_dcpf;
extern const Choix_Diplome choix_ddfm;
extern const Choix_Diplome choix_dff;
extern const Choix_Diplome choix_dohf;
extern const Choix_Diplome choix_dpf;
extern const Choix_Diplome choix_tdc;

/// What an award shows. Two awards may share a sheet and a list.
struct Tables_Du_Diplome {
    const Fiche_Diplome *fiche;
    const Liste_Diplome *liste;
    const Choix_Diplome *choix = nullptr; ///< the screen in front of the sheet, if there is one
};

const Tables_Du_Diplome &Tables_De(Diplome diplome);

/// Every sheet, every list and every choice screen that the frames show.
std::vector<const Fiche_Diplome *> Fiches();
std::vector<const Liste_Diplome *> Listes();
std::vector<const Choix_Diplome *> Choix_De_Diplomes();

} // namespace diplomes
