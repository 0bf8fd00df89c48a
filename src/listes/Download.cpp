#include "listes/Download.h"

#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Telechargement.h"

using namespace Qt::StringLiterals;

void Download(Poste &poste, const QString &adresse, const QString &fichier)
{
    QByteArray octets = adresse.isEmpty() ? QByteArray() : poste.telechargement.Corps(adresse);
    if (octets.isEmpty()) {
        poste.boites.Message(u"Attention pas d'acces à Internet"_s);
        return;
    }
    if (poste.dossier.Existe(fichier))
        octets += poste.dossier.Octets(fichier).mid(octets.size());
    poste.dossier.Remplace_Octets(fichier, octets, fichier + u".tmp");
}
