#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "plateforme/Vue_Web.h"
#include "reseau/Serveur_Http.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int attente = 20'000;
/// Long enough for what must not come.
constexpr int rien_ne_vient = 700;

/// Two servers of one machine: the engine takes the first for one of the wide web, under the name exemple.test too.
struct Serveurs {
    Serveur_Http loin;
    Serveur_Http ici;
};
std::unique_ptr<Serveurs> serveurs;

/// The engine reads its flags once, whichever test starts it.
class Preparation : public ::testing::Environment {
public:
    void SetUp() override
    {
        serveurs = std::make_unique<Serveurs>();
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--host-resolver-rules=\"MAP exemple.test 127.0.0.1\" "
                                              "--ip-address-space-overrides=" +
                                                  serveurs->loin.Hote().toLatin1() + "=public");
    }
    void TearDown() override { serveurs.reset(); }
};
const auto *const preparation = ::testing::AddGlobalTestEnvironment(new Preparation);

struct Vue_Reelle : ::testing::Test {
    Serveur_Http &serveur = serveurs->loin;
    Serveur_Http &ici = serveurs->ici;
    QWidget ecran;
    std::unique_ptr<Vues_Web> vues = Vues_Web_Du_Programme();
    std::unique_ptr<Vue_Web> vue = vues->Nouvelle(&ecran);

    Vue_Reelle()
    {
        serveur.demandes.clear();
        ici.demandes.clear();
        ecran.resize(400, 300);
        vue->Controle()->resize(400, 300);
        ecran.show();
    }

    void Page(const QString &chemin, const QByteArray &corps, const QByteArray &entetes = {}) const
    {
        Page_De(serveur, chemin, corps, entetes);
    }
    static void Page_De(Serveur_Http &hote, const QString &chemin, const QByteArray &corps,
                        const QByteArray &entetes = {})
    {
        hote.Joue(chemin, [=](QTcpSocket &prise) {
            prise.write("HTTP/1.1 200 OK\r\nContent-Type: text/html; charset=utf-8\r\n" + entetes + "Content-Length: " +
                        QByteArray::number(corps.size()) + "\r\nConnection: close\r\n\r\n" + corps);
            prise.disconnectFromHost();
        });
    }
    /// The address of a path under the name that is not local.
    [[nodiscard]] QString Au_Loin(const QString &chemin) const
    {
        return u"http://exemple.test:"_s + serveur.Hote().section(u':', 1) + chemin;
    }
    [[nodiscard]] QWebEnginePage &Moteur() const { return *vue->Controle()->findChild<QWebEngineView *>()->page(); }
    [[nodiscard]] QString Texte() const
    {
        QString texte;
        bool recu = false;
        Moteur().toPlainText([&](const QString &lu) {
            texte = lu;
            recu = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return recu; }, attente));
        return texte.trimmed();
    }
    [[nodiscard]] bool Montre(const QString &texte) const
    {
        return QTest::qWaitFor([&] { return Texte() == texte; }, attente);
    }
    [[nodiscard]] bool Demande(const QByteArray &chemin) const { return Demande_A(serveur, chemin); }
    [[nodiscard]] static bool Demande_A(const Serveur_Http &serveur, const QByteArray &chemin)
    {
        return std::any_of(serveur.demandes.begin(), serveur.demandes.end(), [&](const QByteArray &demande) {
            return demande.startsWith(QByteArray("GET " + chemin + ' '));
        });
    }
    /// A click of the mouse in the middle of the page, once the engine has painted it.
    void Clique() const
    {
        QTest::qWait(300);
        QWidget *cible = Moteur().parent() ? vue->Controle()->findChild<QWebEngineView *>()->focusProxy() : nullptr;
        ASSERT_TRUE(cible);
        QTest::mouseClick(cible, Qt::LeftButton, {}, cible->rect().center());
    }
    static QByteArray Lien(const QByteArray &adresse, const QByteArray &attributs = {})
    {
        return "<a " + attributs + " style='position:fixed;inset:0' href='" + adresse + "'>lien</a>";
    }
};

} // namespace

TEST_F(Vue_Reelle, montre_une_page_d_un_serveur)
{
    Page(u"/a"_s, "<p>bonjour é</p>");
    vue->Navigue(serveur.Adresse(u"/a"_s));
    EXPECT_TRUE(Montre(QString::fromUtf8("bonjour é")));
    EXPECT_TRUE(serveur.demandes.front().contains("Accept-Language: fr"));
}

