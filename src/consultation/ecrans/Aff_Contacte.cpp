#include "consultation/ecrans/Aff_Contacte.h"

#include "ecrans/Combo.h"
#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"
#include "log/Catalogue.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int colonnes_liste = 124;
constexpr int lignes_montrees = 24;

/// The heading was written for a proportional font: its words come to stand above their columns in the size in which it
/// is as wide as a row.
void Ajuste_Police(QLabel &entete, const Liste_Fixe &liste)
{
    QFont police = entete.font();
    const int voulue = liste.fontMetrics().horizontalAdvance(QString(colonnes_liste, u'M'));
    const int largeur = QFontMetrics(police).horizontalAdvance(entete.text());
    police.setPointSizeF(police.pointSizeF() * voulue / largeur);
    entete.setFont(police);
}

} // namespace

Aff_Contacte::Aff_Contacte(Poste &poste)
    : Ecran(u"Aff_Contacte"_s, Titre_Contactes(poste.etat.station.diplome)),
      poste_(poste),
      diplome_(poste.etat.station.diplome),
      bande_(Nomme(new Combo(this), u"Bande_A"_s)),
      liste_(Nomme(new Liste_Fixe(this), u"Liste_Acti_Contacte"_s)),
      imprimer_(Bouton(u"Imprimer"_s, u"Imprimer"_s)),
      enregistrer_(Bouton(u"Enregistrer"_s, u"Enregistrer"_s))
{
    liste_->Reserve(colonnes_liste, lignes_montrees);
    liste_->setAccessibleName(windowTitle());
    auto *entete = Nomme(new QLabel(this), u"Label2"_s, Entete_Contactes(diplome_).toString());
    entete->setTextFormat(Qt::PlainText);
    Ajuste_Police(*entete, *liste_);

    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(Nomme(new QLabel(this), u"Label3"_s, windowTitle()), 0, Qt::AlignHCenter);
    colonne->addLayout(Choix_De_Bande());
    colonne->addWidget(entete);
    colonne->addWidget(liste_, 1);
    colonne->addLayout(Boutons());

    imprimer_->setEnabled(false);
    enregistrer_->setEnabled(false);
    if (!Choisit_Une_Bande(diplome_))
        Remplit({});
    Centre(*this);
}

QPushButton *Aff_Contacte::Bouton(const QString &nom, const QString &texte)
{
    auto *bouton = Nomme(new QPushButton(this), nom, texte);
    bouton->setAutoDefault(true);
    return bouton;
}

QLayout *Aff_Contacte::Choix_De_Bande()
{
    for (const QStringView bande : bandes)
        bande_->addItem(bande.toString());
    auto *legende = Nomme(new QLabel(this), u"Label1"_s, u"bande"_s);
    legende->setBuddy(bande_);
    bande_->setAccessibleName(legende->text());
    auto *affiche = Bouton(u"Affiche"_s, u"Afficher"_s);
    auto *rangee = new QHBoxLayout;
    for (QWidget *controle : std::initializer_list<QWidget *>{legende, bande_, affiche}) {
        controle->setVisible(Choisit_Une_Bande(diplome_));
        rangee->addWidget(controle);
    }
    rangee->addStretch();
    connect(affiche, &QPushButton::clicked, this, [this] { Remplit(bande_->currentText()); });
    return rangee;
}

QLayout *Aff_Contacte::Boutons()
{
    auto *quitter = Bouton(u"Quitter"_s, u"Quitter"_s);
    auto *rangee = new QHBoxLayout;
    rangee->addWidget(imprimer_);
    rangee->addWidget(enregistrer_);
    rangee->addStretch();
    rangee->addWidget(quitter);
    connect(imprimer_, &QPushButton::clicked, this, [this] { Imprime_Contactes(poste_, contactes_); });
    connect(enregistrer_, &QPushButton::clicked, this, [this] { Enregistre_Contactes(poste_, contactes_); });
    connect(quitter, &QPushButton::clicked, this, &QWidget::close);
    return rangee;
}

void Aff_Contacte::Remplit(const QString &bande)
{
    liste_->Remplit({});
    contactes_ = Remplit_Contacte(poste_, diplome_, bande);
    liste_->Remplit(contactes_.lignes);
    imprimer_->setEnabled(true);
    enregistrer_->setEnabled(true);
}
