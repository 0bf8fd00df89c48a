#include "Listes_Essai.h"
#include "listes/Recherches_Liste.h"
#include "plateforme/Erreur_Execution.h"

using namespace Qt::StringLiterals;

namespace {

const Reference_Trouvee inchangee{};

} // namespace

TEST(Cherche_DFCF, donne_c_point_devant_le_nom)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DFCF.csv"_s, {u"Rev 012 du 01/02/20;;;;;"_s, u"77001;Vaux le Vicomte;;;Maincy;77"_s});
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77001"), u"C.Vaux le Vicomte"_s);
}

TEST(Cherche_DFCF, une_reference_inconnue_donne_c_point_et_non_un_nom_vide)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DFCF.csv"_s, {u"Rev 012 du 01/02/20;;;;;"_s, u"77001;Vaux;;;;"_s});
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77002"), u"C."_s);
    // The challenge hands over its six characters: they match nothing.
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77001R"), u"C."_s);
}

TEST(Cherche_DFCF, coupe_a_trente_caracteres)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DFCF.csv"_s, {u"77001;123456789012345678901234567890;;;;"_s});
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77001"), u"C.1234567890123456789012345678"_s);
}

TEST(Cherche_DFCF, la_premiere_ligne_est_une_ligne_comme_les_autres)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DFCF.csv"_s, {u"77001;Premier;;;;"_s, u"77001;Second;;;;"_s});
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77001"), u"C.Premier"_s);
}

TEST(Cherche_DFCF, les_tirets_de_la_liste_et_les_blancs_ne_comptent_pas)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DFCF.csv"_s, {u" 6-30-87- ;Clermont;;;;"_s, u""_s, u"77001;Vaux;;;;"_s});
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u" 63087 "), u"C.Clermont"_s);
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77001"), u"C.Vaux"_s);
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77-001"), u"C."_s);
}

TEST(Cherche_DFCF, une_ligne_atteinte_sans_ses_separateurs_est_un_echec)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DFCF.csv"_s, {u"77001;Vaux;;;;"_s, u"77002;coupee;;;"_s});
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77001"), u"C.Vaux"_s);
    EXPECT_THROW(Cherche_DFCF(essai.dossier, u"77003"), Erreur_Execution);
}

TEST(Cherche_DCF, donne_nom_a_ville_et_le_departement)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DCF.csv"_s,
               {u"Rev 003 du 01/02/20;;;;"_s, u"DCF-001;Bourg;01;Notre-Dame;"_s, u"DCF-001B;Ars;01;St Sixte;"_s});
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"001"), (Reference_Trouvee{u"C. Notre-Dame à Bourg"_s, u"01"_s}));
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"001B"), (Reference_Trouvee{u"B. St Sixte à Ars"_s, u"01"_s}));
}

TEST(Cherche_DCF, un_nom_trop_long_laisse_place_a_la_ville_seule)
{
    const Poste_Essai essai;
    const QString ville = u"Saint Christophe du Bois Joli sur Mer"_s;
    Pose_Liste(essai, u"Liste_DCF.csv"_s,
               {u"DCF-001B;"_s + ville + u";01;St Sixte;"_s, u"DCF-001C;"_s + ville + u";01;St Sixte;"_s,
                u"DCF-002;Ville de vingt;02;Dix lettre;"_s, u"DCF-003;Ville de vingt;02;Dix lettres;"_s});
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"001B").nom, u"B. de "_s + ville);
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"001C").nom, u"C. de "_s + ville);
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"002").nom, u"C. Dix lettre à Ville de vingt"_s) << "30 characters";
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"003").nom, u"C. de Ville de vingt"_s) << "31 characters";
}

TEST(Cherche_DCF, une_reference_inconnue_laisse_tout_en_l_etat)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DCF.csv"_s, {u"DCF-001;Bourg;01;Notre-Dame;"_s, u"DCF-002 ;Laon;02;Notre-Dame;"_s});
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"001C"), inchangee);
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"002"), inchangee) << "field 1 is compared as it stands";
}

