#include "plateforme/disque/Verrou.h"

#include "plateforme/disque/Descripteur.h"

#include <QFile>
#include <QSysInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

int Ouvre_Verrou(const QString &chemin)
{
    const int numero = Descripteur::Ouvre(chemin, O_RDWR | O_CREAT | O_NOFOLLOW, 0666);
    // A lock file that another user left serves as well.
    return numero < 0 && errno == EACCES ? Descripteur::Ouvre(chemin, O_RDONLY | O_NOFOLLOW) : numero;
}

int Prend(int numero)
{
    return Sans_Interruption([&] { return ::flock(numero, LOCK_EX | LOCK_NB); });
}

/// False and errno after a second: whoever holds the lock may be stopped for long.
bool Attend(int numero)
{
    constexpr int essais = 50;
    constexpr useconds_t pause_us = 20'000;
    for (int essai = 0; essai < essais; ++essai) {
        if (Prend(numero) == 0)
            return true;
        if (errno != EWOULDBLOCK)
            return false;
        ::usleep(pause_us);
    }
    return false;
}

/// False where the holder before took the file away between our open and our lock.
bool Porte_Encore_Son_Nom(int numero, const QString &chemin)
{
    struct stat ouvert {};
    struct stat nomme {};
    return ::fstat(numero, &ouvert) == 0 && ::stat(QFile::encodeName(chemin).constData(), &nomme) == 0 &&
           ouvert.st_ino == nomme.st_ino && ouvert.st_dev == nomme.st_dev;
}

void Ecrit_Qui_Le_Tient(int numero)
{
    const QByteArray texte =
        u"%1\nVorlain\n%2\n"_s.arg(QString::number(::getpid()), QSysInfo::machineHostName()).toUtf8();
    if (::ftruncate(numero, 0) == 0)
        (void)!::write(numero, texte.constData(), static_cast<std::size_t>(texte.size()));
}

} // namespace

Verrou::Verrou(Verrou &&autre) noexcept
    : etat_(autre.etat_),
      raison_(std::move(autre.raison_)),
      chemin_(std::exchange(autre.chemin_, {})),
      numero_(std::exchange(autre.numero_, -1))
{
}

Verrou::~Verrou()
{
    if (numero_ < 0)
        return;
    if (etat_ == Etat::Pris && !chemin_.isEmpty())
        ::unlink(QFile::encodeName(chemin_).constData());
    ::close(numero_);
}

void Verrou::Refuse(int erreur)
{
    etat_ = erreur == EWOULDBLOCK ? Etat::Occupe : Etat::Impossible;
    raison_ = Raison(erreur);
}

Verrou Verrouille_Fichier(const QString &chemin)
{
    for (;;) {
        Verrou verrou;
        verrou.numero_ = Ouvre_Verrou(chemin);
        if (verrou.numero_ < 0 || Prend(verrou.numero_) != 0) {
            verrou.Refuse(errno);
            return verrou;
        }
        if (!Porte_Encore_Son_Nom(verrou.numero_, chemin))
            continue;
        verrou.etat_ = Verrou::Etat::Pris;
        verrou.chemin_ = chemin;
        Ecrit_Qui_Le_Tient(verrou.numero_);
        return verrou;
    }
}

Verrou Verrouille_Repertoire(const QString &chemin)
{
    Verrou verrou;
    verrou.numero_ = Descripteur::Ouvre(chemin, O_RDONLY | O_DIRECTORY);
    if (verrou.numero_ >= 0 && Attend(verrou.numero_))
        verrou.etat_ = Verrou::Etat::Pris;
    else
        verrou.Refuse(errno);
    return verrou;
}
