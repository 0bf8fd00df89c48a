#include "plateforme/qt/Refus_Du_Serveur.h"

#include <QLibrary>

using namespace Qt::StringLiterals;

namespace {

// The status codes of the printing protocol: below this one a job was taken.
constexpr int premier_refus = 0x0300;

} // namespace

std::optional<QString> Refus_Du_Serveur()
{
    // Qt talks to the server through the same library, which remembers the last answer of each thread.
    QLibrary cups(u"cups"_s, 2);
    const auto etat = reinterpret_cast<int (*)()>(cups.resolve("cupsLastError"));
    const auto mots = reinterpret_cast<const char *(*)()>(cups.resolve("cupsLastErrorString"));
    if (!etat || !mots)
        return std::nullopt;
    const int dernier = etat();
    if (dernier >= 0 && dernier < premier_refus)
        return std::nullopt;
    return u"l'imprimante a refusé le travail (%1)"_s.arg(QString::fromUtf8(mots()));
}
