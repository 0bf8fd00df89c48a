#include "log/Catalogue.h"

#include "log/Notice.h"

QStringView Type_Ref(std::optional<Diplome> diplome)
{
    return diplome ? Notice_De(*diplome).habillage.type_ref : QStringView();
}

bool Est_Challenge(std::optional<Diplome> diplome)
{
    return diplome && Notice_De(*diplome).source;
}
