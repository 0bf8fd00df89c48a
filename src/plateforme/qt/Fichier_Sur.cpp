#include "plateforme/qt/Fichier_Sur.h"

#include "plateforme/Erreur_Execution.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString Raison(int numero)
{
    switch (numero) {
    case ENOENT:
        return u"fichier introuvable"_s;
    case ENOSPC:
    case EDQUOT:
        return u"le disque est plein"_s;
    case EACCES:
    case EPERM:
        return u"accès refusé"_s;
    case EROFS:
        return u"le disque est protégé en écriture"_s;
    case EISDIR:
        return u"c'est un répertoire"_s;
    case ENOTDIR:
        return u"une partie du chemin n'est pas un répertoire"_s;
    case ENAMETOOLONG:
        return u"nom de fichier trop long"_s;
    case EFBIG:
        return u"fichier trop gros"_s;
    case EIO:
        return u"le disque ne répond pas bien"_s;
    case EXDEV:
        return u"sur un autre disque que le fichier temporaire"_s;
    default:
        return u"erreur %1 du système"_s.arg(numero);
    }
}

Cause La_Cause(int numero)
{
    switch (numero) {
    case ENOENT:
        return Cause::Fichier_Introuvable;
    case ENOSPC:
    case EDQUOT:
        return Cause::Disque_Plein;
    default:
        return Cause::Fichier_Refuse;
    }
}

[[noreturn]] void Echoue(const QString &chemin, int numero)
{
    const QString fichier = QDir::toNativeSeparators(chemin);
    throw Erreur_Execution(La_Cause(numero), u"%1 (%2)"_s.arg(fichier, Raison(numero)));
}

/// A file descriptor that is closed on every way out. Qt's QFile does not tell why a write or a sync failed.
class Descripteur {
public:
    Descripteur(const QString &chemin, int drapeaux) : chemin_(chemin)
    {
        numero_ = ::open(QFile::encodeName(chemin).constData(), drapeaux | O_CLOEXEC, 0666);
        if (numero_ < 0)
            Echoue(chemin, errno);
    }
    ~Descripteur()
    {
        if (numero_ >= 0)
            ::close(numero_);
    }
    Descripteur(const Descripteur &) = delete;
    Descripteur &operator=(const Descripteur &) = delete;

    [[nodiscard]] int Numero() const { return numero_; }

    void Ecrit(QByteArrayView octets) const
    {
        while (!octets.empty()) {
            const ssize_t ecrits = ::write(numero_, octets.data(), static_cast<std::size_t>(octets.size()));
            if (ecrits < 0 && errno == EINTR)
                continue;
            if (ecrits < 0)
                Echoue(chemin_, errno);
            octets = octets.sliced(ecrits);
        }
    }

    void Synchronise() const
    {
        if (::fsync(numero_) != 0)
            Echoue(chemin_, errno);
    }

    /// A close can report a write that failed late (network folders).
    void Ferme()
    {
        if (::close(std::exchange(numero_, -1)) != 0)
            Echoue(chemin_, errno);
    }

private:
    QString chemin_;
    int numero_ = -1;
};

/// Some file systems refuse to sync a folder; the rename is then as safe as they make it.
void Synchronise_Dossier(const QString &chemin)
{
    const QByteArray dossier = QFile::encodeName(QFileInfo(chemin).absolutePath());
    const int numero = ::open(dossier.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (numero < 0)
        return;
    ::fsync(numero);
    ::close(numero);
}

void Ecrit_Temporaire(const QString &temporaire, QByteArrayView octets)
{
    Descripteur fichier(temporaire, O_WRONLY | O_CREAT | O_TRUNC);
    fichier.Ecrit(octets);
    fichier.Synchronise();
    fichier.Ferme();
}

/// A device or a pipe is no file that another can take the place of: it takes the bytes themselves.
bool Est_Un_Peripherique(const QString &chemin)
{
    struct stat etat {};
    return ::stat(QFile::encodeName(chemin).constData(), &etat) == 0 && !S_ISREG(etat.st_mode) &&
           !S_ISDIR(etat.st_mode);
}

void Ecrit_Au_Peripherique(const QString &chemin, QByteArrayView octets)
{
    Descripteur peripherique(chemin, O_WRONLY);
    peripherique.Ecrit(octets);
    peripherique.Ferme();
}

struct stat Etat(const Descripteur &fichier, const QString &chemin)
{
    struct stat etat {};
    if (::fstat(fichier.Numero(), &etat) != 0)
        Echoue(chemin, errno);
    return etat;
}

/// A last character that cannot be read is a failure: two lines might join.
bool Finit_Sans_Ligne(const Descripteur &fichier, const QString &chemin, off_t taille)
{
    char dernier = '\n';
    if (taille > 0 && ::pread(fichier.Numero(), &dernier, 1, taille - 1) < 0)
        Echoue(chemin, errno);
    return dernier != '\n';
}

/// A log that is a link keeps being one: what it points to is replaced.
QString Cible_Reelle(const QString &chemin)
{
    const QString reel = QFileInfo(chemin).canonicalFilePath();
    return reel.isEmpty() ? chemin : reel;
}

} // namespace