TEST_F(Vue_Reelle, montre_un_texte_puis_de_nouveau_une_page)
{
    vue->Dit(u"<b>pas de page</b>"_s);
    const auto *texte = vue->Controle()->findChild<QLabel *>();
    EXPECT_TRUE(texte->isVisible());
    EXPECT_EQ(texte->text(), u"<b>pas de page</b>"_s);
    EXPECT_EQ(texte->textFormat(), Qt::PlainText);
    Page(u"/a"_s, "page");
    vue->Navigue(serveur.Adresse(u"/a"_s));
    EXPECT_FALSE(texte->isVisible());
    EXPECT_TRUE(Montre(u"page"_s));
}

TEST_F(Vue_Reelle, refuse_en_clair_ce_qui_n_est_pas_du_web)
{
    vue->Navigue(u"file:///etc/hostname"_s);
    EXPECT_EQ(vue->Controle()->findChild<QLabel *>()->text(),
              u"Cette adresse n'est pas celle d'une page web : file:///etc/hostname"_s);
}

TEST_F(Vue_Reelle, un_lien_s_ouvre_dans_la_vue)
{
    Page(u"/a"_s, Lien("/b"));
    Page(u"/b"_s, "suite");
    vue->Navigue(serveur.Adresse(u"/a"_s));
    ASSERT_TRUE(Montre(u"lien"_s));
    Clique();
    EXPECT_TRUE(Montre(u"suite"_s));
}

TEST_F(Vue_Reelle, un_lien_vers_une_autre_fenetre_s_ouvre_aussi_dans_la_vue)
{
    Page(u"/a"_s, Lien("/b", "target=_blank"));
    Page(u"/b"_s, "suite");
    vue->Navigue(serveur.Adresse(u"/a"_s));
    ASSERT_TRUE(Montre(u"lien"_s));
    const qsizetype fenetres = QApplication::topLevelWidgets().size();
    Clique();
    EXPECT_TRUE(Montre(u"suite"_s));
    EXPECT_EQ(QApplication::topLevelWidgets().size(), fenetres);
}

TEST_F(Vue_Reelle, un_script_n_ouvre_ni_fenetre_ni_boite)
{
    Page(u"/a"_s, "<p>page</p><script>window.open('/popup');alert('x');"
                  "document.querySelector('p').textContent = confirm('x') + ' ' + prompt('x')</script>");
    Page(u"/popup"_s, "popup");
    vue->Navigue(serveur.Adresse(u"/a"_s));
    EXPECT_TRUE(Montre(u"false null"_s));
    QTest::qWait(rien_ne_vient);
    EXPECT_FALSE(Demande("/popup"));
}

TEST_F(Vue_Reelle, un_telechargement_ne_laisse_rien)
{
    const QTemporaryDir dossier;
    Moteur().profile()->setDownloadPath(dossier.path());
    Page(u"/a"_s, Lien("/fichier"));
    Page(u"/fichier"_s, "contenu", "Content-Disposition: attachment; filename=vorlain_essai.txt\r\n");
    vue->Navigue(serveur.Adresse(u"/a"_s));
    ASSERT_TRUE(Montre(u"lien"_s));
    Clique();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Demande("/fichier"); }, attente));
    QTest::qWait(rien_ne_vient);
    EXPECT_TRUE(QDir(dossier.path()).isEmpty());
    EXPECT_EQ(Texte(), u"lien"_s);
}

TEST_F(Vue_Reelle, une_page_lointaine_n_atteint_pas_la_machine)
{
    const QByteArray secret = ici.Adresse(u"/secret"_s).toLatin1();
    Page(u"/vu"_s, "vu");
    serveur.Renvoie(u"/renvoi"_s, ici.Adresse(u"/secret?renvoi"_s));
    Page(u"/a"_s, "<p>page</p><img src='" + secret + "?image'><img src='/renvoi'><iframe src='" + secret +
                      "?cadre'></iframe><script>fetch('" + secret +
                      "?script', {mode: 'no-cors'}).catch(() => 0);fetch('/vu');setTimeout(() => location = '" +
                      secret + "?page', 100)</script>");
    vue->Navigue(Au_Loin(u"/a"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Demande("/vu") && Demande("/renvoi"); }, attente));
    QTest::qWait(rien_ne_vient);
    EXPECT_EQ(ici.demandes, std::vector<QByteArray>());
    EXPECT_EQ(Moteur().url().host(), u"exemple.test"_s);
}

