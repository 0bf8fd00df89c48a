#include "faux/Impression.h"
#include "plateforme/web/Adresses_Permises.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QUrl Url(const char *texte)
{
    return QUrl(QString::fromLatin1(texte));
}

const QUrl loin = Url("http://exemple.fr/page");
const QUrl ici = Url("http://127.0.0.1:8080/page");

} // namespace

TEST(Adresse_Web, une_adresse_du_web_reste_comme_elle_est)
{
    EXPECT_EQ(Adresse_Web(u"http://exemple.fr/a?b=1"_s), Url("http://exemple.fr/a?b=1"));
    EXPECT_EQ(Adresse_Web(u"HTTPS://exemple.fr"_s), Url("https://exemple.fr"));
}

TEST(Adresse_Web, sans_protocole_est_du_http)
{
    EXPECT_EQ(Adresse_Web(u"www.exemple.fr/a"_s), Url("http://www.exemple.fr/a"));
    EXPECT_EQ(Adresse_Web(u"exemple.fr:8080/a"_s), Url("http://exemple.fr:8080/a"));
}

TEST(Adresse_Web, le_blanc_final_ne_la_gate_pas)
{
    const QUrl adresse = Adresse_Web(u"http://exemple.fr/ "_s);
    EXPECT_TRUE(adresse.isValid());
    EXPECT_EQ(adresse.host(), u"exemple.fr"_s);
}

TEST(Adresse_Web, rien_d_autre_n_est_une_adresse_du_web)
{
    for (const QString &texte : {u""_s, u"file:///etc/passwd"_s, u"ftp://exemple.fr/"_s, u"chrome://gpu"_s,
                                 u"/etc/passwd"_s, u"javascript:alert(1)"_s, u"data:text/html,x"_s, u"http://"_s})
        EXPECT_FALSE(Adresse_Web(texte).isValid()) << texte.toStdString();
}

TEST(Est_Locale, la_machine_et_le_reseau_local)
{
    for (const char *texte : {"http://127.0.0.1/",
                              "http://127.9.9.9/",
                              "http://localhost/",
                              "http://LOCALHOST./",
                              "http://a.localhost/",
                              "http://10.1.2.3/",
                              "http://172.16.0.1/",
                              "http://172.31.255.1/",
                              "http://192.168.1.1/",
                              "http://169.254.1.1/",
                              "http://100.64.0.1/",
                              "http://0.0.0.0/",
                              "http://[::1]/",
                              "http://[::]/",
                              "http://[fe80::1]/",
                              "http://[fd00::1]/",
                              "http://[::ffff:127.0.0.1]/",
                              "http://[::ffff:192.168.1.1]/",
                              "http://routeur/",
                              "http://imprimante.local/",
                              "http://2130706433/",
                              "http://0x7f.1/"})
        EXPECT_TRUE(Est_Locale(Url(texte))) << texte;
}

TEST(Est_Locale, pas_le_reste_du_monde)
{
    for (const char *texte : {"http://exemple.fr/", "http://172.32.0.1/", "http://8.8.8.8/", "http://[2001:db8::1]/",
                              "http://localhost.exemple.fr/", "about:blank"})
        EXPECT_FALSE(Est_Locale(Url(texte))) << texte;
}

TEST(Page_Permise, d_une_page_lointaine_jamais_vers_le_local)
{
    EXPECT_TRUE(Page_Permise(Url("https://autre.fr/"), loin));
    EXPECT_FALSE(Page_Permise(ici, loin));
    EXPECT_FALSE(Page_Permise(ici, Url("about:blank")));
    EXPECT_TRUE(Page_Permise(ici, ici));
    EXPECT_TRUE(Page_Permise(loin, ici));
}

TEST(Page_Permise, seulement_vers_le_web)
{
    for (const char *texte : {"file:///etc/passwd", "ftp://exemple.fr/", "mailto:a@b.fr", "data:text/html,x",
                              "chrome://gpu", "blob:http://exemple.fr/x", "about:blank"})
        EXPECT_FALSE(Page_Permise(Url(texte), ici)) << texte;
}

TEST(Contenu_Permis, ce_que_la_page_porte_elle_meme)
{
    EXPECT_TRUE(Contenu_Permis(Url("data:image/png;base64,AA=="), loin));
    EXPECT_TRUE(Contenu_Permis(Url("https://autre.fr/a.png"), loin));
    EXPECT_TRUE(Contenu_Permis(Url("wss://autre.fr/a"), loin));
    EXPECT_FALSE(Contenu_Permis(Url("ws://192.168.1.1/a"), loin));
    EXPECT_FALSE(Contenu_Permis(Url("http://192.168.1.1/a.png"), loin));
    EXPECT_FALSE(Contenu_Permis(Url("file:///etc/hostname"), loin));
}
