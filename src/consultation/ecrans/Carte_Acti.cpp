#include "consultation/ecrans/Carte_Acti.h"

#include "consultation/ecrans/Carte.h"
#include "ecrans/Nomme.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Carte_Acti::Carte_Acti(Poste &poste) : Ecran(u"Carte_Acti"_s, u"Carte des départements contactés"_s)
{
    const Carte_Contactee contactee = Colorie_Carte(poste);
    const auto texte = [this](const QString &nom, const QString &contenu) {
        return Nomme(new QLabel(this), nom, contenu);
    };
    const auto nombre = [&](const QString &nom, int valeur, QStringView suite) {
        return texte(nom, QString::number(valeur) + suite);
    };
    auto *comptes = new QHBoxLayout;
    comptes->addWidget(texte(u"Label1"_s, u"activité " + Code(poste.etat.station.diplome)));
    comptes->addStretch();
    comptes->addWidget(nombre(u"NB_Dep"_s, contactee.bilan.total, u""));
    comptes->addWidget(texte(u"Label5"_s, u"départements contactés"_s));
    comptes->addStretch();
    comptes->addWidget(nombre(u"Nb_Conf"_s, contactee.bilan.confirmes, u" Dpt confirmés"));
    comptes->addStretch();
    comptes->addWidget(nombre(u"Nb_Nconf"_s, contactee.bilan.non_confirmes, u" Dpt non confirmés"));
    comptes->addStretch();
    comptes->addWidget(nombre(u"Nb_Ncont"_s, Non_Contactes(contactee.bilan), u" Dpt non contactés"));

    auto *carte = Nomme(new Carte(this), u"Picture1"_s);
    carte->Colore_Boites(contactee.couleurs);
    auto *colonne = new QVBoxLayout(this);
    colonne->addLayout(comptes);
    colonne->addWidget(carte, 1);
    colonne->addWidget(Legende_Carte({{Couleur_Dep::Confirme, u"confirmé"_s},
                                      {Couleur_Dep::Non_Confirme, u"contacté, non confirmé"_s},
                                      {Couleur_Dep::Non_Contacte, u"non contacté"_s}},
                                     this));
    Centre(*this);
}
