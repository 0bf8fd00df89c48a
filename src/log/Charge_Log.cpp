#include "log/Charge_Log.h"

#include "log/Ancienne_Ref_TDC.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Migrations.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

void Charge_Log(Poste &poste, std::optional<Diplome> diplome)
{
    poste.ecran.Remplit_Liste({});
    const QString nom = poste.etat.station.Log(diplome);
    Lignes_Texte lignes = poste.dossier.Lit_Lignes(nom);
    const auto conversion = [&](QStringView ancienne) { return Ancienne_Ref_TDC(poste.dossier, ancienne); };
    const std::optional<Log_Migre> migre = Migre(diplome, lignes, conversion);
    const bool a_reecrire = migre && migre->a_reecrire;
    // Shown before it is written: a disk that refuses leaves the log on screen at start.
    poste.ecran.Remplit_Liste(migre ? Lignes_Texte(migre->texte) : std::move(lignes));
    if (a_reecrire)
        poste.dossier.Remplace(nom, migre->texte, u"Temporaire.txt"_s);
    if (a_reecrire && diplome == Diplome::FFF)
        poste.boites.Message(u"Mettez à jour la liste FFF (Outils puis Mise à jour des références FFF)"_s);
    poste.ecran.Active_Ind_A();
}
