#include "Log_Essai.h"
#include "log/Catalogue.h"
#include "outils/Collecte_DDFM.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

using Textes = std::vector<QString>;

QString Confirme(Champs_QSO champs)
{
    champs.qsl = u"*"_s;
    return QSO(champs);
}

Textes Collecte(const Textes &lignes)
{
    const Lignes_Texte log(Texte_Log(lignes));
    return Lignes_DDFM({&log, 1});
}

struct Collecte_Du_Poste : ::testing::Test {
    Poste_Essai essai;

    void SetUp() override
    {
        essai.Ouvre(u"DDFM"_s);
        for (const QStringView code : codes_diplome)
            Pose(code, {});
    }
    void Pose(QStringView code, const Textes &lignes) const
    {
        essai.fichiers.Pose(u"F9ZZY_"_s + code + u".log", Texte_Log(lignes).toLatin1());
    }
    [[nodiscard]] Textes Log() const
    {
        return En_Lignes(QString::fromLatin1(essai.fichiers.Octets(u"F9ZZY_DDFM.log"_s)));
    }
};

} // namespace

TEST(Lignes_DDFM, seuls_les_qso_confirmes_comptent)
{
    const QString oui = Confirme({.dpt = u"77"_s});
    EXPECT_EQ(Collecte({QSO({.dpt = u"76"_s}), oui, u"court"_s}), Textes{oui});
}

TEST(Lignes_DDFM, une_ligne_par_departement_mode_et_bande)
{
    const QString a = Confirme({.dpt = u"77"_s, .mode = u"CW"_s, .bande = u"14 Mhz"_s});
    const QString b = Confirme({.dpt = u"77"_s, .mode = u"CW"_s, .bande = u"7.0 Mhz"_s});
    const QString c = Confirme({.dpt = u"77"_s, .mode = u"SSB"_s, .bande = u"14 Mhz"_s});
    const QString d = Confirme({.dpt = u"78"_s, .mode = u"CW"_s, .bande = u"14 Mhz"_s});
    EXPECT_EQ(Collecte({d, c, b, a, a, c}), (Textes{a, b, c, d}));
}

TEST(Lignes_DDFM, la_premiere_dans_l_ordre_des_lignes_de_travail_reste)
{
    const QString a = Confirme({.ind = u"F1ABC"_s, .dpt = u"77"_s, .date = u"31/12/17"_s});
    const QString b = Confirme({.ind = u"F2ABC"_s, .dpt = u"77"_s, .date = u"01/01/17"_s});
    EXPECT_EQ(Collecte({b, a}), Textes{a});
}

TEST(Lignes_DDFM, les_departements_vides_et_au_dessus_de_95_restent_dehors)
{
    const QString corse = Confirme({.dpt = u"2A"_s});
    const QString dernier = Confirme({.dpt = u"95"_s});
    const QString etranger = Confirme({.dpt = u"ON"_s});
    EXPECT_EQ(Collecte({Confirme({.dpt = u""_s}), Confirme({.dpt = u"96"_s}), Confirme({.dpt = u"97"_s}), corse,
                        dernier, etranger}),
              (Textes{corse, dernier, etranger}));
}

TEST(Lignes_DDFM, chaque_ligne_revient_telle_qu_elle_etait)
{
    const QString ligne = Confirme({.ind = u"F5ABC/P"_s,
                                    .dpt = u"2A"_s,
                                    .prenom = u"ANDRÉ"_s,
                                    .ref = u"2A001R"_s,
                                    .date = u"26/09/15"_s,
                                    .heure = u"00:01"_s,
                                    .mode = u"PSK"_s,
                                    .bande = u"1.8 Mhz"_s,
                                    .rstr = u"599"_s,
                                    .rste = u"589"_s,
                                    .nom = u"C. DE L'ÎLE ÉTROITE DU GRAND L"_s});
    EXPECT_EQ(Collecte({ligne}), Textes{ligne});
}

TEST(Lignes_DDFM, comme_une_carte_des_premieres_lignes)
{
    Logs_Au_Hasard hasard(95);
    for (int essai = 0; essai < 50; ++essai) {
        Textes lignes = hasard.Log(120);
        for (QString &ligne : lignes)
            ligne.replace(13, 2, hasard.Nombre(9) ? u"0"_s + QString::number(hasard.Nombre(4)) : u"97"_s);
        std::map<QString, QString> premieres;
        for (const QString &ligne : lignes) {
            if (!ligne.endsWith(u'*') || ligne.sliced(13, 2) == u"97")
                continue;
            const QString cle = ligne.sliced(13, 2) + ligne.sliced(59, 3) + ligne.sliced(63, 7);
            const QString ordre = (ligne.first(13) + ligne.sliced(18, 41) + ligne.last(40)).toUpper();
            const auto place = premieres.find(cle);
            if (place == premieres.end() ||
                ordre < (place->second.first(13) + place->second.sliced(18, 41) + place->second.last(40)).toUpper())
                premieres[cle] = ligne;
        }
        Textes attendues;
        for (const auto &[cle, ligne] : premieres)
            attendues.push_back(ligne);
        ASSERT_EQ(Collecte(lignes), attendues);
    }
}

TEST_F(Collecte_Du_Poste, tous_les_logs_comptent_aussi_le_sien_et_les_challenges_sans_annee)
{
    const QString a = Confirme({.dpt = u"01"_s, .ref = u"01001A"_s});
    const QString b = Confirme({.dpt = u"02"_s});
    const QString c = Confirme({.dpt = u"03"_s, .ref = u"151"_s});
    Pose(u"Ch_DFCF", {a});
    Pose(u"DDFM", {b, QSO({.dpt = u"04"_s})});
    Pose(u"WLF", {c});
    Collecte_DDFM(essai.poste);
    EXPECT_EQ(Log(), (Textes{a, b, c}));
    EXPECT_TRUE(essai.boites.messages.empty());
    EXPECT_EQ(essai.ecran.liste.size(), 3U);
    EXPECT_EQ(essai.ecran.appels.back(), u"Selectionne_Derniere"_s);
}

TEST_F(Collecte_Du_Poste, des_logs_vides_donnent_un_log_vide)
{
    Collecte_DDFM(essai.poste);
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_DDFM.log"_s), QByteArray());
    EXPECT_EQ(essai.ecran.selection, QString());
}

TEST_F(Collecte_Du_Poste, deux_fois_ne_change_rien)
{
    Logs_Au_Hasard hasard(3);
    for (const QStringView code : codes_diplome)
        Pose(code, hasard.Log(40));
    Collecte_DDFM(essai.poste);
    const Textes une_fois = Log();
    EXPECT_FALSE(une_fois.empty());
    Collecte_DDFM(essai.poste);
    EXPECT_EQ(Log(), une_fois);
}

TEST_F(Collecte_Du_Poste, un_log_manquant_est_fatal_et_rien_n_est_ecrit)
{
    const Textes anciennes{QSO({.dpt = u"04"_s})};
    Pose(u"DDFM", anciennes);
    essai.dossier.Supprime(u"F9ZZY_WLF.log"_s);
    EXPECT_THROW(Collecte_DDFM(essai.poste), Erreur_Execution);
    EXPECT_EQ(Log(), anciennes);
}
