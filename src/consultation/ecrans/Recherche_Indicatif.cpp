#include "consultation/ecrans/Recherche_Indicatif.h"

#include "ecrans/Chaine_Entree.h"
#include "ecrans/Champ_Saisie.h"
#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Affichage.h"
#include "log/Poste.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

Recherche_Indicatif::Recherche_Indicatif(Poste &poste)
    : Ecran(u"Recherche_Indicatif"_s, {}),
      poste_(poste),
      titre_(Nomme(new QLabel(this), u"Label3"_s)),
      qso_effectues_(Nouvelle_Liste())
{
    auto *quitter = Nomme(new QPushButton(this), u"Command1"_s, u"Quitter"_s);
    quitter->setAutoDefault(true);

    auto *grille = new QGridLayout(this);
    grille->addWidget(titre_, 0, 0, 1, 3);
    choix_ = {Nouveau_Choix(*grille, Recherche_Par::Indicatif, u"Indica"_s, u"Indicatif"_s),
              Nouveau_Choix(*grille, Recherche_Par::Reference, u"Data"_s, u"Reference"_s),
              Nouveau_Choix(*grille, Recherche_Par::Dpt, u"Depa"_s, u"Dpt"_s)};
    grille->addWidget(qso_effectues_, 4, 0, 1, 3);
    grille->addWidget(quitter, 5, 2, Qt::AlignRight);
    grille->setColumnStretch(2, 1);
    grille->setRowStretch(4, 1);

    connect(qApp, &QApplication::focusChanged, &suivi_du_focus_,
            [this](QWidget *, QWidget *maintenant) { Suit_Le_Focus(maintenant); });
    connect(qso_effectues_, &Liste_Fixe::Double_Cliquee, this, &Recherche_Indicatif::Retourne);
    connect(quitter, &QPushButton::clicked, this, &QWidget::close);
    choix_.front().option->setChecked(true);
    choix_.front().champ->setFocus();
    Suit_Le_Log();
    Centre(*this);
}

void Recherche_Indicatif::Suit_Le_Log()
{
    setWindowTitle(u"Rechercher un QSO du log " + Code(poste_.etat.station.diplome) + u" par ...");
    titre_->setText(windowTitle());
    qso_effectues_->Remplit({});
}

Recherche_Indicatif::Choix Recherche_Indicatif::Nouveau_Choix(QGridLayout &grille, Recherche_Par par,
                                                              const QString &champ, const QString &texte)
{
    const int place = static_cast<int>(par);
    const Choix choix{Nomme(new QRadioButton(this), u"Option1_"_s + QString::number(place), texte),
                      Nomme(new Champ_Saisie(15, this), champ)};
    choix.champ->setAccessibleName(texte);
    grille.addWidget(choix.option, 1 + place, 0);
    grille.addWidget(choix.champ, 1 + place, 1);
    connect(choix.option, &QRadioButton::toggled, choix.champ, [zone = choix.champ](bool coche) {
        if (coche)
            zone->setFocus();
    });
    new Chaine_Entree(choix.champ, {.entree = [this, par] { Recherche(par); }});
    return choix;
}

Liste_Fixe *Recherche_Indicatif::Nouvelle_Liste()
{
    auto *liste = Nomme(new Liste_Fixe(this), u"QSO_Effectues"_s);
    liste->setToolTip(u"Double clique sur le QSO pour retour au log"_s);
    liste->setAccessibleName(u"QSO trouvés"_s);
    liste->Pose_Entete(Nomme(new QLabel, u"Label13"_s,
                             u"   N°   Indicatif     Dpt Prenom          Ref         Date     QTR   Mode   QRG   RstR "
                             u"RstE   Mom Activité                 QSL"_s));
    liste->Reserve(static_cast<int>(colonnes_affichage::longueur), 20);
    return liste;
}

void Recherche_Indicatif::Suit_Le_Focus(const QWidget *controle)
{
    for (const Choix &choix : choix_)
        if (choix.champ == controle)
            choix.option->setChecked(true);
}

void Recherche_Indicatif::Recherche(Recherche_Par par)
{
    const auto trouves = Recherche_QSO(poste_, par, choix_[static_cast<std::size_t>(par)].champ->text());
    if (!trouves)
        return;
    qso_effectues_->Remplit(*trouves);
    for (const Choix &choix : choix_)
        choix.champ->clear();
}

void Recherche_Indicatif::Retourne(int rang)
{
    Retourne_Au_QSO(poste_, qso_effectues_->Entree(rang));
    close();
}
