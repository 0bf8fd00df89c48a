#include "consultation/ecrans/Ecran_Web.h"

#include "consultation/Pages_Web.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Vue_Web.h"

#include <QSizePolicy>

using namespace Qt::StringLiterals;

Ecran_Web::Ecran_Web(Poste &poste, const QString &nom, const QString &titre)
    : Ecran(nom, titre),
      poste_(poste),
      vue_(poste.vues_web.Nouvelle(this))
{
    Controle_Web()->setObjectName(u"WebBrowser1"_s);
    // Room for a page, in the measure of the font.
    Controle_Web()->setMinimumSize(fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 36);
    Controle_Web()->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

Ecran_Web::~Ecran_Web() = default;

QWidget *Ecran_Web::Controle_Web()
{
    return vue_->Controle();
}

void Ecran_Web::Montre_Page()
{
    if (poste_.etat.adresse_page.isEmpty())
        vue_->Dit(Message_Sans_Serveur());
    else
        vue_->Navigue(poste_.etat.adresse_page);
}
