#include "diplomes/ADIF_Ouvrages.h"

#include "diplomes/Lit_Sources.h"
#include "diplomes/regles/Ligne_ADIF_Ouvrage.h"
#include "log/Etat_Commun.h"
#include "log/Moment.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Horloge.h"

#include <array>

using namespace Qt::StringLiterals;

namespace diplomes {

QString Entete_ADIF(const Etat_Commun &etat, Diplome diplome)
{
    const std::array<QString, 6> lignes = {
        u"Vorlain_" + Code(diplome),
        QString(),
        u"Exportation du log de la station "_s + etat.station.indicatif + u" au format ADIF",
        QString(),
        QString(),
        u"<eoh>"_s,
    };
    QString entete;
    for (const QString &ligne : lignes)
        entete += ligne + fin_de_ligne;
    return entete;
}

void ADIF_Ouvrages(Poste &poste, const Liste_Diplome &liste, Etat_Liste &etat)
{
    etat.entete.replace(u'/', u'_');
    const QString jour = Date_De_Fichier(poste.horloge.Locale().date());
    const QString nom = poste.etat.station.indicatif + u' ' + etat.entete + u" le " + jour + u".adi";
    QString texte = Entete_ADIF(poste.etat, liste.sources.diplome);
    for (const QStringView ligne : Lit_Sources(poste, liste.sources).log)
        if (liste.adif(ligne, poste.etat))
            texte += Ligne_ADIF_Ouvrage(ligne) + fin_de_ligne;
    poste.dossier.Remplace(nom, texte, u"Temporaire_ADIF.txt"_s);
    poste.boites.Message(u"Le fichier a été enregistré sous le nom : "_s + nom);
}

} // namespace diplomes
