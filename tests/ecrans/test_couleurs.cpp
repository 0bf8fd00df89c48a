#include "ecrans/Champ_Saisie.h"
#include "ecrans/Combo.h"
#include "ecrans/Couleurs.h"
#include "faux/Conduite.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>

namespace {

/// A dark theme, as a desktop may have it.
class Theme_Sombre {
public:
    Theme_Sombre() : avant_(QApplication::palette())
    {
        QPalette sombre(QColor(40, 40, 40));
        sombre.setColor(QPalette::Text, Qt::white);
        QApplication::setPalette(sombre);
    }
    ~Theme_Sombre() { QApplication::setPalette(avant_); }

private:
    QPalette avant_;
};

/// The colour of most pixels of a control as it is painted.
QColor Couleur_Peinte(QWidget &controle)
{
    controle.resize(160, 40);
    const QImage image = controle.grab().toImage();
    std::map<QRgb, int> comptes;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++comptes[image.pixel(x, y)];
    const auto plus = [](const auto &un, const auto &autre) { return un.second < autre.second; };
    return QColor(std::max_element(comptes.begin(), comptes.end(), plus)->first);
}

} // namespace

TEST(Couleurs, un_champ_garde_la_sienne_dans_tous_ses_etats)
{
    for (const QColor &couleur : {couleur_courante, couleur_finie}) {
        QLineEdit champ;
        Colore(&champ, couleur);
        EXPECT_EQ(Couleur_Peinte(champ), couleur);
        champ.setEnabled(false);
        EXPECT_EQ(Couleur_Peinte(champ), couleur);
    }
}

TEST(Couleurs, une_combo_libre_et_une_case_aussi)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QWidget ecran;
    QComboBox *combo = Combo_Libre(&ecran);
    QCheckBox coche;
    coche.setAutoFillBackground(true);
    for (QWidget *controle : std::initializer_list<QWidget *>{combo, &coche}) {
        Colore(controle, couleur_courante);
        EXPECT_EQ(Couleur_Peinte(*controle), couleur_courante);
        controle->setEnabled(false);
        EXPECT_EQ(Couleur_Peinte(*controle), couleur_courante);
    }
}

TEST(Couleurs, le_texte_reste_sombre_dans_un_theme_sombre)
{
    const Theme_Sombre sombre;
    QLineEdit champ;
    Colore(&champ, couleur_finie);
    for (const QPalette::ColorGroup groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_EQ(champ.palette().color(groupe, QPalette::Text), QColor(Qt::black));
        EXPECT_EQ(champ.palette().color(groupe, QPalette::Base), couleur_finie);
    }
}

TEST(Couleurs, les_deux_couleurs_de_la_saisie)
{
    EXPECT_EQ(couleur_courante, QColor(192, 255, 192));
    EXPECT_EQ(couleur_finie, QColor(255, 255, 192));
}
