#include "programme/Ligne_Commande.h"

#include "log/Historique.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString Aide()
{
    return uR"(Usage : vorlain [option]... [fichier.adi]

Carnet de trafic des diplômes d'activité français. Avec un fichier ADIF, l'écran
d'import s'ouvre, ce fichier choisi.

Options :
  -h, --help              affiche cette aide et termine
  -v, --version           affiche la version et termine
  --repertoire <dossier>  travaille sur les logs et les listes de ce dossier
)"_s;
}

/// What QApplication takes out of the arguments for itself.
void Ajoute_Options_De_Qt(QCommandLineParser &lecteur)
{
    for (const QString &nom :
         {u"platform"_s, u"platformpluginpath"_s, u"platformtheme"_s, u"plugin"_s, u"qwindowgeometry"_s,
          u"qwindowicon"_s, u"qwindowtitle"_s, u"session"_s, u"display"_s, u"geometry"_s, u"style"_s, u"stylesheet"_s})
        lecteur.addOption(QCommandLineOption(nom, {}, nom));
    for (const QString &nom : {u"reverse"_s, u"nograb"_s})
        lecteur.addOption(QCommandLineOption(nom));
}

Ligne_Commande Refuse(const QString &cause)
{
    return {.reponse = Ligne_Commande::Reponse{u"vorlain : "_s + cause + u"\nvorlain --help affiche l'aide\n"_s,
                                               statut_mauvaise_commande}};
}

/// Why the parser did not understand the line.
QString Cause_Du_Refus(const QCommandLineParser &lecteur)
{
    const QStringList inconnues = lecteur.unknownOptionNames();
    if (!inconnues.isEmpty())
        return u"option inconnue : "_s + inconnues.front();
    return u"une option n'a pas la valeur qu'il lui faut, ou en a une de trop"_s;
}

} // namespace

Ligne_Commande Lit_Ligne_Commande(const QStringList &arguments)
{
    QCommandLineParser lecteur;
    lecteur.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption aide(QStringList{u"h"_s, u"help"_s});
    const QCommandLineOption version(QStringList{u"v"_s, u"version"_s});
    const QCommandLineOption repertoire(u"repertoire"_s, {}, u"dossier"_s);
    lecteur.addOptions({aide, version, repertoire});
    Ajoute_Options_De_Qt(lecteur);
    if (!lecteur.parse(arguments))
        return Refuse(Cause_Du_Refus(lecteur));
    if (lecteur.isSet(aide))
        return {.reponse = Ligne_Commande::Reponse{Aide()}};
    if (lecteur.isSet(version))
        return {.reponse = Ligne_Commande::Reponse{u"Vorlain "_s + version_vorlain + u'\n'}};
    if (lecteur.isSet(repertoire) && lecteur.value(repertoire).isEmpty())
        return Refuse(u"--repertoire demande un dossier"_s);
    const QStringList fichiers = lecteur.positionalArguments();
    if (fichiers.size() > 1)
        return Refuse(u"un seul fichier ADIF à la fois"_s);
    Ligne_Commande ligne;
    if (lecteur.isSet(repertoire))
        ligne.repertoire = QDir(lecteur.value(repertoire)).absolutePath();
    if (!fichiers.isEmpty())
        ligne.fichier_adif = QFileInfo(fichiers.front()).absoluteFilePath();
    return ligne;
}