TEST(Cherche_DCF, une_ligne_vide_atteinte_est_un_echec)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DCF.csv"_s, {u"DCF-001;Bourg;01;Notre-Dame;"_s, u""_s, u"DCF-002;Laon;02;N.-D.;"_s});
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"001").dpt, u"01"_s);
    EXPECT_THROW(Cherche_DCF(essai.dossier, u"002"), Erreur_Execution);
}

TEST(Cherche_FFF, donne_le_nom_derriere_les_trois_en_tetes)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_FFF.csv"_s,
               {u"1;F;x;FFF-0051;en tete;;"_s, u"court"_s, u""_s, u"1;France;x;ONFF-0051;Belge;;"_s,
                u"1;France;x;FFF-0051;Forêt d'Orient;;"_s, u"1;France;x;FFF-00-2;Deux tirets;;"_s,
                u"1;France;x;FFF;sans tiret;;"_s});
    EXPECT_EQ(Cherche_FFF(essai.dossier, u"0051"), (Reference_Trouvee{.nom = u"Forêt d'Orient"_s}));
    EXPECT_EQ(Cherche_FFF(essai.dossier, u"00-2").nom, u"Deux tirets"_s);
    EXPECT_EQ(Cherche_FFF(essai.dossier, u"0052"), inchangee);
    EXPECT_EQ(Cherche_FFF(essai.dossier, u""), inchangee);
}

TEST(Cherche_FFF, un_premier_champ_vide_finit_la_liste)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_FFF.csv"_s,
               {u";;;;;;"_s, u";;;;;;"_s, u";;;;;;"_s, u"1;;;FFF-0001;Un;;"_s, u";;;FFF-0002;Deux;;"_s, u"cassee"_s});
    EXPECT_EQ(Cherche_FFF(essai.dossier, u"0001").nom, u"Un"_s);
    EXPECT_EQ(Cherche_FFF(essai.dossier, u"0002"), inchangee);
}

TEST(Cherche_FFF, une_ligne_vide_finit_la_liste_et_une_reference_inconnue_reste_sans_nom)
{
    const Poste_Essai essai;
    for (const QString &fin : {u""_s, u";coupee"_s}) {
        Pose_Liste(essai, u"Liste_FFF.csv"_s,
                   {u";;;;;;"_s, u";;;;;;"_s, u";;;;;;"_s, u"1;;;FFF-0001;Un;;"_s, fin, u"1;;;FFF-0002;Deux;;"_s});
        EXPECT_EQ(Cherche_FFF(essai.dossier, u"0001").nom, u"Un"_s);
        EXPECT_EQ(Cherche_FFF(essai.dossier, u"0002"), inchangee);
    }
}

TEST(Cherche_FFF, une_ligne_coupee_qui_commence_par_un_texte_est_un_echec)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_FFF.csv"_s, {u""_s, u""_s, u""_s, u"cassee"_s});
    EXPECT_THROW(Cherche_FFF(essai.dossier, u"0001"), Erreur_Execution);
}

TEST(Cherche_DPLF, compare_des_nombres)
{
    for (const QString &numero : {u"1"_s, u"01"_s, u"001"_s}) {
        const Poste_Essai essai;
        Pose_Liste(
            essai, u"Liste_DPLF.txt"_s,
            {u"Rev 1"_s, u"7"_s, u""_s, u"29"_s, u""_s, u"La Jument"_s, numero, u"x"_s, u" 29 "_s, u"y"_s, u"*"_s});
        EXPECT_EQ(Cherche_DPLF(essai.dossier, u"PB001"), (Reference_Trouvee{u"P. La Jument"_s, u"29"_s}))
            << numero.toStdString();
    }
}

TEST(Cherche_DPLF, un_departement_d_un_chiffre_prend_un_zero)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DPLF.txt"_s, {u"Garoupe"_s, u"12"_s, u""_s, u" 6 "_s, u""_s, u"*"_s});
    EXPECT_EQ(Cherche_DPLF(essai.dossier, u"PB012").dpt, u"06"_s);
}

