#include "listes/ecrans/Liste_References.h"

#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"
#include "listes/References.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype colonnes_montrees = 110;
constexpr int lignes_montrees = 25;

/// The columns of the widest text, as far as the desktop has room; the rest is scrolled to.
int Colonnes(const Vue_References &vue)
{
    qsizetype colonnes = vue.entete.size();
    for (const QString &entree : vue.entrees)
        colonnes = std::max(colonnes, entree.size());
    return static_cast<int>(std::min(colonnes, colonnes_montrees));
}

} // namespace

Liste_References::Liste_References(Poste &poste) : Ecran(u"Liste_References"_s, {})
{
    const Vue_References vue = Lit_References(poste.dossier, poste.etat.station.diplome);
    setWindowTitle(vue.titre);
    auto *liste = Nomme(new Liste_Fixe(this), u"Liste_Ref"_s);
    auto *entete = Nomme(new QLabel(this), u"Entete_Ref"_s, vue.entete);
    liste->setAccessibleName(vue.titre);
    liste->Pose_Entete(entete);
    // The entries of one list differ in width.
    liste->setUniformItemSizes(false);
    liste->Reserve(Colonnes(vue), lignes_montrees);
    liste->Remplit(vue.entrees);
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(liste);
    Centre(*this);
    liste->Selectionne(0);
    liste->setFocus();
}
