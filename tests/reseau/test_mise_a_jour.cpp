#include "Serveur_Http.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "listes/Maj_Liste.h"
#include "listes/Nouvelle_Revision.h"
#include "plateforme/qt/Telechargement_Qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString chemin = u"/Vorlain_TDC/Liste_TDC.csv"_s;
const QString pas_d_acces = u"Attention pas d'acces à Internet"_s;
const QByteArray ancienne = "Rev 003 01/01/18;;;;;;;\r\n8;11;3;A;B;F;;\r\n";

/// The update of the towers' list from a real server, on real files.
struct Mise_A_Jour_Http : ::testing::Test {
    Serveur_Http serveur;
    Telechargement_Qt telechargement{{.silence_ms = 500, .total_ms = 10000}};
    Poste_Essai essai;
    Poste poste{{essai.dossier, essai.reglages, essai.horloge, essai.boites, essai.ecrans, essai.imprimante,
                 telechargement, essai.vues_web},
                essai.etat,
                essai.ecran};

    Mise_A_Jour_Http()
    {
        essai.reglages.Ecrit(u"Serveurs"_s, u"Programme"_s, serveur.Hote());
        essai.reglages.Ecrit(u"Setup F9ZZY"_s, u"Revision_Liste_TDC"_s, u"Rev 003 01/01/18"_s);
        essai.fichiers.Pose(u"Liste_TDC.csv"_s, ancienne);
    }
    std::vector<QString> Met_A_Jour()
    {
        essai.boites.messages.clear();
        Maj_Liste(poste, Majs_Liste()[1]);
        return essai.boites.messages;
    }
    [[nodiscard]] QByteArray Liste() const { return essai.fichiers.Octets(u"Liste_TDC.csv"_s); }
    [[nodiscard]] QString Retenue() const { return essai.reglages.Lit(u"Setup F9ZZY"_s, u"Revision_Liste_TDC"_s, {}); }
    /// The old list and its revision are as they were, and the operator was told.
    void Attend_Rien_De_Neuf()
    {
        EXPECT_EQ(Met_A_Jour(),
                  (std::vector{pas_d_acces, u"La liste est à la derniere révision   (Rev 003 01/01/18)"_s}));
        EXPECT_EQ(Liste(), ancienne);
        EXPECT_EQ(Retenue(), u"Rev 003 01/01/18"_s);
    }
};

} // namespace

TEST_F(Mise_A_Jour_Http, la_meme_revision)
{
    serveur.Sert(chemin, ancienne);
    EXPECT_EQ(Met_A_Jour(), std::vector{u"La liste est à la derniere révision   (Rev 003 01/01/18)"_s});
    EXPECT_EQ(Liste(), ancienne);
    EXPECT_EQ(Retenue(), u"Rev 003 01/01/18"_s);
}

TEST_F(Mise_A_Jour_Http, une_autre_revision)
{
    const QByteArray nouvelle = "Rev 004 01/01/19;;;;;;;\r\n8;11;3;A;B;F;;\r\n9;11;3;C;D;F;;\r\n";
    serveur.Sert(chemin, nouvelle);
    EXPECT_EQ(Met_A_Jour(), std::vector{u"La liste des tours à été mise à jour Rev 004 01/01/19"_s});
    EXPECT_EQ(Liste(), nouvelle);
    EXPECT_EQ(Retenue(), u"Rev 004 01/01/19"_s);
    EXPECT_EQ(Met_A_Jour(), std::vector{u"La liste est à la derniere révision   (Rev 004 01/01/19)"_s});
}

TEST_F(Mise_A_Jour_Http, un_corps_plus_court_laisse_les_anciennes_lignes)
{
    serveur.Sert(chemin, "Rev 004 01/01/19;;;;;;;\r\n");
    EXPECT_EQ(Met_A_Jour(), std::vector{u"La liste des tours à été mise à jour Rev 004 01/01/19"_s});
    EXPECT_EQ(Liste(), "Rev 004 01/01/19;;;;;;;\r\n8;11;3;A;B;F;;\r\n");
}

