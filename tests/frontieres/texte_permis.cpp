// What the neighbouring sources may write: headers of the libraries they link, and texts of UTF-16.
#include "log/Catalogue.h"
#include "saisie/Refus.h"

using namespace Qt::StringLiterals;

QString Texte_Permis()
{
    return Type_Ref(Diplome::FFF) + Refus_Ind(u"").value_or(u"été"_s);
}
