#include "plateforme/Erreur_Execution.h"
#include "plateforme/disque/Fichier_Sur.h"
#include "plateforme/qt/Boites_Qt.h"
#include "plateforme/qt/Horloge_Systeme.h"
#include "programme/Application.h"
#include "programme/Ligne_Commande.h"
#include "programme/Programme.h"
#include "programme/Repertoire.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// The program from its first step to the close of the main screen; gives the exit status.
int Tourne(const Ligne_Commande &ligne)
{
    const QString repertoire = ligne.repertoire.isEmpty() ? Repertoire_Appli() : ligne.repertoire;
    const bool absent = !Existe_Fichier(repertoire);
    const Verrou verrou = Prend_Repertoire(repertoire);
    if (const QString message = Message_Verrou(verrou, repertoire); !message.isEmpty())
        Boites_Qt().Message(message);
    if (verrou.L_Etat() == Verrou::Etat::Occupe)
        return 1;
    const Horloge_Systeme horloge;
    Programme programme(repertoire, horloge);
    if (absent || programme.Est_Neuf())
        programme.Installe();
    programme.Ouvre();
    if (!ligne.fichier_adif.isEmpty())
        programme.Propose(ligne.fichier_adif);
    return QApplication::exec();
}

QStringList Textes(int nombre, char **arguments)
{
    QStringList textes;
    for (int rang = 0; rang < nombre; ++rang)
        textes += QString::fromLocal8Bit(arguments[rang]);
    return textes;
}

int Repond(const Ligne_Commande::Reponse &reponse)
{
    std::fputs(reponse.texte.toLocal8Bit().constData(), reponse.statut == 0 ? stdout : stderr);
    return reponse.statut;
}

} // namespace

int main(int nombre, char **arguments)
{
    const Ligne_Commande ligne = Lit_Ligne_Commande(Textes(nombre, arguments));
    if (ligne.reponse)
        return Repond(*ligne.reponse);
    QCoreApplication::setOrganizationName(u"Vorlain"_s);
    QCoreApplication::setApplicationName(u"Vorlain"_s);
    const Application application(nombre, arguments);
    try {
        return Tourne(ligne);
    } catch (const Erreur_Execution &erreur) {
        Termine_Sur(erreur);
    }
}
