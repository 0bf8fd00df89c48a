#pragma once

#include <functional>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

// What a test cannot do to its own process: limits, another user, a violent death.

constexpr int epreuve_impossible = 77; ///< a child's status when the machine does not let it set its trap
constexpr int exception_etrangere = 99;

/// Starts a process that runs `travail` and ends with its result; gives its number.
inline pid_t Lance_Fils(const std::function<int()> &travail)
{
    const pid_t fils = ::fork();
    if (fils < 0)
        throw std::runtime_error("no child process");
    if (fils == 0) {
        try {
            ::_exit(travail());
        } catch (...) {
            ::_exit(exception_etrangere);
        }
    }
    return fils;
}

/// The status with which a child ends; a signal gives 128 and its number.
inline int Attend_Fils(pid_t fils)
{
    int etat = 0;
    if (::waitpid(fils, &etat, 0) != fils)
        throw std::runtime_error("child process lost");
    return WIFEXITED(etat) ? WEXITSTATUS(etat) : 128 + WTERMSIG(etat);
}

inline int Dans_Un_Fils(const std::function<int()> &travail)
{
    return Attend_Fils(Lance_Fils(travail));
}
