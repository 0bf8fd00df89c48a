#include "Listes_Essai.h"
#include "listes/Download.h"
#include "listes/Maj_Liste.h"
#include "plateforme/Erreur_Execution.h"

using namespace Qt::StringLiterals;

namespace {

const QString pas_d_acces = u"Attention pas d'acces à Internet"_s;

const Maj &Ligne(const QString &menu)
{
    for (const Maj &maj : Majs_Liste())
        if (maj.menu == menu)
            return maj;
    throw std::runtime_error("no such entry");
}

struct Mise_A_Jour : ::testing::Test {
    Poste_Essai essai;

    Mise_A_Jour()
    {
        essai.reglages.Ecrit(u"Serveurs"_s, u"Programme"_s, u"vorlain.test"_s);
        essai.reglages.Ecrit(u"Serveurs"_s, u"DOHF"_s, u"dohf.test:8080"_s);
        essai.reglages.Ecrit(u"Serveurs"_s, u"PC"_s, u"pc.test"_s);
    }
    void Sert(const QString &adresse, const QByteArray &corps) { essai.telechargement.corps[adresse] = corps; }
    [[nodiscard]] QString Retenue(const QString &cle) const
    {
        return essai.reglages.Lit(u"Setup F9ZZY"_s, cle, u"(not written)"_s);
    }
    std::vector<QString> Messages() { return std::exchange(essai.boites.messages, {}); }
};

struct Attente {
    const char16_t *menu;
    const char16_t *adresse;
    const char16_t *fichier;
    const char16_t *cle;
    const char16_t *defaut;
    const char *premiere_ligne;
    const char16_t *revision;
    const char16_t *identique;
    const char16_t *differente;
};

// clang-format off
const Attente attentes[] = {
    {u"Mnu_Maj_DOHF", u"http://dohf.test:8080/files/Liste_Ouvrages.csv", u"Liste_Ouvrages.csv", u"Revision_Liste_DOHF", u"Rev 000 01/01/12", "Rev 7 \xE9;x;", u"Rev 7 é", u"La liste est à la derniere révision   (Rev 7 é)", u"La liste des sites à été mise à jour   Rev 7 é"},
    {u"Mnu_Maj_TDC", u"http://vorlain.test/Vorlain_TDC/Liste_TDC.csv", u"Liste_TDC.csv", u"Revision_Liste_TDC", u"Rev 000 01/01/12", "Rev 012 01/01/20;;", u"Rev 012 01/01/20", u"La liste est à la derniere révision   (Rev 012 01/01/20)", u"La liste des tours à été mise à jour Rev 012 01/01/20"},
    {u"Mnu_Maj_WFF", u"http://vorlain.test/Vorlain_WFF/Liste_FFF.csv", u"Liste_FFF.csv", u"Revision_Liste_WFF", u"Rev 000 du 01/01/12", "Rev 017 du 01/01/20;;", u"Rev 017 du 01/01/20", u"La liste est à la derniere révision   (Rev 017 du 01/01/20)", u"La liste des sites à été mise à jour Rev 017 du 01/01/20"},
    {u"Mnu_Maj_DFCF", u"http://vorlain.test/Vorlain_DFCF/Liste_DFCF.csv", u"Liste_DFCF.csv", u"Revision_Liste_DFCF", u"Rev 000 du 01/01/12", "Rev 017 du 01/01/20 et la suite", u"Rev 017 du 01/01/20", u"La liste des Chateaux est à la derniere révision   (Rev 017 du 01/01/20)", u"La liste des Chateaux à été mise à jour Rev 017 du 01/01/20"},
    {u"Mnu_Maj_DCF", u"http://vorlain.test/Vorlain_DCF/Liste_DCF.csv", u"Liste_DCF.csv", u"Revision_Liste_DCF", u"Rev 000 du 01/01/12", "court;", u"court;", u"La liste des Cathédrales est à la derniere révision   (court;)", u"La liste des Cathédrales à été mise à jour court;"},
    {u"Mnu_Maj_DPLF", u"http://vorlain.test/Vorlain_DPLF/Liste_DPLF.txt", u"Liste_DPLF.txt", u"Revision_Liste_DPLF", u"Rev 000 du 01/01/12", "Rev 017 du 01/01/20; et la suite", u"Rev 017 du 01/01/20; et la suite", u"La liste des Phares est à la derniere révision   (Rev 017 du 01/01/20; et la suite)", u"La liste des Phares à été mise à jour Rev 017 du 01/01/20; et la suite"},
    {u"Mnu_Maj_PC", u"http://pc.test/files/Liste_PC.csv", u"Liste_PC.csv", u"Revision_Liste_PC", u"Rev 000 01/01/12", "sans separateur", u"sans separateur", u"La liste des Patrimoines est à la derniere révision   (sans separateur)", u"La liste des Patrimoines à été mise à jour   sans separateur"},
};
// clang-format on

QString Texte(const char16_t *texte)
{
    return QString::fromUtf16(texte);
}

} // namespace

