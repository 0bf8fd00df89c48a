#include "saisie/ecrans/Menus.h"

#include "ecrans/Nomme.h"
#include "plateforme/Commandes.h"
#include "plateforme/Ecrans.h"
#include "saisie/Menu_Principal.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {

class Constructeur {
public:
    Constructeur(QMenuBar &barre, Ecrans &ecrans, Commandes &commandes)
        : barre_(barre),
          ecrans_(ecrans),
          commandes_(commandes)
    {
    }

    void Ajoute(const Entree_Menu &entree)
    {
        const QString cible = entree.cible.toString();
        switch (entree.genre) {
        case Genre_Entree::Menu:
            menu_ = sous_menu_ = Ouvre(barre_, entree);
            break;
        case Genre_Entree::Sous_Menu:
            sous_menu_ = Ouvre(*menu_, entree);
            break;
        case Genre_Entree::Option:
            Pose(*sous_menu_, entree)->setCheckable(true);
            break;
        case Genre_Entree::Propre:
            Pose(*menu_, entree);
            break;
        case Genre_Entree::Ecran:
            Relie_Ecran(Pose(*menu_, entree), cible, false);
            break;
        case Genre_Entree::Ecran_Modal:
            Relie_Ecran(Pose(*menu_, entree), cible, true);
            break;
        case Genre_Entree::Commande:
            Relie_Commande(Pose(*menu_, entree), cible);
            break;
        case Genre_Entree::Barre:
            Relie_Commande(Pose(barre_, entree), cible);
            break;
        case Genre_Entree::Barre_Ecran:
            Relie_Ecran(Pose(barre_, entree), cible, false);
            break;
        case Genre_Entree::Separateur:
            Nomme(menu_->addSeparator(), entree.nom.toString());
            break;
        }
    }

private:
    template <typename Lieu>
    static QMenu *Ouvre(Lieu &lieu, const Entree_Menu &entree)
    {
        QMenu *menu = lieu.addMenu(entree.libelle.toString());
        Nomme(menu->menuAction(), entree.nom.toString());
        return menu;
    }

    template <typename Lieu>
    static QAction *Pose(Lieu &lieu, const Entree_Menu &entree)
    {
        return Nomme(lieu.addAction(entree.libelle.toString()), entree.nom.toString());
    }

    void Relie_Ecran(QAction *action, const QString &ecran, bool modal)
    {
        action->setEnabled(ecrans_.Connait(ecran));
        QObject::connect(action, &QAction::triggered, action, [&ecrans = ecrans_, ecran, modal] {
            if (modal)
                ecrans.Montre_Modal(ecran);
            else
                ecrans.Montre(ecran);
        });
    }

    void Relie_Commande(QAction *action, const QString &commande)
    {
        action->setEnabled(commandes_.Connait_Commande(commande));
        QObject::connect(action, &QAction::triggered, action,
                         [&commandes = commandes_, commande] { commandes.Execute(commande); });
    }

    QMenuBar &barre_;
    Ecrans &ecrans_;
    Commandes &commandes_;
    QMenu *menu_ = nullptr;
    QMenu *sous_menu_ = nullptr;
};

} // namespace

void Construit_Menus(QMenuBar &barre, Ecrans &ecrans, Commandes &commandes)
{
    Constructeur constructeur(barre, ecrans, commandes);
    for (const Entree_Menu &entree : Menu_Principal())
        constructeur.Ajoute(entree);
}
