#include "plateforme/disque/Descripteur.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>
#include <utility>

int Descripteur::Ouvre(const QString &chemin, int drapeaux, mode_t droits)
{
    const QByteArray nom = QFile::encodeName(chemin);
    // A FIFO would make the program wait for somebody at its other end.
    return Sans_Interruption([&] { return ::open(nom.constData(), drapeaux | O_CLOEXEC | O_NONBLOCK, droits); });
}

Descripteur::Descripteur(const QString &chemin, int drapeaux, mode_t droits)
    : Descripteur(Ouvre(chemin, drapeaux, droits), chemin)
{
    if (numero_ < 0)
        throw Erreur_Systeme(nom_, errno);
}

Descripteur::~Descripteur()
{
    if (numero_ >= 0)
        ::close(numero_);
}

struct stat Descripteur::Etat() const
{
    struct stat etat {};
    if (::fstat(numero_, &etat) != 0)
        throw Erreur_Systeme(nom_, errno);
    return etat;
}

void Descripteur::Exige_Un_Fichier() const
{
    const mode_t genre = Etat().st_mode;
    if (!S_ISREG(genre))
        throw Erreur_Systeme(nom_, S_ISDIR(genre) ? EISDIR : pas_un_fichier);
}

QByteArray Descripteur::Lit_Tout() const
{
    QByteArray octets(Etat().st_size, Qt::Uninitialized);
    qsizetype lus = 0;
    while (lus < octets.size()) {
        const auto reste = static_cast<std::size_t>(octets.size() - lus);
        const ssize_t morceau = Sans_Interruption([&] { return ::read(numero_, octets.data() + lus, reste); });
        if (morceau < 0)
            throw Erreur_Systeme(nom_, errno);
        if (morceau == 0)
            break;
        lus += morceau;
    }
    octets.truncate(lus);
    return octets;
}

void Descripteur::Ecrit(QByteArrayView octets) const
{
    while (!octets.empty()) {
        const auto reste = static_cast<std::size_t>(octets.size());
        const ssize_t ecrits = Sans_Interruption([&] { return ::write(numero_, octets.data(), reste); });
        if (ecrits < 0)
            throw Erreur_Systeme(nom_, errno);
        octets = octets.sliced(ecrits);
    }
}

void Descripteur::Synchronise() const
{
    if (Sans_Interruption([&] { return ::fsync(numero_); }) != 0)
        throw Erreur_Systeme(nom_, errno);
}

void Descripteur::Raccourcit(off_t taille) const
{
    if (::ftruncate(numero_, taille) != 0)
        throw Erreur_Systeme(nom_, errno);
}

void Descripteur::Ferme()
{
    if (::close(std::exchange(numero_, -1)) != 0)
        throw Erreur_Systeme(nom_, errno);
}
