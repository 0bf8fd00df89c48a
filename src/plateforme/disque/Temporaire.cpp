#include "plateforme/disque/Temporaire.h"

#include "plateforme/disque/Fichier_Sur.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString Nom_Propre(const QString &radical)
{
    return radical + u'.' + QString::number(QRandomGenerator::system()->generate(), 16).rightJustified(8, u'0');
}

void Retire_Le_Sien(const QString &chemin)
{
    const QByteArray octets = QFile::encodeName(chemin);
    struct stat etat {};
    if (::lstat(octets.constData(), &etat) == 0 && S_ISREG(etat.st_mode) && etat.st_uid == ::geteuid())
        ::unlink(octets.constData());
}

} // namespace

Temporaire::Temporaire(const QString &reelle, const QString &radical, const QString &nom, mode_t droits)
    : nom_(nom),
      radical_(QFileInfo(reelle).absolutePath() + u'/' + QFileInfo(radical).fileName()),
      fichier_(Fait(droits), nom)
{
}

Temporaire::~Temporaire()
{
    if (reste_)
        ::unlink(QFile::encodeName(chemin_).constData());
}

int Temporaire::Fait(mode_t droits)
{
    constexpr int essais = 100;
    for (int essai = 1;; ++essai) {
        chemin_ = Nom_Propre(radical_);
        const int numero = Descripteur::Ouvre(chemin_, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, droits);
        if (numero >= 0)
            return numero;
        if (errno != EEXIST || essai == essais)
            throw Erreur_Systeme(nom_, errno);
    }
}

void Temporaire::Remplit(QByteArrayView octets, const std::optional<struct stat> &ancien)
{
    fichier_.Ecrit(octets);
    if (ancien) {
        // Only root may give a file away; a change of owner takes some modes along, so it comes first.
        (void)!::fchown(fichier_.Numero(), ancien->st_uid, ancien->st_gid);
        (void)!::fchmod(fichier_.Numero(), ancien->st_mode & 07777);
    }
    fichier_.Synchronise();
    fichier_.Ferme();
}

void Temporaire::Devient(const QString &reelle)
{
    if (std::rename(QFile::encodeName(chemin_).constData(), QFile::encodeName(reelle).constData()) != 0)
        throw Erreur_Systeme(nom_, errno);
    reste_ = false;
    // An earlier version of the program left its temporary under the bare name.
    Retire_Le_Sien(radical_);
}

void Retire_Restes(const QString &repertoire)
{
    static const QRegularExpression reste(
        u"^(Temporaire\\w*\\.(txt|log)|.+\\.(log|bak|csv|txt|conf)\\.tmp)(\\.[0-9a-f]{8})?$"_s);
    QDirIterator noms(repertoire, QDir::Files | QDir::Hidden);
    while (noms.hasNext()) {
        noms.next();
        if (reste.match(noms.fileName()).hasMatch())
            Retire_Le_Sien(noms.filePath());
    }
}
