#include "log/Catalogue.h"

#include "log/Notice.h"

QString En_Forme_De_Code(const QString &texte)
{
    for (const QStringView code : codes_diplome)
        if (code.compare(texte, Qt::CaseInsensitive) == 0)
            return code.toString();
    return texte;
}

QStringView Type_Ref(std::optional<Diplome> diplome)
{
    return diplome ? Notice_De(*diplome).habillage.type_ref : QStringView();
}

bool Est_Challenge(std::optional<Diplome> diplome)
{
    return diplome && Notice_De(*diplome).source;
}
