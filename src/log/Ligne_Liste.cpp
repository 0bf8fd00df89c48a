#include "log/Ligne_Liste.h"

#include "plateforme/Erreur_Execution.h"

using namespace Qt::StringLiterals;

void Decoupe_Liste(QStringView ligne, std::span<QStringView> champs)
{
    qsizetype debut = 0;
    for (QStringView &champ : champs) {
        const qsizetype fin = ligne.indexOf(u';', debut);
        if (fin < 0)
            throw Erreur_Execution(
                Cause::Format_Liste,
                u"une ligne de liste a moins de %1 séparateurs « ; » : %2"_s.arg(champs.size()).arg(ligne.left(60)));
        champ = ligne.sliced(debut, fin - debut);
        debut = fin + 1;
    }
}
