#include "consultation/Contactes.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString Texte(const std::vector<QString> &lignes)
{
    QString texte;
    for (const QString &ligne : lignes)
        texte += ligne + u"\r\n";
    return texte;
}

std::vector<QString> Lignes(const QString &code, const std::vector<QString> &log, const QString &bande = {})
{
    return Lignes_Contactes(Lignes_Texte(Texte(log)), Diplome_De(code), bande);
}

QByteArray Attendu(const QString &nom)
{
    QFile fichier(QStringLiteral(DONNEES_ESSAI "/attendus/") + nom);
    EXPECT_TRUE(fichier.open(QIODevice::ReadOnly));
    return fichier.readAll();
}

/// A log with one reference contacted three times, an accent, a card and a blank reference.
void Pose_Log(const Poste_Essai &essai)
{
    const QString log = Texte({QSO({.ind = u"F6XYZ/P"_s,
                                    .dpt = u"77"_s,
                                    .prenom = u"MARIE-CHRISTINE"_s,
                                    .ref = u"77001"_s,
                                    .nom = u"C. CHATEAU DE LA FERTE-SOUS-JO"_s}),
                               QSO({.ind = u"F5ABC"_s,
                                    .dpt = u"77"_s,
                                    .prenom = u"RENÉ"_s,
                                    .ref = u"77001"_s,
                                    .nom = u"C. BLANDY"_s,
                                    .qsl = u"*"_s}),
                               QSO({.ind = u"F5ABC"_s, .dpt = u"77"_s, .ref = u"77001"_s, .bande = u"7.0 Mhz"_s}),
                               QSO({.ind = u"F8DEF"_s,
                                    .dpt = u"2A"_s,
                                    .ref = u"2A003"_s,
                                    .mode = u"CW"_s,
                                    .rstr = u"599"_s,
                                    .rste = u"599"_s}),
                               QSO({.ind = u"ON4ZZZ"_s}), QSO({.ind = u"ON4AAA"_s})});
    essai.fichiers.Pose(u"F9ZZY_DFCF.log"_s, log.toLatin1());
}

} // namespace

TEST(Lignes_Contactes, les_colonnes_sont_celles_du_log_a_pleine_largeur)
{
    const QString ligne = QSO({.ind = u"F5ABC"_s,
                               .dpt = u"77"_s,
                               .prenom = u"MARIE"_s,
                               .ref = u"77001"_s,
                               .nom = u"C. BLANDY"_s,
                               .qsl = u"*"_s});
    const QString attendue =
        u"   1  77001      F5ABC         77 MARIE           12/05/07  14:48  SSB  14 Mhz   59   59   "
        u"C. BLANDY                       *"_s;
    EXPECT_EQ(Lignes(u"DFCF"_s, {ligne}), std::vector{attendue});
    EXPECT_EQ(Lignes(u"DDFM"_s, {ligne}, u"14 Mhz"_s),
              std::vector<QString>{u"   1  77 F5ABC         77001      MARIE"_s + attendue.sliced(39)});
}

TEST(Lignes_Contactes, une_ligne_courte_garde_ses_colonnes)
{
    const std::vector<QString> lignes = Lignes(u"DFCF"_s, {u"F5ABC        77"_s});
    ASSERT_EQ(lignes.size(), 1U);
    EXPECT_EQ(lignes[0].size(), 6 + 118);
    EXPECT_EQ(lignes[0].trimmed(), u"1             F5ABC         77"_s);
}

TEST(Lignes_Contactes, une_reference_contactee_trois_fois_est_une_ligne)
{
    const std::vector<QString> lignes =
        Lignes(u"DFCF"_s, {QSO({.ind = u"F8ZZ"_s, .ref = u"77001"_s}), QSO({.ind = u"F5AA"_s, .ref = u"77001"_s}),
                           QSO({.ind = u"F6BB"_s, .ref = u"77001"_s}), QSO({.ind = u"F1CC"_s, .ref = u"77002"_s})});
    ASSERT_EQ(lignes.size(), 2U);
    EXPECT_TRUE(lignes[0].startsWith(u"   1  77001      F5AA "));
    EXPECT_TRUE(lignes[1].startsWith(u"   2  77002      F1CC "));
}

TEST(Lignes_Contactes, une_reference_vide_est_une_ligne)
{
    EXPECT_EQ(Lignes(u"DPF"_s, {QSO({.ind = u"F5AA"_s}), QSO({.ind = u"F5BB"_s})}).size(), 1U);
    EXPECT_TRUE(Lignes(u"DPF"_s, {}).empty());
}

