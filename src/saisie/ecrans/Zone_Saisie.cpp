#include "saisie/ecrans/Zone_Saisie.h"

#include "ecrans/Champ_Saisie.h"
#include "ecrans/Combo.h"
#include "ecrans/Nomme.h"
#include "log/Catalogue.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// Makes the controls of one parent and enters them in the table.
class Atelier {
public:
    Atelier(Controles &controles, QWidget *parent) : controles_(controles), parent_(parent) {}

    QLabel *Etiquette(Controle controle, const QString &nom, const QString &texte = {})
    {
        return Enregistre(controle, Nomme(new QLabel(parent_), nom, texte));
    }

    QLabel *Legende(const QString &nom, const QString &texte) { return Nomme(new QLabel(parent_), nom, texte); }

    QLineEdit *Champ(Controle controle, const QString &nom, int caracteres)
    {
        return Enregistre(controle, Nomme(new Champ_Saisie(caracteres, parent_), nom));
    }

    template <std::size_t N>
    Combo *Liste(Controle controle, const QString &nom, const std::array<QStringView, N> &entrees)
    {
        Combo *combo = Combo_Libre(parent_);
        for (const QStringView entree : entrees)
            combo->addItem(entree.toString());
        return Enregistre(controle, Nomme(combo, nom));
    }

    QPushButton *Bouton(Controle controle, const QString &nom, const QString &texte)
    {
        return Enregistre(controle, Nouveau_Bouton(nom, texte));
    }

    QPushButton *Nouveau_Bouton(const QString &nom, const QString &texte)
    {
        QPushButton *bouton = Nomme(new QPushButton(parent_), nom, texte);
        // Enter presses the button that has the focus.
        bouton->setAutoDefault(true);
        return bouton;
    }

    template <typename Widget>
    Widget *Enregistre(Controle controle, Widget *widget)
    {
        controles_[controle] = widget;
        return widget;
    }

private:
    Controles &controles_;
    QWidget *parent_;
};

/// A label above its field; the label is the field's buddy and accessible name.
QVBoxLayout *Colonne(QLabel *legende, QWidget *champ)
{
    legende->setBuddy(champ);
    champ->setAccessibleName(legende->text());
    auto *colonne = new QVBoxLayout;
    colonne->setSpacing(2);
    colonne->addStretch();
    colonne->addWidget(legende);
    colonne->addWidget(champ);
    return colonne;
}

QFont Agrandie(const QWidget &widget, qreal facteur, bool gras)
{
    QFont police = widget.font();
    police.setPointSizeF(police.pointSizeF() * facteur);
    police.setBold(gras);
    return police;
}

/// The reference has two words before it: the award's, and over it the label that the award may break in two lines.
QVBoxLayout *Colonne_Ref(Atelier &atelier)
{
    QLabel *legende = atelier.Etiquette(Controle::Label1, u"Label1"_s, u"Référence"_s);
    QLabel *type = atelier.Etiquette(Controle::Type_Ref, u"Type_Ref"_s);
    QLineEdit *champ = atelier.Champ(Controle::Ref_A, u"Ref_A"_s, 10);
    champ->setToolTip(u"R apres la référence si réactivation"_s);
    legende->setBuddy(champ);
    champ->setAccessibleName(u"Référence"_s);
    type->setFont(Agrandie(*type, 1, true));
    auto *ligne = new QHBoxLayout;
    ligne->setSpacing(4);
    ligne->addWidget(type);
    ligne->addWidget(champ);
    type->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto *colonne = new QVBoxLayout;
    colonne->setSpacing(2);
    colonne->addStretch();
    colonne->addWidget(legende);
    colonne->addLayout(ligne);
    return colonne;
}

QHBoxLayout *Premiere_Rangee(Atelier &atelier)
{
    Combo *dip = atelier.Liste(Controle::Dip_A, u"Dip_A"_s, codes_diplome);
    dip->setToolTip(u"Touche \"Entrée\" pour valider le diplome"_s);
    dip->setMaxVisibleItems(static_cast<int>(codes_diplome.size()));
    auto *rangee = new QHBoxLayout;
    rangee->setSpacing(12);
    rangee->addLayout(Colonne(atelier.Legende(u"Dip_L"_s, u"Diplome"_s), dip));
    rangee->addLayout(
        Colonne(atelier.Legende(u"Bande_L"_s, u"Bande"_s), atelier.Liste(Controle::Bande_A, u"Bande_A"_s, bandes)));
    rangee->addLayout(
        Colonne(atelier.Legende(u"Ind_L"_s, u"Indicatif"_s), atelier.Champ(Controle::Ind_A, u"Ind_A"_s, 12)));
    rangee->addLayout(
        Colonne(atelier.Legende(u"Prenom_L"_s, u"Prénom"_s), atelier.Champ(Controle::Prenom_A, u"Prenom_A"_s, 15)));
    rangee->addLayout(Colonne_Ref(atelier));
    rangee->addLayout(Colonne(atelier.Legende(u"Dpt_L"_s, u"Dpt"_s), atelier.Champ(Controle::Dpt_A, u"Dpt_A"_s, 3)));
    rangee->addLayout(
        Colonne(atelier.Legende(u"Date_L"_s, u"Date"_s), atelier.Champ(Controle::Date_A, u"Date_A"_s, 8)));
    rangee->addLayout(
        Colonne(atelier.Legende(u"Heure_L"_s, u"Heure"_s), atelier.Champ(Controle::Heure_A, u"Heure_A"_s, 5)));
    rangee->addStretch();
    return rangee;
}

