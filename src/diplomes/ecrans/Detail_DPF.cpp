#include "diplomes/ecrans/Detail_DPF.h"

#include "diplomes/regles/Provinces.h"
#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"

#include <QBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace diplomes {

Detail_DPF::Detail_DPF(Poste &) : Ecran(u"Detail_DPF"_s, u"Liste des Provinces"_s)
{
    std::vector<QString> textes;
    qsizetype largeur = 0;
    for (const QStringView texte : textes_provinces) {
        textes.push_back(texte.toString());
        largeur = std::max(largeur, texte.size() + 1);
    }
    auto *rangs = Nomme(new Liste_Fixe, u"T1"_s);
    rangs->setAccessibleName(windowTitle());
    rangs->Remplit(std::move(textes));
    rangs->Reserve(static_cast<int>(largeur), static_cast<int>(nombre_provinces));
    (new QVBoxLayout(this))->addWidget(rangs);
}

} // namespace diplomes
