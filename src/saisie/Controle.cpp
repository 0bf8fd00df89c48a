#include "saisie/Controle.h"

#include <QMetaEnum>

QString Nom(Controle controle)
{
    return QString::fromLatin1(QMetaEnum::fromType<Controle>().valueToKey(static_cast<int>(controle)));
}
