#include "consultation/ecrans/Detail_TDC.h"

#include "consultation/Detail_Tour.h"
#include "consultation/ecrans/Champ_Lu.h"
#include "ecrans/Nomme.h"
#include "log/Poste.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

Detail_TDC::Detail_TDC(Poste &poste)
    : Ecran(u"Detail_TDC"_s, u"Detail de la référence"_s),
      tour_(Charge_Tour(poste, Reference_Tour(poste)))
{
    auto *formulaire = new QFormLayout(this);
    for (const Champ_Detail &champ : champs_detail_tdc)
        Ajoute_Champ_Lu(*formulaire, champ, 40);
    for (const auto &[nom, texte] : tour_)
        Montre_Debut(*findChild<QLineEdit *>(nom), texte);
    auto *site = Nomme(new QPushButton(this), u"Voir_Site"_s, u"Voir le site web de la tour"_s);
    site->setAutoDefault(true);
    connect(site, &QPushButton::clicked, this, [this, &poste] { Voir_Site(poste, tour_); });
    formulaire->addRow(site);
    Centre(*this);
}
