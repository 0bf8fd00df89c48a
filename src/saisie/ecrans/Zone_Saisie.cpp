#include "saisie/ecrans/Zone_Saisie.h"

#include "ecrans/Combo.h"
#include "ecrans/Nomme.h"
#include "saisie/ecrans/Atelier.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

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
    QLabel *legende = atelier.Etiquette(Controle::Label1);
    QLabel *type = atelier.Etiquette(Controle::Type_Ref);
    QLineEdit *champ = atelier.Champ(Controle::Ref_A, 10);
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
    Combo *dip = atelier.Liste(Controle::Dip_A);
    dip->setToolTip(u"Touche \"Entrée\" pour valider le diplome"_s);
    dip->setMaxVisibleItems(dip->count());
    auto *rangee = new QHBoxLayout;
    rangee->setSpacing(12);
    rangee->addLayout(Colonne(atelier.Legende(u"Dip_L"_s, u"Diplome"_s), dip));
    rangee->addLayout(Colonne(atelier.Legende(u"Bande_L"_s, u"Bande"_s), atelier.Liste(Controle::Bande_A)));
    rangee->addLayout(Colonne(atelier.Legende(u"Ind_L"_s, u"Indicatif"_s), atelier.Champ(Controle::Ind_A, 12)));
    rangee->addLayout(Colonne(atelier.Legende(u"Prenom_L"_s, u"Prénom"_s), atelier.Champ(Controle::Prenom_A, 15)));
    rangee->addLayout(Colonne_Ref(atelier));
    rangee->addLayout(Colonne(atelier.Legende(u"Dpt_L"_s, u"Dpt"_s), atelier.Champ(Controle::Dpt_A, 3)));
    rangee->addLayout(Colonne(atelier.Legende(u"Date_L"_s, u"Date"_s), atelier.Champ(Controle::Date_A, 8)));
    rangee->addLayout(Colonne(atelier.Legende(u"Heure_L"_s, u"Heure"_s), atelier.Champ(Controle::Heure_A, 5)));
    rangee->addStretch();
    return rangee;
}

QHBoxLayout *Seconde_Rangee(Atelier &atelier)
{
    auto *rangee = new QHBoxLayout;
    rangee->setSpacing(12);
    rangee->addLayout(Colonne(atelier.Legende(u"Mode_L"_s, u"Mode"_s), atelier.Liste(Controle::Mode_A)));
    rangee->addLayout(Colonne(atelier.Legende(u"RSTR_L"_s, u"RST R"_s), atelier.Champ(Controle::RSTR_A, 4)));
    rangee->addLayout(Colonne(atelier.Legende(u"RSTE_L"_s, u"RST E"_s), atelier.Champ(Controle::RSTE_A, 4)));
    rangee->addLayout(Colonne(atelier.Etiquette(Controle::Nom_L), atelier.Champ(Controle::Nom_A, 32)));
    auto *qsl = atelier.Case(Controle::QSL_A, u"QSL"_s);
    qsl->setAutoFillBackground(true);
    rangee->addWidget(qsl, 0, Qt::AlignBottom);
    rangee->addWidget(atelier.Bouton(Controle::Valide_A, u"Valider le QSO"_s), 0, Qt::AlignBottom);
    rangee->addStretch();
    return rangee;
}

QHBoxLayout *Rangee_Boutons(Atelier &atelier)
{
    auto *rangee = new QHBoxLayout;
    rangee->addWidget(atelier.Bouton(Controle::Efface_A, u"Annuler saisie en cours"_s));
    QPushButton *annule = atelier.Bouton(Controle::Annule_Saisie, u"Supprimer un QSO"_s);
    annule->setToolTip(u"Permet d'annuler la saisie d'un Code Postal contacté"_s);
    rangee->addWidget(annule);
    rangee->addWidget(atelier.Bouton(Controle::Ajout_QSO, u"Inserer un QSO"_s));
    rangee->addWidget(atelier.Bouton(Controle::Recherche, u"Rechercher un QSO"_s));
    rangee->addStretch();
    // The award gives these two their captions; an empty one leaves a blank button that answers all the same.
    for (QPushButton *bouton :
         {atelier.Bouton_Variable(Controle::Detail), atelier.Bouton_Variable(Controle::Detail_1)}) {
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
    QLabel *station = atelier.Etiquette(Controle::I_Station);
    station->setFont(Agrandie(*station, 1.6, true));
    QLabel *mode = atelier.Etiquette(Controle::Mode_Aff);
    mode->setFont(Agrandie(*mode, 1.2, true));
    QLabel *utc = atelier.Etiquette(Controle::Label37);
    utc->setFont(Agrandie(*utc, 1.6, true));

    auto *ligne = new QHBoxLayout(bandeau);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(10);
    ligne->addWidget(station);
    ligne->addSpacing(30);
    ligne->addWidget(atelier.Legende(u"Label_Mode_Saisie"_s, u"Mode de saisie"_s));
    ligne->addWidget(mode);
    ligne->addWidget(atelier.Etiquette(Controle::Label15));
    ligne->addStretch();
    ligne->addWidget(atelier.Etiquette(Controle::Label33));
    ligne->addWidget(utc);
    ligne->addSpacing(20);
    ligne->addWidget(atelier.Etiquette(Controle::Label34));
    return bandeau;
}

QWidget *Zone_Saisie(Controles &controles, QWidget *parent)
{
    auto *cadre = Nomme(new QGroupBox(parent), Nom(Controle::Frame3));
    controles.Pose(Controle::Frame3,
                   {.widget = cadre, .ecrit = [cadre](const QString &titre) { cadre->setTitle(titre); }});
    cadre->setFont(Agrandie(*cadre, 1.1, false));
    Atelier atelier(controles, cadre);
    auto *rangees = new QVBoxLayout(cadre);
    rangees->addLayout(Premiere_Rangee(atelier));
    rangees->addLayout(Seconde_Rangee(atelier));
    rangees->addLayout(Rangee_Boutons(atelier));
    return cadre;
}