QHBoxLayout *Seconde_Rangee(Atelier &atelier)
{
    auto *rangee = new QHBoxLayout;
    rangee->setSpacing(12);
    rangee->addLayout(
        Colonne(atelier.Legende(u"Mode_L"_s, u"Mode"_s), atelier.Liste(Controle::Mode_A, u"Mode_A"_s, modes)));
    rangee->addLayout(
        Colonne(atelier.Legende(u"RSTR_L"_s, u"RST R"_s), atelier.Champ(Controle::RSTR_A, u"RSTR_A"_s, 4)));
    rangee->addLayout(
        Colonne(atelier.Legende(u"RSTE_L"_s, u"RST E"_s), atelier.Champ(Controle::RSTE_A, u"RSTE_A"_s, 4)));
    rangee->addLayout(Colonne(atelier.Etiquette(Controle::Nom_L, u"Nom_L"_s, u"Nom activité"_s),
                              atelier.Champ(Controle::Nom_A, u"Nom_A"_s, 32)));
    auto *qsl = atelier.Enregistre(Controle::QSL_A, Nomme(new QCheckBox, u"QSL_A"_s, u"QSL"_s));
    qsl->setAutoFillBackground(true);
    rangee->addWidget(qsl, 0, Qt::AlignBottom);
    rangee->addWidget(atelier.Bouton(Controle::Valide_A, u"Valide_A"_s, u"Valider le QSO"_s), 0, Qt::AlignBottom);
    rangee->addStretch();
    return rangee;
}

QHBoxLayout *Rangee_Boutons(Atelier &atelier)
{
    auto *rangee = new QHBoxLayout;
    rangee->addWidget(atelier.Bouton(Controle::Efface_A, u"Efface_A"_s, u"Annuler saisie en cours"_s));
    QPushButton *annule = atelier.Bouton(Controle::Annule_Saisie, u"Annule_Saisie"_s, u"Supprimer un QSO"_s);
    annule->setToolTip(u"Permet d'annuler la saisie d'un Code Postal contacté"_s);
    rangee->addWidget(annule);
    rangee->addWidget(atelier.Bouton(Controle::Ajout_QSO, u"Ajout_QSO"_s, u"Inserer un QSO"_s));
    rangee->addWidget(atelier.Nouveau_Bouton(u"Recherche"_s, u"Rechercher un QSO"_s));
    rangee->addStretch();
    // The award gives these two their captions; an empty one leaves a blank button that answers all the same.
    for (QPushButton *bouton :
         {atelier.Bouton(Controle::Detail, u"Detail"_s, {}), atelier.Bouton(Controle::Detail_1, u"Detail_1"_s, {})}) {
        bouton->setMinimumWidth(bouton->fontMetrics().horizontalAdvance(u"Mise a jour via Vorlain___"_s));
        rangee->addWidget(bouton);
    }
    return rangee;
}

} // namespace

QWidget *Bandeau_Station(Controles &controles, QWidget *parent)
{
    auto *bandeau = new QWidget(parent);
    Atelier atelier(controles, bandeau);
    QLabel *station = atelier.Etiquette(Controle::I_Station, u"I_Station"_s);
    station->setFont(Agrandie(*station, 1.6, true));
    QLabel *mode = atelier.Etiquette(Controle::Mode_Aff, u"Mode_Aff"_s, u"Saisie QSO"_s);
    mode->setFont(Agrandie(*mode, 1.2, true));
    QLabel *utc = atelier.Etiquette(Controle::Label37, u"Label37"_s);
    utc->setFont(Agrandie(*utc, 1.6, true));

    auto *ligne = new QHBoxLayout(bandeau);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(10);
    ligne->addWidget(station);
    ligne->addSpacing(30);
    ligne->addWidget(atelier.Legende(u"Label_Mode_Saisie"_s, u"Mode de saisie"_s));
    ligne->addWidget(mode);
    ligne->addWidget(atelier.Etiquette(Controle::Label15, u"Label15"_s, u"En temps réel"_s));
    ligne->addStretch();
    ligne->addWidget(atelier.Etiquette(Controle::Label33, u"Label33"_s));
    ligne->addWidget(utc);
    ligne->addSpacing(20);
    ligne->addWidget(atelier.Etiquette(Controle::Label34, u"Label34"_s));
    return bandeau;
}

QWidget *Zone_Saisie(Controles &controles, QWidget *parent)
{
    auto *cadre = Nomme(new QGroupBox(parent), u"Frame3"_s);
    controles[Controle::Frame3] = cadre;
    cadre->setFont(Agrandie(*cadre, 1.1, false));
    Atelier atelier(controles, cadre);
    auto *rangees = new QVBoxLayout(cadre);
    rangees->addLayout(Premiere_Rangee(atelier));
    rangees->addLayout(Seconde_Rangee(atelier));
    rangees->addLayout(Rangee_Boutons(atelier));
    return cadre;
}