TEST_F(Vue_Reelle, une_page_locale_peut_s_atteindre_elle_meme)
{
    Page(u"/a"_s, "<p>page</p><img src='/image'><iframe src='/cadre'></iframe>");
    vue->Navigue(serveur.Adresse(u"/a"_s));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Demande("/image") && Demande("/cadre"); }, attente));
}

TEST_F(Vue_Reelle, une_redirection_lointaine_ne_mene_pas_a_la_machine)
{
    serveur.Renvoie(u"/a"_s, ici.Adresse(u"/secret"_s));
    vue->Navigue(Au_Loin(u"/a"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Demande("/a"); }, attente));
    QTest::qWait(rien_ne_vient);
    EXPECT_EQ(ici.demandes, std::vector<QByteArray>());
}

TEST_F(Vue_Reelle, une_redirection_entre_pages_du_web_est_suivie)
{
    Page(u"/b"_s, "suite");
    serveur.Renvoie(u"/a"_s, u"/b"_s);
    vue->Navigue(Au_Loin(u"/a"_s));
    EXPECT_TRUE(Montre(u"suite"_s));
}

TEST_F(Vue_Reelle, une_redirection_commencee_d_une_page_locale_mene_a_la_machine)
{
    Page_De(ici, u"/a"_s, Lien("/renvoi"));
    ici.Renvoie(u"/renvoi"_s, ici.Adresse(u"/b"_s));
    Page_De(ici, u"/b"_s, "suite");
    vue->Navigue(ici.Adresse(u"/a"_s));
    ASSERT_TRUE(Montre(u"lien"_s));
    Clique();
    EXPECT_TRUE(Montre(u"suite"_s));
}

TEST_F(Vue_Reelle, une_redirection_locale_que_le_programme_demande_est_suivie_de_toute_page)
{
    ici.Renvoie(u"/renvoi"_s, ici.Adresse(u"/b"_s));
    Page_De(ici, u"/b"_s, "suite");
    Page(u"/loin"_s, "loin");
    for (const bool d_abord_loin : {false, true}) {
        if (d_abord_loin) {
            vue->Navigue(Au_Loin(u"/loin"_s));
            ASSERT_TRUE(Montre(u"loin"_s));
        }
        vue->Navigue(ici.Adresse(u"/renvoi"_s));
        EXPECT_TRUE(Montre(u"suite"_s));
    }
}

TEST_F(Vue_Reelle, url_suit_la_page_et_se_vide_avec_un_texte)
{
    const auto url = [&] { return vue->Controle()->property("url").toUrl(); };
    EXPECT_EQ(url(), QUrl());
    Page(u"/a"_s, Lien("/b"));
    Page(u"/b"_s, "suite");
    vue->Navigue(serveur.Adresse(u"/a"_s));
    EXPECT_EQ(url(), QUrl(serveur.Adresse(u"/a"_s)));
    ASSERT_TRUE(Montre(u"lien"_s));
    EXPECT_EQ(url(), QUrl(serveur.Adresse(u"/a"_s)));
    Clique();
    ASSERT_TRUE(Montre(u"suite"_s));
    EXPECT_EQ(url(), QUrl(serveur.Adresse(u"/b"_s)));
    vue->Dit(u"pas de page"_s);
    EXPECT_EQ(url(), QUrl());
}

TEST_F(Vue_Reelle, un_lien_vers_un_fichier_ne_mene_nulle_part)
{
    Page(u"/a"_s, Lien("file:///etc/hostname"));
    vue->Navigue(serveur.Adresse(u"/a"_s));
    ASSERT_TRUE(Montre(u"lien"_s));
    Clique();
    QTest::qWait(rien_ne_vient);
    EXPECT_EQ(Moteur().url(), QUrl(serveur.Adresse(u"/a"_s)));
}

TEST_F(Vue_Reelle, sans_reponse_montre_la_page_d_erreur_du_moteur)
{
    QSignalSpy fini(&Moteur(), &QWebEnginePage::loadFinished);
    vue->Navigue(serveur.Adresse(u"/absente"_s));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !fini.isEmpty(); }, attente));
    EXPECT_FALSE(fini.first().first().toBool());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Texte().isEmpty(); }, attente));
}
