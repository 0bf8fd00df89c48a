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
#include "saisie/ecrans/Menus.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Where the text of a field or combo is typed; nullptr for other controls.
QLineEdit *Ligne_De_Texte(QWidget *controle)
{
    if (const auto *combo = qobject_cast<QComboBox *>(controle))
        return combo->lineEdit();
    return qobject_cast<QLineEdit *>(controle);
}

} // namespace

Main::Main(const Ports &ports, Etat_Commun &etat) : poste_{ports, etat, *this}
{
    setObjectName(u"Main"_s);
    auto *centre = new QWidget(this);
    auto *pile = new QVBoxLayout(centre);
    pile->addWidget(Bandeau_Station(controles_, centre));
    pile->addWidget(Zone_Saisie(controles_, centre));
    pile->addWidget(Construit_Liste(), 1);
    setCentralWidget(centre);

    for (const auto &[controle, widget] : controles_)
        if (Est_Champ(controle) || controle == Controle::Valide_A)
            Colore(widget, couleur_finie);
    Relie_Champs();
    Relie_Dip();
    Relie_Boutons();
    Relie_Liste();
    connect(&seconde_, &QTimer::timeout, this, [this] { Tique(poste_, *this); });
    connect(qApp, &QApplication::focusChanged, &suivi_du_focus_, [this](QWidget *, QWidget *maintenant) {
        if (maintenant && maintenant->window() == this)
            Marque_Courant(maintenant);
    });
}

void Main::Installe_Menus(Commandes &commandes)
{
    Construit_Menus(*menuBar(), poste_.ecrans, commandes);
    Relie_Options();
    Relie_Bouton(u"Detail"_s, [this, &commandes] { Presse_Detail(poste_, commandes); });
    Relie_Bouton(u"Detail_1"_s, [this, &commandes] { Presse_Detail_1(poste_, commandes); });
}

QWidget *Main::Construit_Liste()
{
    const QString conseil = u"Un click sur un QSO pour l'afficher ou le supprimer, un double click pour l'éditer"_s;
    auto *cadre = Nomme(new QGroupBox, u"L_Communes"_s);
    cadre->setTitle(conseil);
    liste_ = Nomme(new Liste_Fixe(cadre), u"Liste_QSO"_s);
    liste_->setToolTip(conseil);
    liste_->setAccessibleName(u"QSO du log"_s);
    auto *entete = Nomme(new QLabel, u"Label_Liste_QSO"_s, entete_liste_qso.toString());
    controles_[Controle::Label_Liste_QSO] = entete;
    liste_->Pose_Entete(entete);
    liste_->Reserve(static_cast<int>(colonnes_affichage::longueur), 22);
    auto *pile = new QVBoxLayout(cadre);
    pile->addWidget(liste_);
    return cadre;
}

void Main::Relie_Champs()
{
    for (const auto &[controle, widget] : controles_) {
        if (!Est_Champ(controle))
            continue;
        const Controle champ = controle;
        new Chaine_Entree(widget, {.entree = [this, champ] { Entree(poste_, *this, champ); },
                                   .accepte = [this, champ] { return Accepte_Touche(poste_, *this, champ); },
                                   .avant = [this, champ](bool retour) { Avant_Touche(poste_, *this, champ, retour); },
                                   .apres = [this, champ] { Apres_Touche(poste_, *this, champ); }});
    }
}

void Main::Relie_Dip()
{
    auto *dip = qobject_cast<Combo *>(controles_.at(Controle::Dip_A));
    connect(dip, &Combo::Choisie, this, [this] {
        if (Accepte_Touche(poste_, *this, Controle::Dip_A))
            Entree(poste_, *this, Controle::Dip_A);
    });
}

void Main::Relie_Boutons()
{
    Relie_Bouton(u"Valide_A"_s, [this] { Valide_QSO(poste_, *this); });
    Relie_Bouton(u"Efface_A"_s, [this] { Efface(); });
    Relie_Bouton(u"Annule_Saisie"_s, [this] { Supprime_QSO(poste_, *this); });
    Relie_Bouton(u"Ajout_QSO"_s, [this] { Commence_Insertion(poste_, *this); });
    Relie_Bouton(u"Recherche"_s, [this] { poste_.ecrans.Montre(u"Recherche_Indicatif"_s); });
}

void Main::Relie_Bouton(const QString &nom, const std::function<void()> &action)
{
    connect(findChild<QPushButton *>(nom), &QPushButton::clicked, this, action);
}

void Main::Relie_Liste()
{
    connect(liste_, &Liste_Fixe::Cliquee, this, [this](int rang) { Clic_Liste(poste_, *this, liste_->Entree(rang)); });
    connect(liste_, &Liste_Fixe::Double_Cliquee, this,
            [this](int rang) { Double_Clic_Liste(poste_, *this, liste_->Entree(rang)); });
}

