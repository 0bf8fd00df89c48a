#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "plateforme/Erreur_Execution.h"
#include "programme/Application.h"

#include <QLocale>
#include <QStyle>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Fails when a click reaches it.
class Bouton_En_Echec : public QAbstractButton {
public:
    Bouton_En_Echec()
    {
        connect(this, &QAbstractButton::clicked, this,
                [] { throw Erreur_Execution(Cause::Disque_Plein, u"le disque est plein"_s); });
    }

protected:
    void paintEvent(QPaintEvent *) override {}
};

} // namespace

TEST(L_Application, parle_francais_sous_un_style_qui_suit_les_palettes)
{
    EXPECT_EQ(QLocale().language(), QLocale::French);
    EXPECT_EQ(QLocale().territory(), QLocale::France);
    EXPECT_EQ(QApplication::style()->name(), u"fusion"_s);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Annuler"_s);
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts)) << "the web engine needs it";
}

TEST(L_Application, un_echec_dans_un_evenement_finit_le_programme_sur_son_rapport)
{
    Bouton_En_Echec bouton;
    EXPECT_EXIT(conduite::Repond({}, [&] { QTest::keyClick(&bouton, Qt::Key_Space); }), ::testing::ExitedWithCode(1),
                "Erreur d'ex.*le disque est plein");
}

TEST(L_Application, le_rapport_est_une_boite_puis_une_fin_au_statut_1)
{
    EXPECT_EXIT({ conduite::Repond({}, [] { Termine_Sur(Erreur_Execution(Cause::Type, u"le texte \"A\""_s)); }); },
                ::testing::ExitedWithCode(1), "Erreur d'ex.*le texte \"A\"");
}
