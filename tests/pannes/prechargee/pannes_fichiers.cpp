// File calls of the C library, counted and broken below the watched folders. Everything else goes straight through.

#include "Pannes_Fichiers.h"

#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

// The function of that name which this library hides.
#define SUIVANTE(nom) static const auto suivante = reinterpret_cast<decltype(&::nom)>(::dlsym(RTLD_NEXT, #nom))

namespace {

Plan_De_Panne plan;
bool armee = false;
long compte = 0;
// No object with a constructor: the environment is read before those run.
char dossiers[4 * PATH_MAX];

enum class Sort { Passe, Echoue, Court };

ssize_t Vrai_Write(int fd, const void *octets, size_t taille)
{
    SUIVANTE(write);
    return suivante(fd, octets, taille);
}

ssize_t Vrai_Readlink(const char *chemin, char *place, size_t taille)
{
    SUIVANTE(readlink);
    return suivante(chemin, place, taille);
}

bool Surveille(std::string_view chemin)
{
    std::string_view reste = dossiers;
    while (!reste.empty()) {
        const std::string_view dossier = reste.substr(0, reste.find(':'));
        if (!dossier.empty() && chemin.starts_with(dossier) &&
            (chemin.size() == dossier.size() || chemin[dossier.size()] == '/'))
            return true;
        reste.remove_prefix(std::min(reste.size(), dossier.size() + 1));
    }
    return false;
}

std::string Chemin_De(int fd)
{
    char lien[64];
    std::snprintf(lien, sizeof lien, "/proc/self/fd/%d", fd);
    char chemin[PATH_MAX];
    const ssize_t taille = Vrai_Readlink(lien, chemin, sizeof chemin);
    return taille > 0 ? std::string(chemin, static_cast<size_t>(taille)) : std::string();
}

std::string Chemin_Depuis(int dossier, const char *chemin)
{
    if (chemin == nullptr)
        return {};
    if (chemin[0] == '/' || dossier == AT_FDCWD)
        return chemin;
    const std::string base = Chemin_De(dossier);
    return chemin[0] == '\0' ? base : base + '/' + chemin;
}

[[noreturn]] void Meurt()
{
    ::kill(::getpid(), SIGKILL);
    for (;;)
        ::pause();
}

Sort Point(Genre_Appel genre, const char *appel, const std::string &chemin)
{
    if (!Surveille(chemin))
        return Sort::Passe;
    ++compte;
    if (plan.journal >= 0) {
        const std::string ligne = static_cast<char>(genre) + (appel + (' ' + chemin)) + '\n';
        (void)!Vrai_Write(plan.journal, ligne.data(), ligne.size());
    }
    const bool vise = plan.point > 0 && (compte == plan.point || (plan.suite && compte > plan.point));
    if (!vise || !Concerne(plan, genre))
        return Sort::Passe;
    if (plan.genre == Genre_Panne::Tue)
        Meurt();
    if (plan.genre != Genre_Panne::Echoue)
        return Sort::Court;
    errno = plan.erreur;
    return Sort::Echoue;
}

Sort Au_Chemin(Genre_Appel genre, const char *appel, const char *chemin, int dossier = AT_FDCWD)
{
    return armee ? Point(genre, appel, Chemin_Depuis(dossier, chemin)) : Sort::Passe;
}

Sort Au_Descripteur(Genre_Appel genre, const char *appel, int fd)
{
    return armee ? Point(genre, appel, Chemin_De(fd)) : Sort::Passe;
}

constexpr size_t Moitie(size_t taille)
{
    return taille > 1 ? taille / 2 : taille;
}

Genre_Appel Genre_Ouverture(int drapeaux)
{
    const bool cree = (drapeaux & O_CREAT) != 0 || (drapeaux & O_TMPFILE) == O_TMPFILE;
    return cree ? Genre_Appel::Cree : Genre_Appel::Ouvre;
}

bool Prend_Un_Mode(int drapeaux)
{
    return Genre_Ouverture(drapeaux) == Genre_Appel::Cree;
}

/// A half write of a process that dies from it.
template <typename Ecriture>
ssize_t Ecrit_A_Moitie(Ecriture &&ecriture)
{
    const ssize_t ecrits = ecriture();
    if (plan.genre == Genre_Panne::Coupe)
        Meurt();
    return ecrits;
}

const char *Variable(const char *nom)
{
    const char *valeur = std::getenv(nom);
    return valeur ? valeur : "";
}

__attribute__((constructor)) void Arme_Selon_L_Environnement()
{
    if (*Variable("PANNES_DOSSIERS") == '\0')
        return;
    Plan_De_Panne demande;
    demande.dossiers = Variable("PANNES_DOSSIERS");
    demande.point = std::atol(Variable("PANNES_POINT"));
    demande.genre = static_cast<Genre_Panne>(std::atoi(Variable("PANNES_GENRE")));
    demande.erreur = std::atoi(Variable("PANNES_ERREUR"));
    demande.suite = *Variable("PANNES_SUITE") == '1';
    if (*Variable("PANNES_JOURNAL") != '\0') {
        SUIVANTE(open);
        demande.journal = suivante(Variable("PANNES_JOURNAL"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    }
    Arme_Pannes(&demande);
}

} // namespace

extern "C" {

void Arme_Pannes(const Plan_De_Panne *demande)
{
    plan = *demande;
    std::snprintf(dossiers, sizeof dossiers, "%s", demande->dossiers);
    compte = 0;
    armee = dossiers[0] != '\0';
}

// clang-format off
#define OUVERTURE(nom)                                                                                                 \
    int nom(const char *chemin, int drapeaux, ...)                                                                     \
    {                                                                                                                  \
        SUIVANTE(nom);                                                                                                 \
        va_list suite;                                                                                                 \
        va_start(suite, drapeaux);                                                                                     \
        const mode_t mode = Prend_Un_Mode(drapeaux) ? va_arg(suite, mode_t) : 0;                                       \
        va_end(suite);                                                                                                 \
        if (Au_Chemin(Genre_Ouverture(drapeaux), #nom, chemin) == Sort::Echoue)                                        \
            return -1;                                                                                                 \
        return suivante(chemin, drapeaux, mode);                                                                       \
    }
OUVERTURE(open)
OUVERTURE(open64)

#define OUVERTURE_DEPUIS(nom)                                                                                          \
    int nom(int dossier, const char *chemin, int drapeaux, ...)                                                        \
    {                                                                                                                  \
        SUIVANTE(nom);                                                                                                 \
        va_list suite;                                                                                                 \
        va_start(suite, drapeaux);                                                                                     \
        const mode_t mode = Prend_Un_Mode(drapeaux) ? va_arg(suite, mode_t) : 0;                                       \
        va_end(suite);                                                                                                 \
        if (Au_Chemin(Genre_Ouverture(drapeaux), #nom, chemin, dossier) == Sort::Echoue)                               \
            return -1;                                                                                                 \
        return suivante(dossier, chemin, drapeaux, mode);                                                              \
    }
OUVERTURE_DEPUIS(openat)
OUVERTURE_DEPUIS(openat64)

#define LECTURE(nom, parametres, arguments, genre, octets, taille)                                                     \
    ssize_t nom parametres                                                                                             \
    {                                                                                                                  \
        SUIVANTE(nom);                                                                                                 \
        const Sort sort = Au_Descripteur(genre, #nom, fd);                                                             \
        if (sort == Sort::Echoue)                                                                                      \
            return -1;                                                                                                 \
        if (sort == Sort::Court) {                                                                                     \
            taille = Moitie(taille);                                                                                   \
            return Ecrit_A_Moitie([&] { return suivante arguments; });                                                 \
        }                                                                                                              \
        return suivante arguments;                                                                                     \
    }
LECTURE(read, (int fd, void *octets, size_t taille), (fd, octets, taille), Genre_Appel::Lit, octets, taille)
LECTURE(pread, (int fd, void *octets, size_t taille, off_t ou), (fd, octets, taille, ou), Genre_Appel::Lit, octets, taille)
LECTURE(pread64, (int fd, void *octets, size_t taille, off64_t ou), (fd, octets, taille, ou), Genre_Appel::Lit, octets, taille)
LECTURE(write, (int fd, const void *octets, size_t taille), (fd, octets, taille), Genre_Appel::Ecrit, octets, taille)
LECTURE(pwrite, (int fd, const void *octets, size_t taille, off_t ou), (fd, octets, taille, ou), Genre_Appel::Ecrit, octets, taille)
LECTURE(pwrite64, (int fd, const void *octets, size_t taille, off64_t ou), (fd, octets, taille, ou), Genre_Appel::Ecrit, octets, taille)

// A call on a path or on a descriptor, with the result -1 where it fails.
#define APPEL(type, nom, parametres, arguments, lieu)                                                                  \
    type nom parametres                                                                                                \
    {                                                                                                                  \
        SUIVANTE(nom);                                                                                                 \
        if (lieu == Sort::Echoue)                                                                                      \
            return -1;                                                                                                 \
        return suivante arguments;                                                                                     \
    }
#define CHEMIN(genre, nom) Au_Chemin(Genre_Appel::genre, nom, chemin)
#define DEPUIS(genre, nom) Au_Chemin(Genre_Appel::genre, nom, chemin, dossier)
#define OUVERT(genre, nom) Au_Descripteur(Genre_Appel::genre, nom, fd)

APPEL(int, creat, (const char *chemin, mode_t mode), (chemin, mode), CHEMIN(Cree, "creat"))
APPEL(int, creat64, (const char *chemin, mode_t mode), (chemin, mode), CHEMIN(Cree, "creat64"))
APPEL(ssize_t, writev, (int fd, const iovec *morceaux, int nombre), (fd, morceaux, nombre), OUVERT(Ecrit, "writev"))
APPEL(int, fsync, (int fd), (fd), OUVERT(Synchronise, "fsync"))
APPEL(int, fdatasync, (int fd), (fd), OUVERT(Synchronise, "fdatasync"))
APPEL(int, rename, (const char *chemin, const char *vers) noexcept, (chemin, vers), CHEMIN(Deplace, "rename"))
APPEL(int, renameat, (int dossier, const char *chemin, int autre, const char *vers) noexcept, (dossier, chemin, autre, vers), DEPUIS(Deplace, "renameat"))
APPEL(int, renameat2, (int dossier, const char *chemin, int autre, const char *vers, unsigned drapeaux) noexcept, (dossier, chemin, autre, vers, drapeaux), DEPUIS(Deplace, "renameat2"))
APPEL(int, link, (const char *chemin, const char *vers) noexcept, (chemin, vers), CHEMIN(Deplace, "link"))
// An unnamed temporary is linked from /proc: the new name tells where.
APPEL(int, linkat, (int source, const char *de, int dossier, const char *chemin, int drapeaux) noexcept, (source, de, dossier, chemin, drapeaux), DEPUIS(Deplace, "linkat"))
APPEL(int, symlink, (const char *vers, const char *chemin) noexcept, (vers, chemin), CHEMIN(Deplace, "symlink"))
APPEL(int, mkdir, (const char *chemin, mode_t mode) noexcept, (chemin, mode), CHEMIN(Deplace, "mkdir"))
APPEL(int, mkdirat, (int dossier, const char *chemin, mode_t mode) noexcept, (dossier, chemin, mode), DEPUIS(Deplace, "mkdirat"))
APPEL(int, unlink, (const char *chemin) noexcept, (chemin), CHEMIN(Retire, "unlink"))
APPEL(int, unlinkat, (int dossier, const char *chemin, int drapeaux) noexcept, (dossier, chemin, drapeaux), DEPUIS(Retire, "unlinkat"))
APPEL(int, rmdir, (const char *chemin) noexcept, (chemin), CHEMIN(Retire, "rmdir"))
APPEL(int, truncate, (const char *chemin, off_t taille) noexcept, (chemin, taille), CHEMIN(Regle, "truncate"))
APPEL(int, truncate64, (const char *chemin, off64_t taille) noexcept, (chemin, taille), CHEMIN(Regle, "truncate64"))
APPEL(int, ftruncate, (int fd, off_t taille) noexcept, (fd, taille), OUVERT(Regle, "ftruncate"))
APPEL(int, ftruncate64, (int fd, off64_t taille) noexcept, (fd, taille), OUVERT(Regle, "ftruncate64"))
APPEL(int, chmod, (const char *chemin, mode_t mode) noexcept, (chemin, mode), CHEMIN(Regle, "chmod"))
APPEL(int, fchmod, (int fd, mode_t mode) noexcept, (fd, mode), OUVERT(Regle, "fchmod"))
APPEL(int, fchown, (int fd, uid_t uid, gid_t gid) noexcept, (fd, uid, gid), OUVERT(Regle, "fchown"))
APPEL(int, stat, (const char *chemin, struct stat *etat) noexcept, (chemin, etat), CHEMIN(Interroge, "stat"))
APPEL(int, stat64, (const char *chemin, struct stat64 *etat) noexcept, (chemin, etat), CHEMIN(Interroge, "stat64"))
APPEL(int, lstat, (const char *chemin, struct stat *etat) noexcept, (chemin, etat), CHEMIN(Interroge, "lstat"))
APPEL(int, lstat64, (const char *chemin, struct stat64 *etat) noexcept, (chemin, etat), CHEMIN(Interroge, "lstat64"))
APPEL(int, fstat, (int fd, struct stat *etat) noexcept, (fd, etat), OUVERT(Interroge, "fstat"))
APPEL(int, fstat64, (int fd, struct stat64 *etat) noexcept, (fd, etat), OUVERT(Interroge, "fstat64"))
APPEL(int, fstatat, (int dossier, const char *chemin, struct stat *etat, int drapeaux) noexcept, (dossier, chemin, etat, drapeaux), DEPUIS(Interroge, "fstatat"))
APPEL(int, fstatat64, (int dossier, const char *chemin, struct stat64 *etat, int drapeaux) noexcept, (dossier, chemin, etat, drapeaux), DEPUIS(Interroge, "fstatat64"))
APPEL(int, statx, (int dossier, const char *chemin, int drapeaux, unsigned masque, struct statx *etat) noexcept, (dossier, chemin, drapeaux, masque, etat), DEPUIS(Interroge, "statx"))
APPEL(int, access, (const char *chemin, int genre) noexcept, (chemin, genre), CHEMIN(Interroge, "access"))
APPEL(int, faccessat, (int dossier, const char *chemin, int genre, int drapeaux) noexcept, (dossier, chemin, genre, drapeaux), DEPUIS(Interroge, "faccessat"))
APPEL(ssize_t, readlink, (const char *chemin, char *place, size_t taille) noexcept, (chemin, place, taille), CHEMIN(Interroge, "readlink"))
APPEL(int, flock, (int fd, int genre) noexcept, (fd, genre), OUVERT(Verrouille, "flock"))
// clang-format on

/// The descriptor is given back even where the close reports a failure.
int close(int fd)
{
    SUIVANTE(close);
    const Sort sort = Au_Descripteur(Genre_Appel::Ferme, "close", fd);
    const int erreur = errno;
    const int resultat = suivante(fd);
    if (sort != Sort::Echoue)
        return resultat;
    errno = erreur;
    return -1;
}

/// Qt renames without a wrapper of the C library.
long syscall(long numero, ...) noexcept
{
    SUIVANTE(syscall);
    va_list suite;
    va_start(suite, numero);
    long arguments[6];
    for (long &argument : arguments)
        argument = va_arg(suite, long);
    va_end(suite);
    if (numero == SYS_renameat2 &&
        Au_Chemin(Genre_Appel::Deplace, "renameat2", reinterpret_cast<const char *>(arguments[1]),
                  static_cast<int>(arguments[0])) == Sort::Echoue)
        return -1;
    return suivante(numero, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4], arguments[5]);
}

} // extern "C"