void Main::Relie_Options()
{
    Relie_Menu(u"Mnu_Quitter"_s, [this] { close(); });
    Relie_Menu(u"Mnu_Date_Auto_Oui"_s, [this] { Choisit_Saisie(poste_, *this, false); });
    Relie_Menu(u"Mnu_Date_Auto_Non"_s, [this] { Choisit_Saisie(poste_, *this, true); });
    Relie_Menu(u"Mnu_Sep_Oui"_s, [this] { Choisit_Separateur(poste_, *this, true); });
    Relie_Menu(u"Mnu_Sep_Non"_s, [this] { Choisit_Separateur(poste_, *this, false); });
    Relie_Menu(u"Mnu_A_Propos"_s, [this] { Affiche_A_Propos(poste_); });
    Relie_Menu(u"Mnu_Historique"_s, [this] { Affiche_Historique(poste_); });
    Coche_Saisie_Differee(false);
    Coche_Separateur_Auto(false);
}

void Main::Relie_Menu(const QString &nom, const std::function<void()> &action)
{
    connect(findChild<QAction *>(nom), &QAction::triggered, this, action);
}

void Main::Coche_Paire(const QString &nom, bool coche)
{
    findChild<QAction *>(nom + u"_Oui")->setChecked(coche);
    findChild<QAction *>(nom + u"_Non")->setChecked(!coche);
}

void Main::Remplit_Liste(Lignes_Texte lignes)
{
    lignes_ = std::move(lignes);
    liste_->Remplit(lignes_.size(), [this](std::size_t rang) { return Ligne_Affichage(rang + 1, lignes_[rang]); });
}

void Main::Selectionne_Derniere()
{
    liste_->Selectionne(liste_->Nombre() - 1);
}

void Main::Selectionne_QSO(std::size_t rang)
{
    liste_->Selectionne(static_cast<int>(rang));
}

QString Main::QSO_Selectionne() const
{
    return liste_->Rang_Courant() < 0 ? QString() : liste_->Entree(liste_->Rang_Courant());
}

void Main::Efface()
{
    Efface_Tout(poste_.etat, *this);
}

void Main::Efface_Saisie()
{
    Efface_Champs(poste_.etat, *this);
}

QString Main::Texte(Controle controle) const
{
    const QWidget *widget = controles_.at(controle);
    if (const auto *champ = qobject_cast<const QLineEdit *>(widget))
        return champ->text();
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->currentText();
    if (const auto *etiquette = qobject_cast<const QLabel *>(widget))
        return etiquette->text();
    if (const auto *cadre = qobject_cast<const QGroupBox *>(widget))
        return cadre->title();
    return qobject_cast<const QAbstractButton *>(widget)->text();
}

void Main::Ecrit(Controle controle, const QString &texte)
{
    QWidget *widget = controles_.at(controle);
    if (auto *champ = qobject_cast<QLineEdit *>(widget)) {
        champ->setText(texte);
        champ->setCursorPosition(0);
    } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        combo->setCurrentIndex(combo->findText(texte, Qt::MatchExactly | Qt::MatchCaseSensitive));
        combo->setEditText(texte);
    } else if (auto *etiquette = qobject_cast<QLabel *>(widget)) {
        etiquette->setText(texte);
    } else if (auto *cadre = qobject_cast<QGroupBox *>(widget)) {
        cadre->setTitle(texte);
    } else {
        qobject_cast<QAbstractButton *>(widget)->setText(texte);
    }
}

int Main::Indice_Combo(Controle combo) const
{
    return Indice_Du_Texte(*qobject_cast<QComboBox *>(controles_.at(combo)));
}

int Main::Nombre_Combo(Controle combo) const
{
    return qobject_cast<QComboBox *>(controles_.at(combo))->count();
}

void Main::Choisit(Controle combo, int indice)
{
    auto *choix = qobject_cast<QComboBox *>(controles_.at(combo));
    choix->setCurrentIndex(indice);
    // A free text stays in the field when the place was the same before.
    choix->setEditText(choix->itemText(indice));
}

bool Main::QSL_Coche() const
{
    return qobject_cast<QCheckBox *>(controles_.at(Controle::QSL_A))->isChecked();
}

void Main::Coche_QSL(bool coche)
{
    qobject_cast<QCheckBox *>(controles_.at(Controle::QSL_A))->setChecked(coche);
}

bool Main::Est_Actif(Controle controle) const
{
    return controles_.at(controle)->isEnabled();
}

void Main::Active(Controle controle, bool actif)
{
    controles_.at(controle)->setEnabled(actif);
}

void Main::Donne_Focus(Controle controle)
{
    QWidget *widget = controles_.at(controle);
    widget->setFocus(Qt::OtherFocusReason);
    if (QLineEdit *champ = Ligne_De_Texte(widget))
        champ->selectAll();
    Marque_Courant(widget);
}

void Main::Curseur_A_La_Fin(Controle champ)
{
    Ligne_De_Texte(controles_.at(champ))->end(false);
}

void Main::Coche_Saisie_Differee(bool differee)
{
    Coche_Paire(u"Mnu_Date_Auto"_s, !differee);
}

void Main::Coche_Separateur_Auto(bool automatique)
{
    Coche_Paire(u"Mnu_Sep"_s, automatique);
}

void Main::Montre_Ecran()
{
    Tique(poste_, *this);
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

void Main::Marque_Courant(QWidget *controle)
{
    if (courant_)
        Colore(courant_, couleur_finie);
    courant_ = nullptr;
    for (const auto &[nom, widget] : controles_)
        if (widget == controle && (Est_Champ(nom) || nom == Controle::Valide_A))
            courant_ = widget;
    if (courant_)
        Colore(courant_, couleur_courante);
}
