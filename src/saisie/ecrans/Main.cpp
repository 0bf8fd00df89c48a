#include "saisie/ecrans/Main.h"

#include "ecrans/Chaine_Entree.h"
#include "ecrans/Combo.h"
#include "ecrans/Couleurs.h"
#include "ecrans/Ecran.h"
#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"
#include "log/Ligne_Affichage.h"
#include "plateforme/Ecrans.h"
#include "saisie/Boutons_Reference.h"
#include "saisie/Chaine.h"
#include "saisie/Options.h"
#include "saisie/QSO_Courant.h"
#include "saisie/Repos.h"
#include "saisie/ecrans/Atelier.h"
#include "saisie/ecrans/Menus.h"
#include "saisie/ecrans/Zone_Saisie.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QMetaEnum>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// The controls whose colour follows the focus.
bool Se_Colore(Controle controle)
{
    return Est_Champ(controle) || controle == Controle::Valide_A;
}

} // namespace

Main::Main(const Ports &ports, Etat_Commun &etat) : poste_{ports, etat, ecran_}
{
    setObjectName(Nom(Controle::Main));
    controles_.Pose(Controle::Main, {.widget = this, .ecrit = [this](const QString &titre) { setWindowTitle(titre); }});
    auto *centre = new QWidget(this);
    auto *pile = new QVBoxLayout(centre);
    pile->addWidget(Bandeau_Station(controles_, centre));
    pile->addWidget(Zone_Saisie(controles_, centre));
    pile->addWidget(Construit_Liste(), 1);
    setCentralWidget(centre);

    Montre_Les_Valeurs();
    Relie_Champs();
    Relie_Dip();
    Relie_Boutons();
    Relie_Liste();
    connect(&seconde_, &QTimer::timeout, this, [this] { Tique(poste_, saisie_); });
    connect(qApp, &QApplication::focusChanged, &suivi_du_focus_, [this] { Suit_Le_Focus(); });
}

void Main::Installe_Menus(Commandes &commandes)
{
    Construit_Menus(*menuBar(), poste_.ecrans, commandes);
    Relie_Options();
    Relie_Bouton(Controle::Detail, [this, &commandes] { Presse_Detail(poste_, commandes); });
    Relie_Bouton(Controle::Detail_1, [this, &commandes] { Presse_Detail_1(poste_, commandes); });
}

QWidget *Main::Construit_Liste()
{
    const QString conseil = u"Un click sur un QSO pour l'afficher ou le supprimer, un double click pour l'éditer"_s;
    auto *cadre = Nomme(new QGroupBox, u"L_Communes"_s);
    cadre->setTitle(conseil);
    liste_ = Nomme(new Liste_Fixe(cadre), u"Liste_QSO"_s);
    liste_->setToolTip(conseil);
    liste_->setAccessibleName(u"QSO du log"_s);
    liste_->Pose_Entete(Atelier(controles_, cadre).Etiquette(Controle::Label_Liste_QSO));
    liste_->Reserve(static_cast<int>(colonnes_affichage::longueur), 22);
    auto *pile = new QVBoxLayout(cadre);
    pile->addWidget(liste_);
    return cadre;
}

void Main::Montre_Les_Valeurs()
{
    saisie_.Se_Montre([this](Controle controle, Aspect aspect) {
        controles_.Montre(controle, aspect);
        if (aspect == Aspect::Focus)
            Marque_Courant();
    });
    ecran_.Se_Montre({.liste = [this] { Montre_Liste(); },
                      .selection = [this](std::size_t rang) { liste_->Place_Sur(static_cast<int>(rang)); }});
}

void Main::Relie_Champs()
{
    for (int rang = 0; Est_Champ(static_cast<Controle>(rang)); ++rang) {
        const auto champ = static_cast<Controle>(rang);
        new Chaine_Entree(controles_.Widget(champ),
                          {.entree = [this, champ] { Entree(poste_, saisie_, champ); },
                           .accepte = [this, champ] { return Accepte_Touche(poste_, saisie_, champ); },
                           .avant = [this, champ](bool retour) { Avant_Touche(saisie_, champ, retour); },
                           .apres = [this, champ] { Apres_Touche(poste_, saisie_, champ); }});
        Colore(controles_.Widget(champ), couleur_finie);
    }
    Colore(controles_.Widget(Controle::Valide_A), couleur_finie);
}

