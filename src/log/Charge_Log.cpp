#include "log/Charge_Log.h"

#include "log/Ancienne_Ref_TDC.h"
#include "log/Chemin_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Migrations.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

using namespace Qt::StringLiterals;

void Charge_Log(Poste &poste, QStringView code)
{
    poste.ecran.Remplit_Liste({});
    const QString nom = Chemin_Log(poste.etat, code);
    Lignes_Texte lignes = poste.dossier.Lit_Lignes(nom);
    const auto conversion = [&](QStringView ancienne) { return Ancienne_Ref_TDC(poste.dossier, ancienne); };
    const std::optional<QString> texte = Migre(code, lignes, conversion);
    if (texte) {
        poste.dossier.Remplace(nom, *texte, u"Temporaire.txt"_s);
        lignes = Lignes_Texte(*texte);
    }
    poste.ecran.Remplit_Liste(std::move(lignes));
    if (texte && code == u"FFF")
        poste.boites.Message(u"Mettez à jour la liste FFF (Outils puis Mise à jour des références FFF)"_s);
    poste.ecran.Active_Ind_A();
}