TEST_F(Mise_A_Jour, chaque_liste_a_son_adresse_sa_revision_et_ses_textes)
{
    ASSERT_EQ(Majs_Liste().size(), std::size(attentes));
    for (std::size_t rang = 0; rang < std::size(attentes); ++rang) {
        const Attente &attente = attentes[rang];
        const Maj &maj = Majs_Liste()[rang];
        EXPECT_EQ(maj.menu, Texte(attente.menu));
        const QByteArray corps = QByteArray(attente.premiere_ligne) + "\r\nune ligne\r\n";
        Sert(Texte(attente.adresse), corps);

        Maj_Liste(essai.poste, maj);
        EXPECT_EQ(Messages(), std::vector{Texte(attente.differente)});
        EXPECT_EQ(essai.fichiers.Octets(Texte(attente.fichier)), corps);
        EXPECT_EQ(Retenue(Texte(attente.cle)), Texte(attente.revision));

        Maj_Liste(essai.poste, maj);
        EXPECT_EQ(Messages(), std::vector{Texte(attente.identique)}) << "a second update on the same day";
        EXPECT_EQ(Retenue(Texte(attente.cle)), Texte(attente.revision));
    }
}

TEST_F(Mise_A_Jour, le_defaut_du_reglage_est_une_revision_comme_une_autre)
{
    for (const Attente &attente : attentes) {
        Sert(Texte(attente.adresse), Texte(attente.defaut).toLatin1() + "\r\n");
        Maj_Liste(essai.poste, Ligne(Texte(attente.menu)));
        const QString message = Messages().at(0);
        EXPECT_TRUE(message.endsWith(u"("_s + Texte(attente.defaut) + u')')) << message.toStdString();
    }
}

TEST_F(Mise_A_Jour, une_revision_plus_ancienne_est_dite_nouvelle)
{
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Revision_Liste_TDC"_s, u"Rev 012 01/01/20"_s);
    Sert(u"http://vorlain.test/Vorlain_TDC/Liste_TDC.csv"_s, "Rev 011 01/01/19;\r\n");
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_TDC"_s));
    EXPECT_EQ(Messages(), std::vector{u"La liste des tours à été mise à jour Rev 011 01/01/19"_s});
}

TEST_F(Mise_A_Jour, dix_neuf_caracteres_seuls_comptent_pour_dfcf)
{
    essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Revision_Liste_DFCF"_s, u"Rev 017 du 01/01/20"_s);
    Sert(u"http://vorlain.test/Vorlain_DFCF/Liste_DFCF.csv"_s, "Rev 017 du 01/01/20 corrigee;;;;;\r\n");
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_DFCF"_s));
    EXPECT_EQ(Messages(), std::vector{u"La liste des Chateaux est à la derniere révision   (Rev 017 du 01/01/20)"_s});
}

TEST_F(Mise_A_Jour, la_revision_est_retenue_par_station)
{
    Sert(u"http://vorlain.test/Vorlain_TDC/Liste_TDC.csv"_s, "Rev 012 01/01/20;\r\n");
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_TDC"_s));
    essai.etat.station.indicatif = u"F1ABC_P"_s;
    Messages();
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_TDC"_s));
    EXPECT_EQ(Messages(), std::vector{u"La liste des tours à été mise à jour Rev 012 01/01/20"_s});
    EXPECT_EQ(essai.reglages.Lit(u"Setup F1ABC_P"_s, u"Revision_Liste_TDC"_s, {}), u"Rev 012 01/01/20"_s);
}

TEST_F(Mise_A_Jour, sans_reseau_ni_liste_la_revision_est_vide)
{
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_PC"_s));
    EXPECT_EQ(Messages(), (std::vector{pas_d_acces, u"La liste des Patrimoines à été mise à jour   "_s}));
    EXPECT_EQ(Retenue(u"Revision_Liste_PC"_s), u""_s);
    EXPECT_TRUE(essai.fichiers.Fichiers().isEmpty());
}

