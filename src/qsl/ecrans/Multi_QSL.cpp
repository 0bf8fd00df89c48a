#include "qsl/ecrans/Multi_QSL.h"

#include "ecrans/Chaine_Entree.h"
#include "ecrans/Champ_Saisie.h"
#include "ecrans/Combo.h"
#include "ecrans/Couleurs.h"
#include "ecrans/Nomme.h"
#include "log/Catalogue.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "qsl/Cartes_QSL.h"
#include "qsl/Imprime_Confirmation.h"
#include "qsl/ecrans/Liste_A_Cocher.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype indicatif_maximum = 12;

} // namespace

Multi_QSL::Multi_QSL(Poste &poste)
    : Ecran(u"Multi_QSL"_s, u"Enregistrement des QSL reçues"_s),
      poste_(poste),
      indicatif_(Nomme(new Champ_Saisie(14, this), u"Indicatif"_s)),
      diplome_(Nomme(new Combo(this), u"Diplome"_s)),
      recherche_(Bouton(u"Recherche"_s, u"Rechercher"_s)),
      liste_qso_(Nomme(new Liste_A_Cocher(this), u"Liste_QSO"_s)),
      enregistre_(Bouton(u"Enregistre"_s, u"MAJ du log"_s)),
      imprimer_(Bouton(u"Imprimer"_s, u"Imprimer"_s))
{
    for (const QStringView code : codes_diplome)
        diplome_->addItem(code.toString());
    diplome_->setCurrentIndex(0);
    enregistre_->setEnabled(false);
    Dispose();
    Relie();
    Colore(indicatif_, couleur_courante);
    Colore(diplome_, couleur_finie);
    Colore(recherche_, couleur_finie);
    indicatif_->setFocus();
    Centre(*this);
}

bool Multi_QSL::Garde_Ouvert() const
{
    return !liste_qso_->Cochees().empty();
}

QPushButton *Multi_QSL::Bouton(const QString &nom, const QString &texte)
{
    auto *bouton = Nomme(new QPushButton(this), nom, texte);
    bouton->setAutoDefault(true);
    return bouton;
}

void Multi_QSL::Dispose()
{
    const auto texte = [this](const QString &nom, const QString &contenu) {
        return Nomme(new QLabel(this), nom, contenu);
    };
    auto *legende_diplome = texte(u"L_Diplome"_s, u"Diplome"_s);
    legende_diplome->setBuddy(diplome_);
    diplome_->setAccessibleName(legende_diplome->text());
    indicatif_->setAccessibleName(u"Indicatif"_s);
    auto *legende_liste = texte(u"L_Liste_QSO"_s, u"Liste des QSL non reçues de"_s);
    legende_liste->setBuddy(indicatif_);
    liste_qso_->setAccessibleName(legende_liste->text());
    liste_qso_->setMinimumWidth(liste_qso_->fontMetrics().horizontalAdvance(QString(118, u'M')));
    liste_qso_->setMinimumHeight(liste_qso_->fontMetrics().height() * 20);

    auto *demande = new QHBoxLayout;
    for (QWidget *controle : std::initializer_list<QWidget *>{legende_liste, indicatif_, legende_diplome, diplome_,
                                                              texte(u"Label6"_s, u"Cliquez sur"_s), recherche_})
        demande->addWidget(controle);
    demande->addStretch();
    auto *suite = new QHBoxLayout;
    suite->addWidget(texte(u"Label1"_s, u"Cochez dans la liste ci-dessus les QSL reçues puis cliquez sur"_s));
    suite->addWidget(enregistre_);
    suite->addStretch();
    suite->addWidget(imprimer_);
    auto *colonne = new QVBoxLayout(this);
    colonne->addLayout(demande);
    colonne->addWidget(liste_qso_, 1);
    colonne->addLayout(suite);
}

void Multi_QSL::Relie()
{
    new Chaine_Entree(indicatif_, {.entree = [this] { Indicatif_Entre(); }});
    new Chaine_Entree(diplome_, {.entree = [this] { Diplome_Entre(); }});
    // The ticked lines belong to the log that was searched.
    connect(diplome_, &QComboBox::currentIndexChanged, this, [this] { enregistre_->setEnabled(false); });
    connect(recherche_, &QPushButton::clicked, this, &Multi_QSL::Recherche);
    connect(enregistre_, &QPushButton::clicked, this, &Multi_QSL::Enregistre);
    connect(imprimer_, &QPushButton::clicked, this, &Multi_QSL::Imprime);
}

void Multi_QSL::Indicatif_Entre()
{
    if (indicatif_->text().size() > indicatif_maximum) {
        poste_.boites.Message(u"12 caracteres maxi pour l'indicatif"_s);
        return;
    }
    Colore(indicatif_, couleur_finie);
    Colore(diplome_, couleur_courante);
    diplome_->setFocus();
}

void Multi_QSL::Diplome_Entre()
{
    Colore(diplome_, couleur_finie);
    Colore(recherche_, couleur_courante);
    recherche_->setFocus();
}

void Multi_QSL::Recherche()
{
    Colore(recherche_, couleur_finie);
    Colore(indicatif_, couleur_courante);
    liste_qso_->Remplit({});
    Cartes_Attendues cartes =
        Cherche_Cartes(poste_, static_cast<Diplome>(diplome_->currentIndex()), indicatif_->text());
    log_ = std::move(cartes.log);
    liste_qso_->Remplit(std::move(cartes.lignes));
    enregistre_->setEnabled(true);
}

void Multi_QSL::Enregistre()
{
    if (Marque_Cartes(poste_, log_, liste_qso_->Cochees()))
        liste_qso_->Remplit({});
}

void Multi_QSL::Imprime()
{
    Imprime_Confirmation(poste_, liste_qso_->Est_Vide(), liste_qso_->Cochees(), indicatif_->text());
}
