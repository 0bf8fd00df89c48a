#include "consultation/ecrans/Ecran_Detail.h"

#include "consultation/ecrans/Champ_Lu.h"
#include "ecrans/Nomme.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

Ecran_Detail::Ecran_Detail(Poste &poste, const Fiche_Detail &fiche)
    : Ecran(fiche.ecran.toString(), u"Detail de la référence"_s)
{
    auto *formulaire = new QFormLayout(this);
    formulaire->addRow(Nomme(new QLabel(this), u"Titre"_s, u"Detail de la référence"_s));
    for (const Champ_Detail &champ : fiche.champs)
        Ajoute_Champ_Lu(*formulaire, champ, 40);
    for (const auto &[nom, texte] : Cherche_Detail(poste, fiche, Reference_Selectionnee(poste, fiche)))
        Montre_Debut(*findChild<QLineEdit *>(nom), texte);
    Centre(*this);
}
