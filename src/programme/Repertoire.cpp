#include "programme/Repertoire.h"

#include "log/Copies.h"
#include "plateforme/Erreur_Execution.h"
#include "plateforme/disque/Fichier_Sur.h"

#include <QDir>
#include <QStandardPaths>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void Exige_Un_Repertoire(const QString &repertoire)
{
    try {
        Cree_Repertoire(repertoire);
    } catch (const Erreur_Execution &erreur) {
        throw Erreur_Execution(erreur.La_Cause(), u"le répertoire %1 ne peut pas être créé : %2"_s.arg(
                                                      QDir::toNativeSeparators(repertoire), erreur.Texte()));
    }
    if (!QDir(repertoire).exists() || ::access(QFile::encodeName(repertoire).constData(), W_OK | X_OK) != 0)
        throw Erreur_Execution(Cause::Fichier_Refuse, u"le répertoire %1 n'est pas accessible en écriture"_s.arg(
                                                          QDir::toNativeSeparators(repertoire)));
}

} // namespace

QString Repertoire_Appli()
{
    const QString choisi = qEnvironmentVariable("VORLAIN_REPERTOIRE");
    if (!choisi.isEmpty())
        return QDir(choisi).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

Verrou Prend_Repertoire(const QString &repertoire)
{
    Exige_Un_Repertoire(repertoire);
    Verrou verrou = Verrouille_Fichier(QDir(repertoire).filePath(u".vorlain.lock"_s));
    if (verrou.L_Etat() == Verrou::Etat::Pris) {
        Retire_Restes(repertoire);
        Retire_Restes(QDir(repertoire).filePath(repertoire_copies.toString()));
    }
    return verrou;
}

QString Message_Verrou(const Verrou &verrou, const QString &repertoire)
{
    const QString nom = QDir::toNativeSeparators(repertoire);
    switch (verrou.L_Etat()) {
    case Verrou::Etat::Occupe:
        return u"Vorlain est déjà ouvert sur le répertoire %1"_s.arg(nom);
    case Verrou::Etat::Impossible:
        return u"Attention le répertoire %1 ne peut pas être verrouillé (%2).\n"
               u"N'ouvrez pas Vorlain une seconde fois sur ce répertoire."_s.arg(nom, verrou.Raison_Du_Refus());
    case Verrou::Etat::Pris:
        break;
    }
    return {};
}
