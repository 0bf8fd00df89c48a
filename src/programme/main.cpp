//#include "listes/Fichiers_De_Depart.h"
#include "saisie/ecrans/Main.h"
#include "log/Etat_Commun.h"
#include "plateforme/Erreur_Execution.h"
#include "plateforme/Ports.h"
#include "plateforme/qt/Boites_Qt.h"
#include "plateforme/qt/Dossier_Disque.h"
#include "plateforme/qt/Horloge_Systeme.h"
#include "plateforme/qt/Reglages_Qt.h"
#include "programme/Application.h"
#include "programme/Demarrage.h"
#include "programme/Inscriptions.h"
#include "programme/Registre.h"
#include "programme/Repertoire.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// The program from its first step to the close of the main screen; gives the exit status.
int Tourne()
{
    Boites_Qt boites;
    const QString repertoire = Repertoire_Appli();
    const bool premiere_fois = !QDir(repertoire).exists();
    const std::unique_ptr<QLockFile> verrou = Prend_Repertoire(repertoire);
    if (!verrou) {
        boites.Message(u"Vorlain est déjà ouvert sur le répertoire %1"_s.arg(QDir::toNativeSeparators(repertoire)));
        return 1;
    }
    Dossier_Disque dossier(repertoire);
    if (premiere_fois)
        dossier.Cree_Si_Absent(u"Liste_Prenom.txt"_s);

    Reglages_Qt reglages;
    Horloge_Systeme horloge;
    Registre registre;
    Etat_Commun etat;
    const Ports ports{dossier, reglages, horloge, boites, registre};
    Main ecran(ports, etat);
    Inscrit(registre, ecran.Le_Poste(), ecran);
    ecran.Installe_Menus(registre);
    Demarre(ecran.Le_Poste(), ecran);
    return QApplication::exec();
}

} // namespace

int main(int nombre, char **arguments)
{
    QCoreApplication::setOrganizationName(u"Vorlain"_s);
    QCoreApplication::setApplicationName(u"Vorlain"_s);
    const Application application(nombre, arguments);
    try {
        return Tourne();
    } catch (const Erreur_Execution &erreur) {
        Termine_Sur(erreur);
    }
}
