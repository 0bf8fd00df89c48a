#include "listes/Download.h"

#include "log/Garde_Copie.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Telechargement.h"

using namespace Qt::StringLiterals;

void Download(Poste &poste, const QString &adresse, const QString &fichier, Sorte_Fichier sorte)
{
    QByteArray octets = adresse.isEmpty() ? QByteArray() : poste.telechargement.Corps(adresse);
    if (octets.isEmpty()) {
        poste.boites.Message(u"Attention pas d'acces à Internet"_s);
        return;
    }
    if (poste.dossier.Existe(fichier))
        octets += poste.dossier.Octets(fichier).mid(octets.size());
    const auto remplace = [&] { poste.dossier.Remplace_Octets(fichier, octets, fichier + u".tmp"); };
    if (sorte == Sorte_Fichier::Liste)
        Remplace_En_Gardant(poste, Outil::Liste, fichier, remplace);
    else
        remplace();
}
