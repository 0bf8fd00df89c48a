#include "listes/Nouvelle_Revision.h"

#include "listes/Download.h"
#include "log/Cles.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "log/Serveurs.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Tolere.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The last line of the file; nullopt for a file with an empty line, without a line, or that is not there.
std::optional<QString> Derniere_Ligne(const Dossier &dossier, const QString &fichier)
{
    std::optional<QString> derniere;
    Tolere([&] {
        const Lignes_Texte lignes = dossier.Lit_Lignes(fichier);
        if (std::none_of(lignes.begin(), lignes.end(), [](QStringView ligne) { return ligne.isEmpty(); }) &&
            !lignes.empty())
            derniere = lignes[lignes.size() - 1].toString();
    });
    return derniere;
}

} // namespace

void Nouvelle_Revision(Poste &poste)
{
    const QString fichier = u"New_Version.txt"_s;
    Tolere([&] {
        Download(poste, Adresse_Serveur(poste, u"Programme", u"/Vorlain/Version.txt"), fichier, Sorte_Fichier::Version);
    });
    const QString presente = Lit_General(poste, cles::revision, u"V1.0.0");
    const std::optional<QString> publiee = Derniere_Ligne(poste.dossier, fichier);
    if (!publiee)
        return;
    if (*publiee == presente)
        poste.boites.Message(u"Le programme est à la derniere révision   ( " + *publiee + u" )");
    else
        poste.boites.Message(u"Une nouvelle version de Vorlain est disponible   ( " + *publiee + u" )");
    Tolere([&] { poste.dossier.Supprime(fichier); });
}
