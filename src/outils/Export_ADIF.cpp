#include "outils/Export_ADIF.h"

#include "adif/Enregistrement_ADIF.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "outils/ADIF_SP.h"
#include "outils/Nom_Log_ADIF.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

void Export_ADIF(Poste &poste)
{
    const QStringView code = Code(poste.etat.station.diplome);
    const QString nom = poste.etat.station.indicatif + u'_' + code + u".adi";
    QString texte = Entete_ADIF(Titre_ADIF(poste.ecran.I_Station() + u' ' + code),
                                u"Vorlain_"_s + code + u" - carnet des diplômes d'activité français");
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(Nom_Log_ADIF(poste.etat) + u".log");
    for (const QStringView ligne : lignes)
        texte += ADIF_SP(ligne) + fin_de_ligne;
    poste.dossier.Remplace(nom, texte, u"Temporaire.txt"_s);
    poste.boites.Message(u"Le fichier a été enregistré sous le nom : "_s + nom);
}
