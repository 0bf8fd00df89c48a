#pragma once

#include <QString>

#include <cstdio>
#include <cstdlib>

/// Ends the run, which keeps the input as a find, if a property does not hold.
inline void Exige(bool tenue, const char *propriete, const QString &vu = {})
{
    if (tenue)
        return;
    std::fprintf(stderr, "does not hold: %s\n%s\n", propriete, qUtf8Printable(vu));
    std::abort();
}
