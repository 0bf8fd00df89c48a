#include "programme/Ligne_Commande.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Ligne_Commande Lit(const QStringList &arguments)
{
    return Lit_Ligne_Commande(QStringList{u"vorlain"_s} + arguments);
}

int Statut(const QStringList &arguments)
{
    const Ligne_Commande ligne = Lit(arguments);
    return ligne.reponse ? ligne.reponse->statut : -1;
}

} // namespace

TEST(Ligne_Commande, sans_rien_le_programme_demarre)
{
    const Ligne_Commande ligne = Lit({});
    EXPECT_FALSE(ligne.reponse);
    EXPECT_EQ(ligne.repertoire, QString());
    EXPECT_EQ(ligne.fichier_adif, QString());
}

TEST(Ligne_Commande, aide_et_version_se_lisent_sous_deux_noms)
{
    for (const QString &option : {u"-h"_s, u"--help"_s})
        EXPECT_TRUE(Lit({option}).reponse->texte.startsWith(u"Usage : vorlain")) << option.toStdString();
    for (const QString &option : {u"-v"_s, u"--version"_s})
        EXPECT_EQ(Lit({option}).reponse->texte, u"Vorlain V1.2.5c\n"_s);
    EXPECT_EQ(Statut({u"--help"_s}), 0);
}

TEST(Ligne_Commande, une_option_inconnue_est_nommee)
{
    const Ligne_Commande ligne = Lit({u"--couleur"_s});
    EXPECT_EQ(ligne.reponse->statut, 2);
    EXPECT_TRUE(ligne.reponse->texte.startsWith(u"vorlain : option inconnue : couleur\n"));
}

TEST(Ligne_Commande, une_option_mal_remplie_est_refusee)
{
    EXPECT_EQ(Statut({u"--repertoire"_s}), 2);
    EXPECT_EQ(Statut({u"--repertoire="_s}), 2);
    EXPECT_EQ(Statut({u"--version=3"_s}), 2);
    EXPECT_EQ(Statut({u"a.adi"_s, u"b.adi"_s}), 2);
}

TEST(Ligne_Commande, repertoire_et_fichier_deviennent_des_chemins_complets)
{
    const Ligne_Commande ligne = Lit({u"--repertoire"_s, u"logs"_s, u"mes fichiers/F9ZZY_DFCF.adi"_s});
    EXPECT_FALSE(ligne.reponse);
    EXPECT_EQ(ligne.repertoire, QDir::currentPath() + u"/logs");
    EXPECT_EQ(ligne.fichier_adif, QDir::currentPath() + u"/mes fichiers/F9ZZY_DFCF.adi");
}

TEST(Ligne_Commande, les_options_de_qt_passent)
{
    const Ligne_Commande ligne = Lit({u"-platform"_s, u"offscreen"_s, u"/tmp/a.adi"_s});
    EXPECT_FALSE(ligne.reponse);
    EXPECT_EQ(ligne.fichier_adif, u"/tmp/a.adi"_s);
}
