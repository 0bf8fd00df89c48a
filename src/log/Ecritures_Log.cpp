#include "log/Ecritures_Log.h"

#include "log/Charge_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Garde_Copie.h"
#include "log/Ligne_Log.h"
#include "log/Moment.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The lines with a CR LF behind each, `nouvelle` before the one of rank `place` (behind the last for size()).
/// nullopt leaves `place` out and puts nothing.
QString Assemble(const Lignes_Texte &lignes, std::size_t place, std::optional<QStringView> nouvelle, bool sans_place)
{
    QString texte;
    texte.reserve(static_cast<qsizetype>(lignes.size() + 1) * 113);
    const auto pose = [&](QStringView ligne) { texte.append(ligne).append(fin_de_ligne); };
    for (std::size_t rang = 0; rang <= lignes.size(); ++rang) {
        if (rang == place && nouvelle)
            pose(*nouvelle);
        if (rang < lignes.size() && !(rang == place && sans_place))
            pose(lignes[rang]);
    }
    return texte;
}

std::size_t Rang(const Lignes_Texte &lignes, QStringView ligne)
{
    const auto place =
        std::find_if(lignes.begin(), lignes.end(), [&](QStringView autre) { return Memes_Champs(autre, ligne); });
    return static_cast<std::size_t>(place - lignes.begin());
}

/// A line without a readable moment is neither before nor after another one: it is passed over in the log, and goes to
/// the end itself.
std::size_t Place_Dans_Le_Temps(const Lignes_Texte &lignes, const std::optional<QString> &moment)
{
    if (!moment)
        return lignes.size();
    const auto place =
        std::find_if(lignes.begin(), lignes.end(), [&](QStringView ligne) { return Moment(ligne) >= moment; });
    return static_cast<std::size_t>(place - lignes.begin());
}

bool Reecrit(Poste &poste, Outil outil, const QString &nom, const QString &texte, const QString &temporaire)
{
    return Remplace_En_Gardant(poste, outil, nom, [&] { poste.dossier.Remplace(nom, texte, temporaire); });
}

void Recharge(Poste &poste, std::optional<Diplome> diplome)
{
    Charge_Log(poste, diplome);
    poste.ecran.Selectionne_Derniere();
}

} // namespace

bool Est_Dans_Le_Log(const Lignes_Texte &lignes, QStringView ligne)
{
    return Rang(lignes, ligne) < lignes.size();
}

QString Texte_Remplace(const Lignes_Texte &lignes, QStringView nouvelle, QStringView ancienne)
{
    return Assemble(lignes, Rang(lignes, ancienne), nouvelle, true);
}

QString Texte_Supprime(const Lignes_Texte &lignes, QStringView ligne)
{
    return Assemble(lignes, Rang(lignes, ligne), std::nullopt, true);
}

QString Texte_Insere(const Lignes_Texte &lignes, QStringView nouvelle)
{
    return Assemble(lignes, Place_Dans_Le_Temps(lignes, Moment(nouvelle)), nouvelle, false);
}

bool Ajoute_Ligne(Poste &poste, QStringView ligne, Diplome diplome)
{
    const QString nom = poste.etat.station.Log(diplome);
    if (!Garde_Copie(poste, Outil::Saisie, nom))
        return false;
    poste.dossier.Ajoute(nom, ligne);
    Recharge(poste, diplome);
    return true;
}

bool Remplace_Ligne(Poste &poste, QStringView nouvelle, QStringView ancienne)
{
    const QString nom = poste.etat.station.Log_Courant();
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(nom);
    if (!Reecrit(poste, Outil::Modification, nom, Texte_Remplace(lignes, nouvelle, ancienne), u"Temporaire.txt"_s))
        return false;
    Recharge(poste, poste.etat.station.diplome);
    if (!Est_Dans_Le_Log(lignes, ancienne))
        poste.boites.Message(u"L'ancien QSO n'est plus dans le log, le QSO modifié a été ajouté à la fin"_s);
    return true;
}

bool Supprime_Ligne(Poste &poste, QStringView ligne, Diplome diplome)
{
    const QString nom = poste.etat.station.Log(diplome);
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(nom);
    if (!Reecrit(poste, Outil::Suppression, nom, Texte_Supprime(lignes, ligne), u"Temporaire.txt"_s))
        return false;
    Recharge(poste, diplome);
    if (!Est_Dans_Le_Log(lignes, ligne))
        poste.boites.Message(u"Ce QSO n'est plus dans le log, rien n'a été supprimé"_s);
    return true;
}

bool Insere_Ligne(Poste &poste, QStringView ligne)
{
    const QString nom = poste.etat.station.Log_Courant();
    if (!Reecrit(poste, Outil::Saisie, nom, Texte_Insere(poste.dossier.Lit_Lignes(nom), ligne), u"Temporaire6.txt"_s))
        return false;
    Recharge(poste, poste.etat.station.diplome);
    return true;
}
