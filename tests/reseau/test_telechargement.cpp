#include "Serveur_Http.h"
#include "faux/Impression.h"
#include "plateforme/qt/Telechargement_Qt.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString liste = u"/liste"_s;

struct Reseau : ::testing::Test {
    Serveur_Http serveur;
    Telechargement_Qt telechargement{{.silence_ms = 800, .total_ms = 6000, .octets = 1000, .redirections = 20}};

    QByteArray Corps(const QString &chemin = liste) { return telechargement.Corps(serveur.Adresse(chemin)); }
};

QByteArray Tete(const QByteArray &champs)
{
    return "HTTP/1.1 200 OK\r\n" + champs + "\r\n";
}

/// Counts how often a control is painted.
class Peintures : public QObject {
public:
    int nombre = 0;

protected:
    bool eventFilter(QObject *, QEvent *evenement) override
    {
        nombre += evenement->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

TEST_F(Reseau, rend_le_corps_octet_pour_octet)
{
    QByteArray corps;
    for (int octet = 0; octet < 256; ++octet)
        corps += static_cast<char>(octet);
    serveur.Sert(liste, corps);
    EXPECT_EQ(Corps(), corps);
}

TEST_F(Reseau, demande_sans_cache_sous_son_nom_d_agent)
{
    serveur.Sert(liste, "x");
    Corps();
    Corps();
    ASSERT_EQ(serveur.demandes.size(), 2U) << "each fetch asks the server";
    const QByteArray demande = serveur.demandes[0];
    EXPECT_TRUE(demande.startsWith("GET /liste HTTP/1.1\r\n")) << demande.toStdString();
    EXPECT_TRUE(demande.contains("\r\nUser-Agent: VB OpenUrl\r\n")) << demande.toStdString();
    EXPECT_TRUE(demande.contains("no-cache")) << demande.toStdString();
    EXPECT_FALSE(demande.contains("gzip")) << demande.toStdString();
}

TEST_F(Reseau, ne_regarde_pas_le_statut)
{
    for (const char *statut : {"404 Not Found", "500 Internal Server Error", "403 Forbidden", "503 Later"}) {
        serveur.Sert(liste, "<html>erreur</html>", statut);
        EXPECT_EQ(Corps(), "<html>erreur</html>") << statut;
    }
}

TEST_F(Reseau, un_statut_qui_demande_un_mot_de_passe_rend_son_corps)
{
    serveur.Joue(liste, [](QTcpSocket &prise) {
        prise.write("HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"x\"\r\nContent-Length: 3\r\n"
                    "Connection: close\r\n\r\nnon");
        prise.disconnectFromHost();
    });
    EXPECT_EQ(Corps(), "non");
}

TEST_F(Reseau, assemble_un_corps_en_morceaux)
{
    serveur.Joue(liste, [](QTcpSocket &prise) {
        prise.write(Tete("Transfer-Encoding: chunked\r\n") + "3\r\nabc\r\n5\r\ndefgh\r\n0\r\n\r\n");
        prise.disconnectFromHost();
    });
    EXPECT_EQ(Corps(), "abcdefgh");
}

TEST_F(Reseau, un_corps_sans_longueur_finit_avec_la_connexion)
{
    serveur.Joue(liste, [](QTcpSocket &prise) {
        prise.write(Tete("Connection: close\r\n") + "abc");
        prise.disconnectFromHost();
    });
    EXPECT_EQ(Corps(), "abc");
}

TEST_F(Reseau, un_corps_comprime_reste_comme_le_serveur_l_envoie)
{
    serveur.Joue(liste, [](QTcpSocket &prise) {
        prise.write(Tete("Content-Encoding: gzip\r\nContent-Length: 4\r\nConnection: close\r\n") + "\x1F\x8B\x08z");
        prise.disconnectFromHost();
    });
    EXPECT_EQ(Corps(), "\x1F\x8B\x08z");
}

TEST_F(Reseau, une_coupure_laisse_ce_qui_est_venu)
{
    serveur.Joue(liste, [](QTcpSocket &prise) {
        prise.write(Tete("Content-Length: 100\r\n") + "debut");
        prise.disconnectFromHost();
    });
    EXPECT_EQ(Corps(), "debut");
    serveur.Joue(liste, [](QTcpSocket &prise) {
        prise.write(Tete("Transfer-Encoding: chunked\r\n") + "3\r\nabc\r\n5\r\nde");
        prise.disconnectFromHost();
    });
    EXPECT_EQ(Corps(), "abcde");
}

TEST_F(Reseau, un_corps_vide_est_vide)
{
    serveur.Sert(liste, "");
    EXPECT_EQ(Corps(), "");
}

TEST_F(Reseau, une_connexion_fermee_ou_refusee_n_a_pas_de_corps)
{
    EXPECT_EQ(Corps(u"/nulle-part"_s), "");
    QTcpServer ferme;
    ASSERT_TRUE(ferme.listen(QHostAddress::LocalHost));
    const QString adresse = u"http://127.0.0.1:%1/x"_s.arg(ferme.serverPort());
    ferme.close();
    EXPECT_EQ(telechargement.Corps(adresse), "");
}

TEST_F(Reseau, un_silence_trop_long_n_a_pas_de_corps)
{
    serveur.Joue(liste, [](QTcpSocket &) {});
    EXPECT_EQ(Corps(), "");
    serveur.Joue(liste, [](QTcpSocket &prise) { prise.write(Tete("Content-Length: 100\r\n") + "debut"); });
    QElapsedTimer duree;
    duree.start();
    EXPECT_EQ(Corps(), "");
    EXPECT_LT(duree.elapsed(), 5000) << "the limit of the silence, not of the whole";
}

TEST_F(Reseau, des_gouttes_sans_fin_s_arretent_a_la_duree_totale)
{
    serveur.Joue(liste, [](QTcpSocket &prise) {
        prise.write(Tete("Content-Length: 900\r\n"));
        auto *gouttes = new QTimer(&prise);
        QObject::connect(gouttes, &QTimer::timeout, &prise, [&prise] { prise.write("g"); });
        gouttes->start(100);
    });
    Telechargement_Qt bref{{.silence_ms = 800, .total_ms = 1200}};
    QElapsedTimer duree;
    duree.start();
    EXPECT_EQ(bref.Corps(serveur.Adresse(liste)), "");
    EXPECT_GE(duree.elapsed(), 1100);
    EXPECT_LT(duree.elapsed(), 5000);
}

TEST_F(Reseau, des_gouttes_avant_le_silence_tiennent_la_connexion)
{
    serveur.Joue(liste, [](QTcpSocket &prise) {
        prise.write(Tete("Content-Length: 5\r\n"));
        auto *gouttes = new QTimer(&prise);
        QObject::connect(gouttes, &QTimer::timeout, &prise, [&prise] { prise.write("g"); });
        gouttes->start(200);
    });
    EXPECT_EQ(Corps(), "ggggg") << "one second in all, no silence of 800 ms";
}

TEST_F(Reseau, un_corps_trop_gros_n_a_pas_de_corps)
{
    serveur.Sert(liste, QByteArray(1000, 'x'));
    EXPECT_EQ(Corps().size(), 1000);
    serveur.Sert(liste, QByteArray(1001, 'x'));
    EXPECT_EQ(Corps(), "");
}

TEST_F(Reseau, suit_les_renvois_et_rend_le_dernier_corps_quel_que_soit_son_statut)
{
    serveur.Renvoie(liste, u"/deux"_s);
    serveur.Renvoie(u"/deux"_s, serveur.Adresse(u"/trois"_s), "301 Moved Permanently");
    serveur.Renvoie(u"/trois"_s, u"quatre"_s, "307 Temporary Redirect");
    serveur.Renvoie(u"/quatre"_s, u"/cinq"_s, "308 Permanent Redirect");
    serveur.Sert(u"/cinq"_s, "arrivee", "404 Not Found");
    EXPECT_EQ(Corps(), "arrivee");
}

TEST_F(Reseau, vingt_renvois_passent_et_vingt_et_un_non)
{
    for (int pas = 1; pas <= 21; ++pas)
        serveur.Renvoie(u"/r%1"_s.arg(pas), u"/r%1"_s.arg(pas - 1));
    serveur.Sert(u"/r0"_s, "arrivee");
    EXPECT_EQ(Corps(u"/r20"_s), "arrivee");
    EXPECT_EQ(Corps(u"/r21"_s), "");
}

TEST_F(Reseau, une_boucle_de_renvois_n_a_pas_de_corps)
{
    serveur.Renvoie(liste, liste);
    EXPECT_EQ(Corps(), "");
    EXPECT_EQ(serveur.demandes.size(), 21U);
}

TEST_F(Reseau, un_renvoi_hors_de_http_n_a_pas_de_corps)
{
    for (const QString &vers : {u"file:///etc/hostname"_s, u"ftp://127.0.0.1/x"_s, u"data:,x"_s, u"http:///x"_s}) {
        serveur.Renvoie(liste, vers);
        EXPECT_EQ(Corps(), "") << vers.toStdString();
    }
}

TEST_F(Reseau, une_adresse_sans_hote_ou_d_un_autre_genre_ne_part_pas)
{
    for (const QString &adresse : {u""_s, u"http:///liste"_s, u"liste"_s, u"file:///etc/hostname"_s, u"qrc:/x"_s})
        EXPECT_EQ(telechargement.Corps(adresse), "") << adresse.toStdString();
}

TEST_F(Reseau, les_ecrans_sont_peints_sous_un_curseur_occupe)
{
    QPushButton bouton(u"x"_s);
    bouton.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&bouton));
    Peintures peintures;
    bouton.installEventFilter(&peintures);
    bool occupe = false;
    serveur.Joue(liste, [&](QTcpSocket &prise) {
        occupe = QApplication::overrideCursor() && QApplication::overrideCursor()->shape() == Qt::WaitCursor;
        peintures.nombre = 0;
        bouton.update();
        QTimer::singleShot(100, &prise, [&prise] { prise.write(Tete("Content-Length: 1\r\n") + "x"); });
    });
    EXPECT_EQ(Corps(), "x");
    EXPECT_TRUE(occupe);
    EXPECT_GT(peintures.nombre, 0);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}
