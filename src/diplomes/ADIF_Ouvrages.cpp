#include "diplomes/ADIF_Ouvrages.h"

#include "adif/Enregistrement_ADIF.h"
#include "diplomes/Lit_Sources.h"
#include "diplomes/regles/Ligne_ADIF_Ouvrage.h"
#include "log/Etat_Commun.h"
#include "log/Moment.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Horloge.h"

using namespace Qt::StringLiterals;

namespace diplomes {

QString Entete_De_Diplome(const Etat_Commun &etat, Diplome diplome)
{
    return Entete_ADIF(u"Vorlain_" + Code(diplome), Titre_ADIF(etat.station.indicatif));
}

void ADIF_Ouvrages(Poste &poste, const Liste_Diplome &liste, Etat_Liste &etat)
{
    etat.entete.replace(u'/', u'_');
    const QString jour = Date_De_Fichier(poste.horloge.Locale().date());
    const QString nom = poste.etat.station.indicatif + u' ' + etat.entete + u" le " + jour + u".adi";
    QString texte = Entete_De_Diplome(poste.etat, liste.sources.diplome);
    for (const QStringView ligne : Lit_Sources(poste, liste.sources).log)
        if (liste.adif(ligne, poste.etat))
            texte += Ligne_ADIF_Ouvrage(ligne) + fin_de_ligne;
    poste.dossier.Remplace(nom, texte, u"Temporaire_ADIF.txt"_s);
    poste.boites.Message(u"Le fichier a été enregistré sous le nom : "_s + nom);
}

} // namespace diplomes
