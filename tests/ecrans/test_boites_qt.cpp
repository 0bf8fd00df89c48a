#include "faux/Conduite.h"
#include "faux/Impression.h"
#include "plateforme/qt/Boites_Qt.h"

#include <QMessageBox>
#include <QPointer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Runs `action`, and `geste` on the box that it opens.
void Pendant_La_Boite(const std::function<void()> &action, const std::function<void(QMessageBox &)> &geste)
{
    QTimer guetteur;
    guetteur.setInterval(5);
    QObject::connect(&guetteur, &QTimer::timeout, [&] {
        auto *boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!boite)
            return;
        guetteur.stop();
        geste(*boite);
    });
    guetteur.start();
    action();
}

QStringList Boutons(const QMessageBox &boite)
{
    QStringList textes;
    for (const QAbstractButton *bouton : boite.buttons())
        textes << bouton->text();
    return textes;
}

bool Question_Avec(const std::function<void(QMessageBox &)> &geste)
{
    bool reponse = false;
    Pendant_La_Boite([&] { reponse = Boites_Qt().Question(u"Efface ?"_s); }, geste);
    return reponse;
}

} // namespace

TEST(Boites_Qt, un_message_porte_le_nom_du_programme_et_le_bouton_OK)
{
    bool vu = false;
    Pendant_La_Boite([] { Boites_Qt().Message(u"<b>Fini</b> & bien"_s); },
                     [&](QMessageBox &boite) {
                         vu = true;
                         EXPECT_EQ(boite.windowTitle(), u"Vorlain"_s);
                         EXPECT_EQ(boite.icon(), QMessageBox::Information);
                         EXPECT_EQ(boite.textFormat(), Qt::PlainText);
                         EXPECT_EQ(boite.text(), u"<b>Fini</b> & bien"_s);
                         EXPECT_EQ(Boutons(boite), QStringList{u"OK"_s});
                         conduite::Entree(boite);
                     });
    EXPECT_TRUE(vu);
}

TEST(Boites_Qt, une_question_porte_le_nom_du_programme_et_ses_deux_boutons)
{
    Question_Avec([](QMessageBox &boite) {
        EXPECT_EQ(boite.windowTitle(), u"Vorlain"_s);
        EXPECT_EQ(boite.icon(), QMessageBox::Question);
        EXPECT_EQ(boite.textFormat(), Qt::PlainText);
        EXPECT_EQ(boite.text(), u"Efface ?"_s);
        EXPECT_EQ(Boutons(boite), (QStringList{u"Oui"_s, u"Non"_s}));
        boite.reject();
    });
}

TEST(Boites_Qt, oui_est_oui_non_et_echap_sont_non)
{
    EXPECT_TRUE(Question_Avec([](QMessageBox &boite) { boite.buttons()[0]->click(); }));
    EXPECT_FALSE(Question_Avec([](QMessageBox &boite) { boite.buttons()[1]->click(); }));
    EXPECT_FALSE(Question_Avec([](QMessageBox &boite) { QTest::keyClick(&boite, Qt::Key_Escape); }));
}

TEST(Boites_Qt, une_boite_s_en_va_avec_l_ecran_qui_l_a_ouverte)
{
    for (const bool question : {false, true}) {
        const QPointer<QWidget> ecran = new QWidget;
        ecran->show();
        ecran->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ecran));
        bool reponse = false;
        Pendant_La_Boite(
            [&] {
                if (question)
                    reponse = Boites_Qt().Question(u"Efface ?"_s);
                else
                    Boites_Qt().Message(u"Fini"_s);
            },
            [&](QMessageBox &boite) {
                EXPECT_EQ(boite.parentWidget(), ecran);
                delete ecran;
            });
        EXPECT_TRUE(ecran.isNull());
        EXPECT_FALSE(reponse);
    }
}
