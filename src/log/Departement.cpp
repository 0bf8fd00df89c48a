#include "log/Departement.h"

QStringView Departement_Replie(QStringView dpt)
{
    if (dpt == u"2a" || dpt == u"2A")
        return u"96";
    if (dpt == u"2b" || dpt == u"2B")
        return u"97";
    return dpt;
}