TEST(Cherche_DPLF, l_etoile_ou_la_fin_du_fichier_finit_la_liste)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DPLF.txt"_s,
               {u"A"_s, u"1"_s, u""_s, u"29"_s, u"*"_s, u"B"_s, u"2"_s, u""_s, u"29"_s, u""_s, u"*"_s, u"C"_s, u"3"_s,
                u""_s, u"29"_s, u""_s});
    EXPECT_EQ(Cherche_DPLF(essai.dossier, u"PB002").nom, u"P. B"_s) << "a star in a fifth line ends nothing here";
    EXPECT_EQ(Cherche_DPLF(essai.dossier, u"PB003"), inchangee);
    Pose_Liste(essai, u"Liste_DPLF.txt"_s, {u"A"_s, u"1"_s, u""_s, u"29"_s, u""_s, u"B"_s, u"2"_s, u""_s});
    EXPECT_EQ(Cherche_DPLF(essai.dossier, u"PB002"), inchangee) << "a record cut off by the end of the file";
    Pose_Liste(essai, u"Liste_DPLF.txt"_s, {u"A"_s, u"1"_s, u""_s, u"29"_s});
    EXPECT_EQ(Cherche_DPLF(essai.dossier, u"PB001").nom, u"P. A"_s);
}

TEST(Cherche_DPLF, un_texte_sans_nombre_ne_trouve_rien)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_DPLF.txt"_s,
               {u"Rev 1"_s, u""_s, u""_s, u""_s, u""_s, u"A"_s, u"ABC"_s, u""_s, u"29"_s, u""_s, u"*"_s});
    EXPECT_EQ(Cherche_DPLF(essai.dossier, u"PBABC"), inchangee);
    EXPECT_EQ(Cherche_DPLF(essai.dossier, u""), inchangee);
}

TEST(Cherche_TDC, donne_departement_et_nom)
{
    Poste_Essai essai;
    Pose_Liste(essai, u"Liste_TDC.csv"_s,
               {u"Rev 1"_s, u"8;11;3;Castelnaudary;Bordeaux - Narbonne;F;TC01;"_s, u""_s,
                u"112;11;3;Fitou;Narbonne - Perpignan;F;TC02;"_s});
    EXPECT_EQ(Cherche_TDC(essai.dossier, essai.boites, u"11-008"), (Reference_Trouvee{u"Castelnaudary"_s, u"11"_s}));
    EXPECT_EQ(Cherche_TDC(essai.dossier, essai.boites, u"11-112"), (Reference_Trouvee{u"Fitou"_s, u"11"_s}));
    EXPECT_TRUE(essai.boites.messages.empty());
}

TEST(Cherche_TDC, une_reference_inconnue_laisse_la_derniere_ligne_et_le_dit)
{
    Poste_Essai essai;
    Pose_Liste(essai, u"Liste_TDC.csv"_s, {u"Rev 1"_s, u"8;11;3;Castelnaudary;;;;"_s, u"1;62;3;Calais;;;;"_s});
    EXPECT_EQ(Cherche_TDC(essai.dossier, essai.boites, u"11-8"), (Reference_Trouvee{u"Calais"_s, u"62"_s}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Pas de tours Chappe dans le département "_s});
}

TEST(Ligne_TDC, compare_le_poste_sans_zeros)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_TDC.csv"_s,
               {u"Rev 1"_s, u"8;11;3;A;Bordeaux - Narbonne;F;;"_s, u"112;11;3;B;Paris - Lyon;F;;"_s,
                u"1;62;3;C;Paris - Calais;F;;"_s});
    EXPECT_EQ(Ligne_TDC(essai.dossier, u"11-8"), u"Bordeaux - Narbonne"_s);
    EXPECT_EQ(Ligne_TDC(essai.dossier, u"11-112"), u"Paris - Lyon"_s);
    EXPECT_EQ(Ligne_TDC(essai.dossier, u"11-008"), u"Paris - Calais"_s) << "the line of the last tower";
}

