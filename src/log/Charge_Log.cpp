#include "log/Charge_Log.h"

#include "log/Ancienne_Ref_TDC.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Fin_Coupee.h"
#include "log/Garde_Copie.h"
#include "log/Migrations.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Tolere.h"

#include <utility>

using namespace Qt::StringLiterals;

QString Lit_Log(Poste &poste, const QString &nom)
{
    QString texte = poste.dossier.Lit(nom);
    const std::optional<Fin_Reparee> fin = Repare_La_Fin(texte);
    if (!fin || !Tolere([&] { poste.dossier.Remplace(nom, fin->texte, u"Temporaire.txt"_s); }))
        return texte;
    poste.boites.Message(QString(fin->message).replace(u"%1"_s, nom));
    return fin->texte;
}

Log_A_Jour Met_A_Jour(const Dossier &dossier, std::optional<Diplome> diplome, Lignes_Texte lignes)
{
    const auto conversion = [&](QStringView ancienne) { return Ancienne_Ref_TDC(dossier, ancienne); };
    const std::optional<Log_Migre> migre = Migre(diplome, lignes, conversion);
    if (!migre)
        return {.lignes = std::move(lignes), .a_reecrire = std::nullopt};
    return {.lignes = Lignes_Texte(migre->texte),
            .a_reecrire = migre->a_reecrire ? std::optional(migre->texte) : std::nullopt};
}

void Annonce_Mise_A_Jour(Poste &poste, std::optional<Diplome> diplome)
{
    if (diplome == Diplome::FFF)
        poste.boites.Message(u"Mettez à jour la liste FFF (Outils puis Mise à jour des références FFF)"_s);
}

void Charge_Log(Poste &poste, std::optional<Diplome> diplome)
{
    poste.ecran.Remplit_Liste({});
    const QString nom = poste.etat.station.Log(diplome);
    Log_A_Jour log = Met_A_Jour(poste.dossier, diplome, Lignes_Texte(Lit_Log(poste, nom)));
    // Shown before it is written: a disk that refuses leaves the log on screen at start.
    poste.ecran.Remplit_Liste(std::move(log.lignes));
    const auto reecrit = [&] { poste.dossier.Remplace(nom, *log.a_reecrire, u"Temporaire.txt"_s); };
    if (log.a_reecrire && Remplace_En_Gardant(poste, Outil::Migration, nom, reecrit))
        Annonce_Mise_A_Jour(poste, diplome);
    poste.ecran.Active_Ind_A();
}
