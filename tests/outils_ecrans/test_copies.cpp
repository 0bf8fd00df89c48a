#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "log/Garde_Copie.h"
#include "outils/Trie_Log.h"
#include "outils/ecrans/Copies.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using conduite::Trouve;

namespace {

const QString journal = u"F9ZZY_DFCF.log"_s;

class Ecran_Copies : public ::testing::Test {
protected:
    void Pose(const std::vector<QString> &lignes)
    {
        QByteArray octets;
        for (const QString &ligne : lignes)
            octets += ligne.toLatin1() + "\r\n";
        essai.fichiers.Pose(journal, octets);
    }
    /// A sort of these lines, a minute after the last one.
    void Trie(const std::vector<QString> &lignes)
    {
        Pose(lignes);
        Trie_Log(essai.poste);
        essai.horloge.utc = essai.horloge.utc.addSecs(60);
    }
    void Ouvre()
    {
        ecran = new Copies(essai.poste);
        ecran->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ecran));
    }
    void SetUp() override { essai.Ouvre(u"DFCF"_s); }
    ~Ecran_Copies() override { delete ecran; }

    [[nodiscard]] QAbstractItemView &Liste(const QString &nom) const { return *Trouve<QAbstractItemView>(*ecran, nom); }
    [[nodiscard]] std::vector<QString> Lignes(const QString &nom) const { return conduite::Rangees(Liste(nom)); }
    [[nodiscard]] QString Texte(const QString &nom) const { return Trouve<QLabel>(*ecran, nom)->text(); }

    Poste_Essai essai;
    QPointer<Copies> ecran;
    const QString a = QSO({.ref = u"77001"_s, .date = u"01/01/26"_s});
    const QString b = QSO({.ref = u"77002"_s, .date = u"02/01/26"_s});
    const QString c = QSO({.ref = u"77003"_s, .date = u"03/01/26"_s});
};

} // namespace

TEST_F(Ecran_Copies, la_plus_recente_d_abord_et_comparee)
{
    Trie({b, a});
    Trie({c, b, a});
    Pose({a, c, QSO({.ref = u"77009"_s})});
    Ouvre();
    EXPECT_EQ(ecran->windowTitle(), u"Copies de sécurité"_s);
    EXPECT_EQ(Lignes(u"Liste_Copies"_s),
              (std::vector{u"15/11/2026 15:49:30  Tri du log                                3   +1 -1"_s,
                           u"15/11/2026 15:48:30  Tri du log                                2   "_s}));
    EXPECT_EQ(Lignes(u"Liste_Retours"_s), std::vector{Ligne_Affichage(2, b)});
    EXPECT_EQ(Lignes(u"Liste_Departs"_s), std::vector{Ligne_Affichage(3, QSO({.ref = u"77009"_s}))});
    EXPECT_EQ(Texte(u"L_Retours"_s), u"QSO qui reviendraient dans le log : 1"_s);
    EXPECT_EQ(Texte(u"L_Departs"_s), u"QSO qui partiraient du log : 1"_s);
}

TEST_F(Ecran_Copies, une_fleche_compare_la_copie_suivante_et_les_touches_suffisent_pour_revenir)
{
    Trie({b, a});
    Trie({c, b, a});
    Ouvre();
    EXPECT_EQ(ecran->focusWidget(), &Liste(u"Liste_Copies"_s));
    QTest::keyClick(&Liste(u"Liste_Copies"_s), Qt::Key_Down);
    EXPECT_TRUE(Lignes(u"Liste_Copies"_s)[1].endsWith(u"+0 -1"_s));
    for (const QString &nom : {u"Liste_Retours"_s, u"Liste_Departs"_s, u"Revenir"_s}) {
        QTest::keyClick(ecran->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(ecran->focusWidget()->objectName(), nom);
    }
    conduite::Entree(*ecran->focusWidget());
    EXPECT_EQ(essai.fichiers.Octets(journal), (b + u"\r\n" + a + u"\r\n").toLatin1());
    ASSERT_EQ(essai.boites.questions.size(), 1U);
    EXPECT_EQ(essai.boites.questions[0], u"Revenir à la copie du 15/11/2026 15:48:30 (Tri du log) ?\n"
                                         u"0 QSO reviendront dans le log F9ZZY_DFCF.log et 1 QSO en partiront.\n"
                                         u"Le log tel qu'il est sera gardé dans une nouvelle copie."_s);
    EXPECT_EQ(ecran->focusWidget(), &Liste(u"Liste_Copies"_s));
    EXPECT_TRUE(Lignes(u"Liste_Copies"_s)[0].contains(u"Retour à une copie"_s));
}

TEST_F(Ecran_Copies, sans_copie_il_n_y_a_rien_a_reprendre)
{
    Pose({a});
    Ouvre();
    EXPECT_TRUE(Lignes(u"Liste_Copies"_s).empty());
    EXPECT_FALSE(Trouve<QPushButton>(*ecran, u"Revenir"_s)->isEnabled());
}

TEST_F(Ecran_Copies, un_log_disparu_revient)
{
    Trie({b, a});
    QFile::remove(essai.fichiers.Chemin(journal));
    Ouvre();
    EXPECT_TRUE(Lignes(u"Liste_Copies"_s)[0].endsWith(u"+2 -0"_s));
    Trouve<QPushButton>(*ecran, u"Revenir"_s)->click();
    EXPECT_EQ(essai.fichiers.Octets(journal), (b + u"\r\n" + a + u"\r\n").toLatin1());
}

TEST_F(Ecran_Copies, tient_sur_1366x768_et_se_nomme)
{
    Trie({b, a});
    Ouvre();
    EXPECT_LE(ecran->width(), 1366);
    EXPECT_LE(ecran->height(), 768);
    for (const auto *controle : ecran->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        EXPECT_FALSE(controle->objectName().isEmpty());
    for (const QString &nom : {u"Liste_Copies"_s, u"Liste_Retours"_s, u"Liste_Departs"_s})
        EXPECT_FALSE(Liste(nom).accessibleName().isEmpty()) << nom.toStdString();
    if (qEnvironmentVariableIsSet("VORLAIN_IMAGES"))
        ecran->grab().save(qEnvironmentVariable("VORLAIN_IMAGES") + u"/Copies.png");
}
