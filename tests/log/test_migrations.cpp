#include "faux/Impression.h"
#include "faux/QSO_Essai.h"
#include "log/Migrations.h"
#include "outils/Log_Essai.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const Conversion_TDC sans_liste = [](QStringView) -> std::optional<QString> { return std::nullopt; };

/// The text that the file becomes; nullopt if it stays.
std::optional<QString> Migre_Lignes(QStringView code, const std::vector<QString> &lignes,
                                    const Conversion_TDC &conversion = sans_liste)
{
    const std::optional<Log_Migre> migre = Migre(Diplome_De(code), Lignes_Texte(Texte_Log(lignes)), conversion);
    return migre && migre->a_reecrire ? std::optional(migre->texte) : std::nullopt;
}

/// The Ref field of one line after its migration, with its blanks; nullopt if nothing changes.
std::optional<QString> Ref_Migree(QStringView code, const QString &dpt, const QString &ref,
                                  const Conversion_TDC &conversion = sans_liste)
{
    const auto texte = Migre_Lignes(code, {QSO({.dpt = dpt, .ref = ref})}, conversion);
    if (!texte)
        return std::nullopt;
    return Lit(*texte, colonnes_log::Ref).toString();
}

} // namespace

TEST(Migrations_DOHF, une_reference_sans_departement_le_recoit)
{
    EXPECT_EQ(Ref_Migree(u"DOHF", u"45"_s, u"EC102"_s), u"45EC102   "_s);
    EXPECT_EQ(Ref_Migree(u"DOHF", u"45"_s, u"BA1"_s), u"45BA1     "_s);
    EXPECT_EQ(Ref_Migree(u"DOHF", u"2A"_s, u"ZZ999"_s), u"2AZZ999   "_s);
}

TEST(Migrations_DOHF, huit_caracteres_passent)
{
    EXPECT_EQ(Ref_Migree(u"DOHF", u"45"_s, u"EC10234567"_s), u"45EC102345"_s);
}

TEST(Migrations_DOHF, seules_les_lettres_de_b_a_z_sont_anciennes)
{
    for (const QString &ref : {u"45EC102"_s, u"AC102"_s, u"eC102"_s, u"ÉC102"_s, u""_s, u" EC102"_s})
        EXPECT_EQ(Ref_Migree(u"DOHF", u"45"_s, ref), std::nullopt) << ref.toStdString();
}

TEST(Migrations_DOHF, un_departement_en_blanc_reste_en_blanc)
{
    const auto texte = Migre_Lignes(u"DOHF", {QSO({.ref = u"EC102"_s})});
    ASSERT_TRUE(texte);
    EXPECT_EQ(Lit(*texte, colonnes_log::Ref), u"  EC102   ");
    EXPECT_FALSE(Migre(Diplome::DOHF, Lignes_Texte(*texte), sans_liste));
}

TEST(Migrations_TDC, le_tiret_et_les_zeros_viennent)
{
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"118"_s), u"11-008    "_s);
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"1108"_s), u"11-008    "_s);
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"11008"_s), u"11-008    "_s);
}

TEST(Migrations_TDC, une_autre_longueur_reste)
{
    for (const QString &ref : {u"11-008"_s, u""_s, u"1"_s, u"11"_s, u"11-0088"_s})
        EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, ref), std::nullopt) << ref.toStdString();
}

TEST(Migrations_TDC, les_blancs_de_devant_s_en_vont_de_la_liste_mais_pas_du_fichier)
{
    const auto migre = Migre(Diplome::TDC, Lignes_Texte(Texte_Log({QSO({.ref = u"  11-008"_s}), QSO({})})), sans_liste);
    ASSERT_TRUE(migre);
    EXPECT_EQ(migre->texte, Texte_Log({QSO({.ref = u"11-008"_s}), QSO({})}));
    EXPECT_FALSE(migre->a_reecrire);
}

TEST(Migrations_TDC, seules_les_deux_lettres_tc_font_une_ancienne_reference)
{
    const Conversion_TDC liste = [](QStringView ancienne) -> std::optional<QString> {
        ADD_FAILURE() << ancienne.toString().toStdString();
        return u"11-108"_s;
    };
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"TX12"_s, liste), u"TX-012    "_s);
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"TX1108"_s, liste), std::nullopt);
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"AC1108"_s, liste), std::nullopt);
}

TEST(Migrations_TDC, l_ancienne_forme_passe_par_la_liste)
{
    const Conversion_TDC liste = [](QStringView ancienne) -> std::optional<QString> {
        return Rogne(ancienne) == u"TC1108" ? std::optional(u"11-108"_s) : std::nullopt;
    };
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"TC1108"_s, liste), u"11-108    "_s);
}

TEST(Migrations_TDC, un_poste_court_de_la_liste_passe_aussi_par_le_tiret)
{
    // The list gives the post unpadded, and the rows for four and five characters then cut it again.
    const auto rend = [](const QString &nouvelle) {
        return [nouvelle](QStringView) { return std::optional(nouvelle); };
    };
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"TC1108"_s, rend(u"11-8"_s)), u"11-0-8    "_s);
    EXPECT_EQ(Ref_Migree(u"TDC", u"11"_s, u"TC1108"_s, rend(u"11-18"_s)), u"11--18    "_s);
}

