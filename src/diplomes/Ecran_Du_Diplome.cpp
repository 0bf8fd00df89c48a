#include "diplomes/Ecran_Du_Diplome.h"

#include "diplomes/tables/Tables.h"

namespace diplomes {

QString Ecran_Du_Diplome(std::optional<Diplome> diplome)
{
    if (!diplome)
        return {};
    const Tables_Du_Diplome &siennes = Tables_De(*diplome);
    return (siennes.choix ? siennes.choix->ecran : siennes.fiche->ecran).toString();
}

} // namespace diplomes
