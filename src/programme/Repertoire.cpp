#include "programme/Repertoire.h"

#include "plateforme/Erreur_Execution.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString Repertoire_Appli()
{
    const QString choisi = qEnvironmentVariable("VORLAIN_REPERTOIRE");
    if (!choisi.isEmpty())
        return QDir(choisi).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

std::unique_ptr<QLockFile> Prend_Repertoire(const QString &repertoire)
{
    if (!QDir().mkpath(repertoire))
        throw Erreur_Execution(Cause::Fichier_Refuse,
                               u"le répertoire %1 ne peut pas être créé"_s.arg(QDir::toNativeSeparators(repertoire)));
    auto verrou = std::make_unique<QLockFile>(QDir(repertoire).filePath(u".vorlain.lock"_s));
    // The lock of a program that died is taken over at once; that of a living one never goes stale.
    verrou->setStaleLockTime(0);
    if (verrou->tryLock())
        return verrou;
    if (verrou->error() == QLockFile::LockFailedError)
        return nullptr;
    throw Erreur_Execution(Cause::Fichier_Refuse, u"le répertoire %1 n'est pas accessible en écriture"_s.arg(
                                                      QDir::toNativeSeparators(repertoire)));
}
