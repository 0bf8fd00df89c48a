#include "log/Charge_Log.h"

#include "log/Ancienne_Ref_TDC.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Fin_Coupee.h"
#include "log/Migrations.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Tolere.h"

using namespace Qt::StringLiterals;

namespace {

/// The lines of a log. A last one that was cut off is mended on the disk too; where that cannot be done it is shown as
/// it is, for another time.
Lignes_Texte Lit_Log(Poste &poste, const QString &nom)
{
    const QString texte = poste.dossier.Lit(nom);
    const std::optional<Fin_Reparee> fin = Repare_La_Fin(texte);
    if (!fin || !Tolere([&] { poste.dossier.Remplace(nom, fin->texte, u"Temporaire.txt"_s); }))
        return Lignes_Texte(texte);
    poste.boites.Message(QString(fin->message).replace(u"%1"_s, nom));
    return Lignes_Texte(fin->texte);
}

} // namespace

void Charge_Log(Poste &poste, std::optional<Diplome> diplome)
{
    poste.ecran.Remplit_Liste({});
    const QString nom = poste.etat.station.Log(diplome);
    Lignes_Texte lignes = Lit_Log(poste, nom);
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
