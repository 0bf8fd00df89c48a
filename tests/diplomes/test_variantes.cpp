#include "Log_Essai.h"
#include "diplomes/Lit_Sources.h"
#include "diplomes/regles/Evalue.h"
#include "diplomes/tables/Tables.h"
#include "diplomes/tables/Variantes.h"
#include "log/Etat_Commun.h"

#include <gtest/gtest.h>

#include <map>

using namespace diplomes;

namespace {

Etat_Fiche Fiche_De(const Variante &variante, const Lignes_Essai &lignes)
{
    Etat_Commun etat;
    Applique(variante, etat);
    return Evalue_Fiche(*variante.fiche, {En_Texte(lignes)}, etat);
}

} // namespace

TEST(Variantes, chaque_option_et_chaque_bande_est_une_fiche)
{
    const std::map<Diplome, std::size_t> attendues = {{Diplome::DAF, 3}, {Diplome::DCPF, 4}, {Diplome::DDFM, 13},
                                                      {Diplome::DFF, 2}, {Diplome::DOHF, 6}, {Diplome::DPF, 3},
                                                      {Diplome::TDC, 17}};
    for (const Diplome diplome : tous_les_diplomes) {
        const auto place = attendues.find(diplome);
        EXPECT_EQ(Variantes_De(diplome).size(), place == attendues.end() ? 1U : place->second)
            << Code(diplome).toString().toStdString();
    }
}

TEST(Variantes, chacune_se_montre_sans_disque_ni_poste)
{
    for (const Diplome diplome : tous_les_diplomes)
        for (const Variante &variante : Variantes_De(diplome)) {
            const Etat_Fiche etat = Fiche_De(variante, {});
            EXPECT_FALSE(etat.niveaux.empty()) << Code(diplome).toString().toStdString();
            EXPECT_FALSE(etat.titre.contains(u'{')) << etat.titre.toStdString();
        }
}

TEST(Variantes, la_bande_du_selecteur_compte_pour_elle_seule)
{
    const Lignes_Essai lignes = Fois(30, QSO({.mode = u"CW"_s, .bande = u"144 Mhz"_s, .qsl = u"*"_s}));
    QStringList atteintes;
    for (const Variante &variante : Variantes_De(Diplome::DDFM))
        if (Fiche_De(variante, lignes).niveaux.front().etat.teinte == Teinte::Atteint)
            atteintes << variante.bande.toString();
    EXPECT_EQ(atteintes, QStringList{u"144 Mhz"_s});
}

TEST(Variantes, le_challenge_des_moulins_a_la_fiche_des_chateaux_sous_son_nom)
{
    EXPECT_EQ(Fiche_De(Variantes_De(Diplome::Ch_DFCF).front(), {}).titre, u"Challenge DFCF année 2000"_s);
    EXPECT_EQ(Fiche_De(Variantes_De(Diplome::Ch_DMF).front(), {}).titre, u"Challenge DMF année 2000"_s);
}

TEST(Lit_Sources, un_log_vide_n_ouvre_pas_la_liste_des_tours)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"F9ZZY_TDC.log"_s, QByteArray());
    EXPECT_TRUE(Lit_Sources(essai.poste, fiche_tdc.sources).references.empty());
}
