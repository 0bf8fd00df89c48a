#include "ecrans/Ecran.h"
#include "ecrans/Nomme.h"
#include "faux/Conduite.h"
#include "faux/Impression.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPointer>
#include <QScreen>

using namespace Qt::StringLiterals;

TEST(Ecran, son_nom_est_son_objet_et_il_part_quand_il_se_ferme)
{
    QPointer<Ecran> ecran = new Ecran(u"Detail_DFCF"_s, u"Un titre"_s);
    EXPECT_EQ(ecran->objectName(), u"Detail_DFCF"_s);
    EXPECT_EQ(ecran->windowTitle(), u"Un titre"_s);
    ecran->show();
    ecran->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(ecran, nullptr);
}

TEST(Ecran, se_centre_sur_le_bureau_et_y_tient)
{
    QWidget fenetre;
    const QRect bureau = fenetre.screen()->availableGeometry();
    auto *grand = new QWidget(&fenetre);
    grand->setMinimumSize(10, 10);
    fenetre.setMinimumSize(200, 100);
    Centre(fenetre);
    EXPECT_LE((fenetre.geometry().center() - bureau.center()).manhattanLength(), 4);
    EXPECT_TRUE(bureau.contains(fenetre.geometry()));
}

TEST(Nomme, donne_le_nom_et_le_texte)
{
    QLabel etiquette;
    EXPECT_EQ(Nomme(&etiquette, u"Label2"_s, u"Indicatif"_s), &etiquette);
    EXPECT_EQ(etiquette.objectName(), u"Label2"_s);
    EXPECT_EQ(etiquette.text(), u"Indicatif"_s);
}