TEST_F(Mise_A_Jour_Http, un_corps_vide)
{
    serveur.Sert(chemin, "");
    Attend_Rien_De_Neuf();
}

TEST_F(Mise_A_Jour_Http, une_page_d_erreur_devient_la_liste)
{
    for (const char *statut : {"404 Not Found", "500 Internal Server Error"}) {
        essai.fichiers.Pose(u"Liste_TDC.csv"_s, ancienne);
        const QByteArray page = QByteArray("<h1>") + statut + "</h1>";
        serveur.Sert(chemin, page, statut);
        const QString tete = QString::fromLatin1(page + ancienne.mid(page.size())).section(u';', 0, 0);
        EXPECT_EQ(Met_A_Jour(), std::vector{QString(u"La liste des tours à été mise à jour "_s + tete)});
        EXPECT_EQ(Liste(), page + ancienne.mid(page.size()));
        EXPECT_EQ(Retenue(), tete);
    }
}

TEST_F(Mise_A_Jour_Http, un_renvoi_mene_a_la_liste)
{
    serveur.Renvoie(chemin, u"/ailleurs"_s);
    serveur.Sert(u"/ailleurs"_s, "Rev 004 01/01/19;;;;;;;\r\n");
    EXPECT_EQ(Met_A_Jour(), std::vector{u"La liste des tours à été mise à jour Rev 004 01/01/19"_s});
}

TEST_F(Mise_A_Jour_Http, une_boucle_de_renvois)
{
    serveur.Renvoie(chemin, chemin);
    Attend_Rien_De_Neuf();
}

TEST_F(Mise_A_Jour_Http, un_transfert_qui_cale)
{
    serveur.Joue(chemin, [](QTcpSocket &prise) {
        prise.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nRev 004 01/01/19;");
    });
    Attend_Rien_De_Neuf();
}

TEST_F(Mise_A_Jour_Http, un_transfert_coupe_pose_ce_qui_est_venu)
{
    serveur.Joue(chemin, [](QTcpSocket &prise) {
        prise.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nRev 004 0");
        prise.disconnectFromHost();
    });
    EXPECT_EQ(Met_A_Jour(), std::vector{u"La liste des tours à été mise à jour Rev 004 01/01/18"_s});
    EXPECT_EQ(Liste(), "Rev 004 0" + ancienne.mid(9));
}

TEST_F(Mise_A_Jour_Http, un_corps_en_morceaux_et_des_octets_nuls)
{
    serveur.Joue(chemin, [](QTcpSocket &prise) {
        prise.write(QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nConnection: close\r\n\r\n") +
                    "5\r\nRev 0\r\n5\r\n04" + QByteArray(1, '\0') + "\xFF;\r\n0\r\n\r\n");
        prise.disconnectFromHost();
    });
    const QString revision = u"Rev 004"_s + QChar(0) + u"ÿ"_s;
    EXPECT_EQ(Met_A_Jour(), std::vector{QString(u"La liste des tours à été mise à jour "_s + revision)});
    EXPECT_EQ(Liste(), "Rev 004" + QByteArray(1, '\0') + "\xFF;" + ancienne.mid(10));
    EXPECT_EQ(Retenue(), revision);
}

TEST_F(Mise_A_Jour_Http, un_serveur_absent)
{
    essai.reglages.Ecrit(u"Serveurs"_s, u"Programme"_s, u"127.0.0.1:1"_s);
    Attend_Rien_De_Neuf();
}

TEST_F(Mise_A_Jour_Http, la_version_publiee)
{
    essai.reglages.Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s);
    serveur.Sert(u"/Vorlain/Version.txt"_s, "V1.3.0\r\n");
    Nouvelle_Revision(poste);
    EXPECT_EQ(essai.boites.messages, std::vector{u"Une nouvelle version de Vorlain est disponible   ( V1.3.0 )"_s});
    EXPECT_FALSE(essai.fichiers.Existe(u"New_Version.txt"_s));
}
