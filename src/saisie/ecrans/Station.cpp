#include "saisie/ecrans/Station.h"

#include "ecrans/Chaine_Entree.h"
#include "ecrans/Champ_Saisie.h"
#include "ecrans/Couleurs.h"
#include "ecrans/Nomme.h"
#include "log/Poste.h"
#include "saisie/Changement_Station.h"
#include "saisie/Passage.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

Station::Station(Poste &poste, Saisie &saisie)
    : Ecran(u"Station"_s, u"Selection Indicaif"_s),
      poste_(poste),
      saisie_(saisie),
      indicatif_(Nomme(new Champ_Saisie(14, this), u"New_Indicatif"_s)),
      validation_(Nomme(new QPushButton(this), u"Validation"_s, u"Validez"_s))
{
    auto *titre = Nomme(new QLabel(this), u"Label2"_s, u"Indicatif de la Station"_s);
    auto *legende = Nomme(new QLabel(this), u"Label3"_s, u"Indicatif"_s);
    legende->setBuddy(indicatif_);
    indicatif_->setAccessibleName(legende->text());
    validation_->setAutoDefault(true);
    auto *grille = new QGridLayout(this);
    grille->addWidget(titre, 0, 0, 1, 3, Qt::AlignHCenter);
    grille->addWidget(legende, 1, 0, Qt::AlignRight);
    grille->addWidget(indicatif_, 1, 1);
    grille->addWidget(validation_, 1, 2);
    grille->addWidget(Nomme(new QLabel(this), u"Label5"_s, u"!!! Pour la saisie la '/' est remplacée par le '_'"_s), 2,
                      0, 1, 3, Qt::AlignHCenter);

    // A pasted "/" turns too, not only a typed one.
    connect(indicatif_, &QLineEdit::textEdited, this, [this](const QString &texte) {
        const int curseur = indicatif_->cursorPosition();
        indicatif_->setText(QString(texte).replace(u'/', u'_'));
        indicatif_->setCursorPosition(curseur);
    });
    new Chaine_Entree(indicatif_, {.entree = [this] {
                          Colore(indicatif_, Qt::white);
                          validation_->setFocus();
                      }});
    connect(validation_, &QPushButton::clicked, this, &Station::Valide);
    Colore(indicatif_, couleur_courante);
    indicatif_->setFocus();
}

void Station::Valide()
{
    // The text is held apart until it has passed: a refused one never becomes the station.
    const QString indicatif = indicatif_->text().toUpper();
    if (!Passe(poste_, Refus_Indicatif_Station(indicatif))) {
        if (Est_Refus_De_Caractere(indicatif))
            indicatif_->clear();
        Colore(indicatif_, couleur_courante);
        indicatif_->setFocus();
        return;
    }
    Change_Station(poste_, saisie_, indicatif);
    close();
}
