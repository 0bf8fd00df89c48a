#include "faux/Donnees_Essai.h"
#include "faux/Impression.h"
#include "log/Catalogue.h"
#include "log/Historique.h"
#include "log/Ligne_Affichage.h"
#include "log/Notice.h"

#include <gtest/gtest.h>

#include <span>

using namespace Qt::StringLiterals;

namespace {

QString Ou_Inchange(std::optional<QStringView> texte)
{
    return texte ? texte->toString() : u"(inchangé)"_s;
}

/// One line a code: code, frame, two buttons, two labels, word before the reference.
QString Habillages()
{
    QString texte;
    for (const Diplome diplome : tous_les_diplomes) {
        const Habillage *habillage = &Notice_De(diplome).habillage;
        const QStringList champs{Code(diplome).toString(),      habillage->frame3.toString(),
                                 habillage->detail.toString(),  Ou_Inchange(habillage->detail_1),
                                 Ou_Inchange(habillage->nom_l), habillage->label1.toString().replace(u'\n', u"\\n"_s),
                                 habillage->type_ref.toString()};
        texte += champs.join(u'|') + u'\n';
    }
    return texte;
}

QString Enumere(std::span<const QStringView> textes)
{
    QStringList liste;
    for (const QStringView texte : textes)
        liste += texte.toString();
    return liste.join(u", "_s);
}

} // namespace

TEST(Catalogue, les_21_diplomes_habillent_l_ecran)
{
    EXPECT_EQ(Habillages().toUtf8(), Attendu(u"habillages.txt"_s));
}

TEST(Catalogue, les_listes_fixes_sont_dans_leur_ordre)
{
    const QString texte = u"bandes: " + Enumere(bandes) + u"\nmodes: " + Enumere(modes) + u"\ncodes: " +
                          Enumere(codes_diplome) + u"\nentete: " + entete_liste_qso + u'\n';
    EXPECT_EQ(texte.toUtf8(), Attendu(u"listes_fixes.txt"_s));
}

TEST(Catalogue, les_deux_challenges_ont_une_annee)
{
    for (const QStringView code : codes_diplome)
        EXPECT_EQ(Est_Challenge(Diplome_De(code)), code.startsWith(u"Ch_"));
}

TEST(Historique, chaque_version_derriere_un_saut_de_ligne)
{
    EXPECT_EQ(Historique().toUtf8(), Attendu(u"historique.txt"_s));
    EXPECT_EQ(version_vorlain, u"V1.2.5c");
}

TEST(Diplome_De, un_code_se_reconnait_dans_toute_casse)
{
    for (const Diplome diplome : tous_les_diplomes) {
        const QString code = Code(diplome).toString();
        for (const QString &texte : {code, code.toUpper(), code.toLower()})
            EXPECT_EQ(Diplome_De(texte), diplome);
    }
    for (const QString &texte : {u""_s, u"dfc"_s, u"DFCF "_s, u"DXCC"_s})
        EXPECT_EQ(Diplome_De(texte), std::nullopt);
}