TEST(Cherche_Ouvrage, donne_nom_et_departement)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_Ouvrages.csv"_s, {u"Rev"_s, u"45-EC-102;Ecluse de Briare;Ecluse;45;Canal;1;"_s});
    EXPECT_EQ(Cherche_Ouvrage(essai.dossier, u"45EC102"), (Reference_Trouvee{u"Ecluse de Briare"_s, u"45"_s}));
}

TEST(Cherche_Ouvrage, un_ouvrage_inconnu_donne_sa_categorie_et_son_departement)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_Ouvrages.csv"_s, {u"Rev"_s, u"45EC103;Ecluse;Ecluse;45;Canal;1;"_s});
    EXPECT_EQ(Cherche_Ouvrage(essai.dossier, u"45EC102"), (Reference_Trouvee{u"EC"_s, u"45"_s}));
    EXPECT_EQ(Cherche_Ouvrage(essai.dossier, u"45E"), (Reference_Trouvee{u"E"_s, u"45"_s}));
    EXPECT_EQ(Cherche_Ouvrage(essai.dossier, u""), (Reference_Trouvee{u""_s, u""_s}));
}

TEST(Cherche_PC, compare_les_cinq_derniers_caracteres)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_PC.csv"_s,
               {u"Rev"_s, u"PC-93-001;Basilique;;7;;93;Saint-Denis;"_s, u""_s, u"001;Court;;7;;94;Vitry;"_s});
    EXPECT_EQ(Cherche_PC(essai.dossier, u"93001"), (Reference_Trouvee{u"Basilique"_s, u"93"_s}));
    EXPECT_EQ(Cherche_PC(essai.dossier, u"001").nom, u"Court"_s);
    EXPECT_EQ(Cherche_PC(essai.dossier, u"93002"), inchangee);
}

TEST(Recherches_Saisie, une_liste_absente_est_un_echec)
{
    Poste_Essai essai;
    EXPECT_THROW(Cherche_DFCF(essai.dossier, u"77001"), Erreur_Execution);
    EXPECT_THROW(Cherche_DCF(essai.dossier, u"001"), Erreur_Execution);
    EXPECT_THROW(Cherche_FFF(essai.dossier, u"0051"), Erreur_Execution);
    EXPECT_THROW(Cherche_DPLF(essai.dossier, u"PB001"), Erreur_Execution);
    EXPECT_THROW(Cherche_TDC(essai.dossier, essai.boites, u"11-008"), Erreur_Execution);
    EXPECT_THROW(Ligne_TDC(essai.dossier, u"11-8"), Erreur_Execution);
    EXPECT_THROW(Cherche_Ouvrage(essai.dossier, u"45EC102"), Erreur_Execution);
    EXPECT_THROW(Cherche_PC(essai.dossier, u"93001"), Erreur_Execution);
}

TEST(Recherches_Saisie, une_liste_vide_est_une_liste_sans_lignes)
{
    Poste_Essai essai;
    for (const QString &nom : {u"Liste_DFCF.csv"_s, u"Liste_DCF.csv"_s, u"Liste_FFF.csv"_s, u"Liste_DPLF.txt"_s,
                               u"Liste_TDC.csv"_s, u"Liste_Ouvrages.csv"_s, u"Liste_PC.csv"_s})
        essai.fichiers.Pose(nom, "");
    EXPECT_EQ(Cherche_DFCF(essai.dossier, u"77001"), u"C."_s);
    EXPECT_EQ(Cherche_DCF(essai.dossier, u"001"), inchangee);
    EXPECT_EQ(Cherche_FFF(essai.dossier, u"0051"), inchangee);
    EXPECT_EQ(Cherche_DPLF(essai.dossier, u"PB001"), inchangee);
    EXPECT_EQ(Cherche_TDC(essai.dossier, essai.boites, u"11-008"), inchangee);
    EXPECT_EQ(essai.boites.messages.size(), 1U);
    EXPECT_EQ(Ligne_TDC(essai.dossier, u"11-8"), u""_s);
    EXPECT_EQ(Cherche_Ouvrage(essai.dossier, u"45EC102"), (Reference_Trouvee{u"EC"_s, u"45"_s}));
    EXPECT_EQ(Cherche_PC(essai.dossier, u"93001"), inchangee);
}
