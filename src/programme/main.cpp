#include "plateforme/Erreur_Execution.h"
#include "plateforme/qt/Boites_Qt.h"
#include "plateforme/qt/Horloge_Systeme.h"
#include "programme/Application.h"
#include "programme/Programme.h"
#include "programme/Repertoire.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// The program from its first step to the close of the main screen; gives the exit status.
int Tourne()
{
    const QString repertoire = Repertoire_Appli();
    const bool premiere_fois = !QDir(repertoire).exists();
    const std::unique_ptr<QLockFile> verrou = Prend_Repertoire(repertoire);
    if (!verrou) {
        Boites_Qt().Message(
            u"Vorlain est déjà ouvert sur le répertoire %1"_s.arg(QDir::toNativeSeparators(repertoire)));
        return 1;
    }
    const Horloge_Systeme horloge;
    Programme programme(repertoire, horloge);
    if (premiere_fois)
        programme.Installe();
    programme.Ouvre();
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