TEST(Migrations_TDC, une_inconnue_prend_la_derniere_conversion_du_chargement)
{
    const Conversion_TDC liste = [](QStringView ancienne) -> std::optional<QString> {
        return Rogne(ancienne) == u"TC1" ? std::optional(u"11-108"_s) : std::nullopt;
    };
    const auto texte = Migre_Lignes(
        u"TDC", {QSO({.ref = u"TC0"_s}), QSO({.ref = u"TC1"_s}), QSO({.ref = u"71001"_s}), QSO({.ref = u"TC2"_s})},
        liste);
    ASSERT_TRUE(texte);
    const Lignes_Texte lignes(*texte);
    EXPECT_EQ(Lit_Rogne(lignes[0], colonnes_log::Ref), u"");
    EXPECT_EQ(Lit_Rogne(lignes[1], colonnes_log::Ref), u"11-108");
    EXPECT_EQ(Lit_Rogne(lignes[2], colonnes_log::Ref), u"71-001");
    EXPECT_EQ(Lit_Rogne(lignes[3], colonnes_log::Ref), u"11-108");
}

TEST(Migrations_DCPF, les_trois_familles_recoivent_le_departement)
{
    EXPECT_EQ(Ref_Migree(u"DCPF", u"81"_s, u"CA001"_s), u"81CA001   "_s);
    for (const QString &prefixe : {u"PPQ"_s, u"PTC"_s, u"PTQ"_s, u"PTH"_s, u"PTP"_s})
        EXPECT_EQ(Ref_Migree(u"DCPF", u"81"_s, prefixe + u"001"), u"81PT001   "_s) << prefixe.toStdString();
    for (const QString &prefixe : {u"PDE"_s, u"PDC"_s, u"PDH"_s, u"PDQ"_s, u"PDL"_s, u"PDP"_s})
        EXPECT_EQ(Ref_Migree(u"DCPF", u"81"_s, prefixe + u"001"), u"81PA001   "_s) << prefixe.toStdString();
}

TEST(Migrations_DCPF, six_caracteres_passent_derriere_la_famille)
{
    EXPECT_EQ(Ref_Migree(u"DCPF", u"81"_s, u"CA12345678"_s), u"81CA123456"_s);
    EXPECT_EQ(Ref_Migree(u"DCPF", u"81"_s, u"PTC1234567"_s), u"81PT123456"_s);
}

TEST(Migrations_DCPF, les_autres_restent)
{
    for (const QString &ref : {u"81PT001"_s, u"PTX001"_s, u"PDA001"_s, u"C"_s, u"PT"_s, u""_s, u"ptc001"_s})
        EXPECT_EQ(Ref_Migree(u"DCPF", u"81"_s, ref), std::nullopt) << ref.toStdString();
}

TEST(Migrations_FFF, quatre_chiffres)
{
    EXPECT_EQ(Ref_Migree(u"FFF", u"05"_s, u"1"_s), u"0001      "_s);
    EXPECT_EQ(Ref_Migree(u"FFF", u"05"_s, u"51"_s), u"0051      "_s);
    EXPECT_EQ(Ref_Migree(u"FFF", u"05"_s, u"051"_s), u"0051      "_s);
    for (const QString &ref : {u"0051"_s, u""_s, u"00051"_s})
        EXPECT_EQ(Ref_Migree(u"FFF", u"05"_s, ref), std::nullopt) << ref.toStdString();
}

TEST(Migrations, les_autres_diplomes_ne_changent_rien)
{
    for (const QStringView code : {u"DFCF", u"DMF", u"WLF", u"DCF", u"Ch_DFCF", u"DPLF", u"DVFF", u""})
        for (const QString &ref : {u"EC102"_s, u"TC1"_s, u"11008"_s, u"CA001"_s, u"51"_s})
            EXPECT_EQ(Ref_Migree(code, u"45"_s, ref), std::nullopt);
}

TEST(Migrations, toutes_les_lignes_sont_composees_de_leurs_champs)
{
    const QString ancienne = QSO({.ind = u"F5ABC/P"_s,
                                  .dpt = u"45"_s,
                                  .prenom = u"RENÉ"_s,
                                  .ref = u"EC102"_s,
                                  .nom = u"BARRAGE DE L'ÉTÉ"_s,
                                  .qsl = u"*"_s});
    const QString pleine = QSO({.dpt = u"45"_s, .ref = u"45EC103"_s});
    QString deborde = pleine;
    deborde[15] = u'1';
    QString nouvelle = ancienne;
    nouvelle.replace(34, 7, u"45EC102"_s);
    EXPECT_EQ(Migre_Lignes(u"DOHF", {deborde + u" et une suite", ancienne, u"F5ABC        45   "_s, u""_s}),
              Texte_Log({pleine, nouvelle, Complete(u"F5ABC        45", 111), QString(111, u' ')}));
}

TEST(Migrations, sans_ancienne_reference_aucune_ligne_ne_change)
{
    EXPECT_EQ(Migre_Lignes(u"DOHF", {QSO({.ref = u"45EC103"_s}) + u" et une suite", u"court"_s}), std::nullopt);
}

TEST(Migrations, une_seconde_fois_ne_change_rien)
{
    for (const auto &[code, ref] : {std::pair(u"DOHF"_s, u"EC102"_s), std::pair(u"TDC"_s, u"11008"_s),
                                    std::pair(u"DCPF"_s, u"PTC001"_s), std::pair(u"FFF"_s, u"51"_s)}) {
        const auto texte = Migre_Lignes(code, {QSO({.dpt = u"81"_s, .ref = ref})});
        ASSERT_TRUE(texte);
        EXPECT_FALSE(Migre(Diplome_De(code), Lignes_Texte(*texte), sans_liste)) << code.toStdString();
    }
}