void Remplace_Fichier(const QString &cible, QByteArrayView octets, const QString &temporaire)
{
    const QString reelle = Cible_Reelle(cible);
    if (Est_Un_Peripherique(reelle)) {
        Ecrit_Au_Peripherique(reelle, octets);
        return;
    }
    try {
        Ecrit_Temporaire(temporaire, octets);
        struct stat ancien {};
        const QByteArray cible_octets = QFile::encodeName(reelle);
        if (::stat(cible_octets.constData(), &ancien) == 0) {
            // A file that may not be written is not replaced behind its owner's back.
            if (S_ISDIR(ancien.st_mode))
                Echoue(reelle, EISDIR);
            if (::access(cible_octets.constData(), W_OK) != 0)
                Echoue(reelle, errno);
            ::chmod(QFile::encodeName(temporaire).constData(), ancien.st_mode & 07777);
        }
        if (::rename(QFile::encodeName(temporaire).constData(), cible_octets.constData()) != 0)
            Echoue(reelle, errno);
    } catch (const Erreur_Execution &erreur) {
        ::unlink(QFile::encodeName(temporaire).constData());
        // The user knows the log by its name, not the temporary file that could not be written.
        throw Erreur_Execution(erreur.La_Cause(),
                               u"%1 n'a pas été modifié : %2"_s.arg(QDir::toNativeSeparators(reelle), erreur.Texte()));
    }
    Synchronise_Dossier(reelle);
}

void Ajoute_Au_Fichier(const QString &chemin, QByteArrayView ligne)
{
    const bool nouveau = !QFileInfo::exists(chemin);
    Descripteur fichier(chemin, O_RDWR | O_CREAT | O_APPEND);
    const off_t taille = Etat(fichier, chemin).st_size;
    QByteArray octets;
    if (Finit_Sans_Ligne(fichier, chemin, taille))
        octets += "\r\n";
    octets += ligne;
    try {
        fichier.Ecrit(octets);
        fichier.Synchronise();
        fichier.Ferme();
    } catch (const Erreur_Execution &) {
        // A line that was cut by a full disk must not stay behind, nor a file that was born for it.
        const QByteArray nom = QFile::encodeName(chemin);
        std::ignore = nouveau ? ::unlink(nom.constData()) : ::truncate(nom.constData(), taille);
        throw;
    }
    if (nouveau)
        Synchronise_Dossier(chemin);
}

void Cree_Fichier_Absent(const QString &chemin)
{
    const int numero = ::open(QFile::encodeName(chemin).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (numero < 0) {
        if (errno == EEXIST)
            return;
        Echoue(chemin, errno);
    }
    ::close(numero);
    Synchronise_Dossier(chemin);
}

void Supprime_Fichier(const QString &chemin)
{
    if (::unlink(QFile::encodeName(chemin).constData()) != 0)
        Echoue(chemin, errno);
}

QByteArray Lit_Fichier(const QString &chemin)
{
    const Descripteur fichier(chemin, O_RDONLY);
    const struct stat etat = Etat(fichier, chemin);
    if (S_ISDIR(etat.st_mode))
        Echoue(chemin, EISDIR);
    QByteArray octets(etat.st_size, Qt::Uninitialized);
    qsizetype lus = 0;
    while (lus < octets.size()) {
        const ssize_t morceau =
            ::read(fichier.Numero(), octets.data() + lus, static_cast<std::size_t>(octets.size() - lus));
        if (morceau < 0 && errno == EINTR)
            continue;
        if (morceau < 0)
            Echoue(chemin, errno);
        if (morceau == 0)
            break;
        lus += morceau;
    }
    octets.truncate(lus);
    return octets;
}
