#pragma once

#include <cerrno>

/// What happens at a chosen file call below the watched folders. `tests/pannes/prechargee` stands before the C library:
/// linked first by the tests, or preloaded into any program, which then reads its plan from the environment
/// (PANNES_DOSSIERS, PANNES_POINT, PANNES_GENRE, PANNES_ERREUR, PANNES_SUITE, PANNES_JOURNAL).
enum class Genre_Panne {
    Aucune,
    Tue,   ///< the process dies before the call
    Coupe, ///< half of a write is done, then the process dies
    Court, ///< a read or a write does half of what it was asked
    Echoue ///< the call fails with `erreur`
};

/// What a call asks of the disk.
enum class Genre_Appel : char {
    Ouvre = 'o',
    Cree = 'c', ///< an open that may make the file
    Ecrit = 'w',
    Lit = 'r',
    Synchronise = 's',
    Ferme = 'f',
    Deplace = 'm', ///< rename, link, mkdir
    Retire = 'u',  ///< unlink, rmdir
    Interroge = 'i',
    Regle = 'g', ///< size, mode, owner
    Verrouille = 'v'
};

struct Plan_De_Panne {
    const char *dossiers = ""; ///< full paths, separated by ":"
    long point = 0;            ///< counted from 1; 0 for none
    Genre_Panne genre = Genre_Panne::Aucune;
    int erreur = 0;
    bool suite = false; ///< every later call too that the failure concerns
    int journal = -1;   ///< a descriptor that gets "<kind><call> <path>" for each call
};

/// Starts to count, from 0.
extern "C" void Arme_Pannes(const Plan_De_Panne *plan);

/// Whether that failure can meet such a call on a real machine.
inline bool Concerne(const Plan_De_Panne &plan, Genre_Appel appel)
{
    using enum Genre_Appel;
    switch (plan.genre) {
    case Genre_Panne::Aucune:
        return false;
    case Genre_Panne::Tue:
        return true;
    case Genre_Panne::Coupe:
        return appel == Ecrit;
    case Genre_Panne::Court:
        return appel == Ecrit || appel == Lit;
    case Genre_Panne::Echoue:
        break;
    }
    switch (plan.erreur) {
    case ENOSPC:
    case EDQUOT:
        return appel == Cree || appel == Ecrit || appel == Synchronise || appel == Ferme || appel == Deplace;
    case EACCES:
        return appel == Ouvre || appel == Cree || appel == Deplace || appel == Retire || appel == Interroge;
    case EMFILE:
        return appel == Ouvre || appel == Cree;
    case EINTR:
        return appel == Ouvre || appel == Cree || appel == Ecrit || appel == Lit || appel == Synchronise ||
               appel == Verrouille;
    default:
        return true;
    }
}