TEST(Lignes_Contactes, DDFM_montre_une_bande_et_numerote_depuis_1)
{
    const std::vector<QString> log{QSO({.ind = u"F5AA"_s, .dpt = u"77"_s, .bande = u"7.0 Mhz"_s}),
                                   QSO({.ind = u"F5BB"_s, .dpt = u"05"_s, .bande = u"14 Mhz"_s}),
                                   QSO({.ind = u"F5CC"_s, .dpt = u"2A"_s, .bande = u"7.0 Mhz"_s})};
    const std::vector<QString> a_7 = Lignes(u"DDFM"_s, log, u"7.0 Mhz"_s);
    ASSERT_EQ(a_7.size(), 2U);
    EXPECT_TRUE(a_7[0].startsWith(u"   1  2A F5CC "));
    EXPECT_TRUE(a_7[1].startsWith(u"   2  77 F5AA "));
    const std::vector<QString> a_14 = Lignes(u"DDFM"_s, log, u"14 Mhz"_s);
    ASSERT_EQ(a_14.size(), 1U);
    EXPECT_TRUE(a_14[0].startsWith(u"   1  05 F5BB "));
}

TEST(Lignes_Contactes, DDFM_et_DYLF_gardent_une_station_d_une_autre_minute)
{
    for (const QString &code : {u"DDFM"_s, u"DYLF"_s}) {
        const auto une = [](const char16_t *heure) {
            return QSO({.ind = u"F5AA"_s, .dpt = u"77"_s, .heure = QString::fromUtf16(heure)});
        };
        EXPECT_EQ(Lignes(code, {une(u"14:48"), une(u"15:48")}, u"14 Mhz"_s).size(), 1U);
        EXPECT_EQ(Lignes(code, {une(u"14:48"), une(u"14:49")}, u"14 Mhz"_s).size(), 2U);
    }
}

TEST(Entete_Contactes, depend_du_diplome)
{
    EXPECT_TRUE(Entete_Contactes(Diplome::DDFM).startsWith(u"  Num   Dpt           Indicatif"));
    EXPECT_TRUE(Entete_Contactes(Diplome::DYLF).contains(u"Ville"));
    EXPECT_TRUE(Entete_Contactes(Diplome::PC).startsWith(u"  Num        Ref           Indicatif"));
    EXPECT_EQ(Titre_Contactes(Diplome::DFCF), u"Liste alphanumérique des DFCF contacté(e)s"_s);
}

TEST(Remplit_Contacte, lit_le_log_de_l_annee_du_challenge)
{
    Poste_Essai essai;
    essai.etat.station.annee_ch_dmf = u"2018"_s;
    essai.fichiers.Pose(u"F9ZZY_Ch_DMF_2018.log"_s, QSO({.ref = u"77001R"_s}).toLatin1());
    EXPECT_EQ(Remplit_Contacte(essai.poste, Diplome::Ch_DMF, u"").lignes.size(), 1U);
    EXPECT_THROW(Remplit_Contacte(essai.poste, Diplome::Ch_DFCF, u""), Erreur_Execution);
}

TEST(Enregistre_Contactes, ecrit_la_vue_octet_pour_octet)
{
    Poste_Essai essai;
    Pose_Log(essai);
    Enregistre_Contactes(essai.poste, Remplit_Contacte(essai.poste, Diplome::DFCF, u""));
    const QString nom = u"F9ZZY_activations_DFCF_15_11_26.txt"_s;
    EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Le log a été enregistré sous le nom : "_s + nom});
    EXPECT_EQ(essai.fichiers.Octets(nom), Attendu(nom));
    EXPECT_EQ(essai.fichiers.Fichiers(), (QStringList{u"F9ZZY_DFCF.log"_s, nom}));
}

TEST(Imprime_Contactes, imprime_les_lignes_telles_qu_elles_sont)
{
    Poste_Essai essai;
    Pose_Log(essai);
    const Contactes contactes = Remplit_Contacte(essai.poste, Diplome::DFCF, u"");
    Imprime_Contactes(essai.poste, contactes);
    EXPECT_EQ(essai.imprimante.titres, std::vector{u"Liste alphanumérique des DFCF contacté(e)s"_s});
    ASSERT_EQ(essai.imprimante.documents.size(), 1U);
    const std::vector<QString> &lignes = essai.imprimante.documents[0];
    ASSERT_EQ(lignes.size(), 4U + contactes.lignes.size() + 3U);
    EXPECT_EQ(lignes[0], QString(34, u' ') + u"F9ZZY activations DFCF contactées au 15/11/2026");
    EXPECT_EQ(lignes[1], u""_s);
    EXPECT_EQ(
        lignes[2],
        u"  Num   Ref       Indicatif     Dpt   Prenom         Date     QTR   Mode  QRG    RstR RstE         Nom de l'activité       QSL"_s);
    EXPECT_EQ(lignes[4], contactes.lignes[0]);
    EXPECT_EQ(lignes.back(), QString(21, u' ') + u"Vorlain 2026");
    EXPECT_TRUE(essai.boites.messages.empty());
    essai.imprimante.refus = u"plus de papier"_s;
    Imprime_Contactes(essai.poste, contactes);
    EXPECT_EQ(essai.boites.messages, std::vector{u"plus de papier"_s});
}