TEST_F(Mise_A_Jour, sans_reseau_l_ancienne_liste_est_dite)
{
    essai.fichiers.Pose(u"Liste_PC.csv"_s, "Rev 003 01/01/18;\r\n");
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_PC"_s));
    EXPECT_EQ(Messages(),
              (std::vector{pas_d_acces, u"La liste des Patrimoines à été mise à jour   Rev 003 01/01/18"_s}));
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_PC"_s));
    EXPECT_EQ(Messages(), (std::vector{pas_d_acces,
                                       u"La liste des Patrimoines est à la derniere révision   (Rev 003 01/01/18)"_s}));
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_PC.csv"_s), "Rev 003 01/01/18;\r\n");
}

TEST_F(Mise_A_Jour, un_hote_vide_n_est_pas_appele)
{
    essai.reglages.Ecrit(u"Serveurs"_s, u"PC"_s, u" "_s);
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_PC"_s));
    EXPECT_EQ(Messages().at(0), pas_d_acces);
    EXPECT_TRUE(essai.telechargement.adresses.empty());
}

TEST_F(Mise_A_Jour, une_page_d_erreur_devient_la_liste_et_sa_revision)
{
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "Rev 003 01/01/18;\r\n8;11;3;A;B;F;;\r\n");
    Sert(u"http://vorlain.test/Vorlain_TDC/Liste_TDC.csv"_s, "<html>404</html>\n");
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_TDC"_s));
    EXPECT_EQ(Messages(), std::vector{u"La liste des tours à été mise à jour <html>404</html>"_s});
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_TDC.csv"_s), "<html>404</html>\n\r\n8;11;3;A;B;F;;\r\n");
}

TEST_F(Mise_A_Jour, un_dossier_a_la_place_de_la_liste_est_passe_sous_silence)
{
    QDir(essai.fichiers.Chemin()).mkdir(u"Liste_TDC.csv"_s);
    Sert(u"http://vorlain.test/Vorlain_TDC/Liste_TDC.csv"_s, "Rev 012 01/01/20;\r\n");
    Maj_Liste(essai.poste, Ligne(u"Mnu_Maj_TDC"_s));
    EXPECT_EQ(Messages(), std::vector{u"La liste des tours à été mise à jour "_s});
    EXPECT_EQ(Retenue(u"Revision_Liste_TDC"_s), u""_s);
}

TEST(Download, un_corps_plus_court_laisse_la_queue_de_l_ancien)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, QByteArray("0123456789\xFF\0z", 13));
    essai.telechargement.corps[u"http://x/y"_s] = QByteArray("ab\0\xE9", 4);
    Download(essai.poste, u"http://x/y"_s, u"Liste_TDC.csv"_s, Sorte_Fichier::Liste);
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_TDC.csv"_s), QByteArray("ab\0\xE9"
                                                                    "456789\xFF\0z",
                                                                    13));
    EXPECT_EQ(essai.fichiers.Fichiers(), QStringList{u"Liste_TDC.csv"_s}) << "no temporary file stays";
}

TEST(Download, un_corps_plus_long_couvre_tout)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "0123");
    essai.telechargement.corps[u"http://x/y"_s] = "abcdef";
    Download(essai.poste, u"http://x/y"_s, essai.fichiers.Chemin(u"Liste_TDC.csv"_s), Sorte_Fichier::Version);
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_TDC.csv"_s), "abcdef");
}

TEST(Download, sans_corps_le_fichier_reste_et_l_operateur_est_prevenu)
{
    Poste_Essai essai;
    essai.fichiers.Pose(u"Liste_TDC.csv"_s, "0123");
    Download(essai.poste, u"http://x/y"_s, u"Liste_TDC.csv"_s, Sorte_Fichier::Liste);
    EXPECT_EQ(essai.boites.messages, std::vector{pas_d_acces});
    EXPECT_EQ(essai.fichiers.Octets(u"Liste_TDC.csv"_s), "0123");
}

TEST(Download, un_disque_qui_refuse_est_un_echec)
{
    Poste_Essai essai;
    QDir(essai.fichiers.Chemin()).mkdir(u"Liste_TDC.csv"_s);
    essai.telechargement.corps[u"http://x/y"_s] = "abcdef";
    EXPECT_THROW(Download(essai.poste, u"http://x/y"_s, u"Liste_TDC.csv"_s, Sorte_Fichier::Liste), Erreur_Execution);
}