void Main::Relie_Dip()
{
    connect(qobject_cast<Combo *>(controles_.Widget(Controle::Dip_A)), &Combo::Choisie, this, [this] {
        if (Accepte_Touche(poste_, saisie_, Controle::Dip_A))
            Entree(poste_, saisie_, Controle::Dip_A);
    });
}

void Main::Relie_Boutons()
{
    Relie_Bouton(Controle::Valide_A, [this] { Valide_QSO(poste_, saisie_); });
    Relie_Bouton(Controle::Efface_A, [this] { Efface_Tout(saisie_); });
    Relie_Bouton(Controle::Annule_Saisie, [this] { Supprime_QSO(poste_, saisie_); });
    Relie_Bouton(Controle::Ajout_QSO, [this] { Commence_Insertion(poste_, saisie_); });
    Relie_Bouton(Controle::Recherche, [this] { poste_.ecrans.Montre(u"Recherche_Indicatif"_s); });
}

void Main::Relie_Bouton(Controle bouton, const std::function<void()> &action)
{
    connect(qobject_cast<QPushButton *>(controles_.Widget(bouton)), &QPushButton::clicked, this, action);
}

void Main::Relie_Liste()
{
    connect(liste_, &Liste_Fixe::Cliquee, this,
            [this](int rang) { ecran_.Selectionne_QSO(static_cast<std::size_t>(rang)); });
    connect(liste_, &Liste_Fixe::Double_Cliquee, this,
            [this](int rang) { Double_Clic_Liste(poste_, saisie_, liste_->Entree(rang)); });
}

void Main::Relie_Options()
{
    Relie_Menu(u"Mnu_Quitter"_s, [this] { close(); });
    Relie_Menu(u"Mnu_A_Propos"_s, [this] { Affiche_A_Propos(poste_); });
    Relie_Menu(u"Mnu_Historique"_s, [this] { Affiche_Historique(poste_); });
    Relie_Option(Controle::Mnu_Date_Auto_Oui, [this] { Choisit_Saisie(poste_, saisie_, false); });
    Relie_Option(Controle::Mnu_Date_Auto_Non, [this] { Choisit_Saisie(poste_, saisie_, true); });
    Relie_Option(Controle::Mnu_Sep_Oui, [this] { Choisit_Separateur(poste_, saisie_, true); });
    Relie_Option(Controle::Mnu_Sep_Non, [this] { Choisit_Separateur(poste_, saisie_, false); });
}

void Main::Relie_Menu(const QString &nom, const std::function<void()> &action)
{
    connect(findChild<QAction *>(nom), &QAction::triggered, this, action);
}

void Main::Relie_Option(Controle option, const std::function<void()> &action)
{
    auto *entree = findChild<QAction *>(Nom(option));
    controles_.Pose(option, {.coche = [entree](bool coche) { entree->setChecked(coche); }});
    Relie_Menu(Nom(option), action);
}

void Main::Montre_Liste()
{
    liste_->Remplit(ecran_.Liste_QSO().size(),
                    [this](std::size_t rang) { return Ligne_Affichage(rang + 1, ecran_.Liste_QSO()[rang]); });
}

void Main::Ouvre()
{
    Tique(poste_, saisie_);
    seconde_.start(1000);
    Centre(*this);
    show();
}

void Main::closeEvent(QCloseEvent *evenement)
{
    evenement->accept();
    seconde_.stop();
    QCoreApplication::quit();
}

void Main::Suit_Le_Focus()
{
    const QWidget *maintenant = QApplication::focusWidget();
    if (!maintenant || maintenant->window() != this)
        return;
    saisie_.Recoit_Focus(controles_.Qui_Est(maintenant));
    Marque_Courant();
}

void Main::Marque_Courant()
{
    if (courant_)
        Colore(courant_, couleur_finie);
    const std::optional<Controle> focus = saisie_.Focus();
    courant_ = focus && Se_Colore(*focus) ? controles_.Widget(*focus) : nullptr;
    if (courant_)
        Colore(courant_, couleur_courante);
}
