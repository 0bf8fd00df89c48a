// A server's answer over a list that is there. The first byte chooses the list; then stands the body, and behind a NUL
// the list on the disk.

#include "Exige.h"

#include "faux/Poste_Essai.h"
#include "listes/Maj_Liste.h"
#include "log/Serveurs.h"
#include "plateforme/Windows_1252.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace {

struct Entree {
    std::size_t rang = 0;
    std::string corps = {};
    std::optional<std::string> ancien = {};
};

Entree Lit_Entree(const std::uint8_t *octets, std::size_t taille)
{
    if (taille == 0)
        return {};
    const std::string reste(reinterpret_cast<const char *>(octets) + 1, taille - 1);
    const std::size_t fin = reste.find('\0');
    if (fin == std::string::npos)
        return {.rang = octets[0], .corps = reste};
    return {.rang = octets[0], .corps = reste.substr(0, fin), .ancien = reste.substr(fin + 1)};
}

/// The body laid over the old bytes from the first one: what is longer keeps its end.
std::optional<std::string> Fusion(const Entree &entree)
{
    if (entree.corps.empty())
        return entree.ancien;
    std::string octets = entree.ancien.value_or("");
    octets.resize(std::max(octets.size(), entree.corps.size()));
    std::copy(entree.corps.begin(), entree.corps.end(), octets.begin());
    return octets;
}

std::string Revision(const std::string &octets, QStringView menu)
{
    std::string ligne = octets.substr(0, octets.find('\n'));
    if (ligne.size() < octets.size() && ligne.ends_with('\r'))
        ligne.pop_back();
    if (menu == u"Mnu_Maj_DOHF" || menu == u"Mnu_Maj_TDC" || menu == u"Mnu_Maj_PC")
        return ligne.substr(0, ligne.find(';'));
    return menu == u"Mnu_Maj_DPLF" ? ligne : ligne.substr(0, 19);
}

void Verifie_Fichier(const Poste_Essai &essai, const Maj &maj, const std::optional<std::string> &attendu)
{
    const QString nom = maj.fichier.toString();
    Exige(essai.fichiers.Existe(nom) == attendu.has_value(), "an answer makes the list, none leaves it", nom);
    if (attendu)
        Exige(essai.fichiers.Octets(nom).toStdString() == *attendu, "the answer lies over the old bytes", nom);
    Exige(essai.fichiers.Fichiers().size() <= 1, "no temporary file stays", essai.fichiers.Fichiers().join(u' '));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    const Entree entree = Lit_Entree(octets, taille);
    const Maj &maj = Majs_Liste()[entree.rang % Majs_Liste().size()];
    Poste_Essai essai;
    essai.reglages.Ecrit(QStringLiteral("Serveurs"), maj.serveur.toString(), QStringLiteral("essai"));
    essai.telechargement.corps[Adresse_Serveur(essai.poste, maj.serveur, maj.chemin)] =
        QByteArray::fromStdString(entree.corps);
    if (entree.ancien)
        essai.fichiers.Pose(maj.fichier.toString(), QByteArray::fromStdString(*entree.ancien));

    Maj_Liste(essai.poste, maj);
    const std::optional<std::string> attendu = Fusion(entree);
    Verifie_Fichier(essai, maj, attendu);
    const QString revision = Decode_1252(QByteArray::fromStdString(Revision(attendu.value_or(""), maj.menu)));
    const QString retenue = essai.reglages.Lit(QStringLiteral("Setup F9ZZY"), maj.cle.toString(), QStringLiteral("?"));
    Exige(retenue == revision, "the revision of the first line is remembered", retenue);

    Maj_Liste(essai.poste, maj);
    Verifie_Fichier(essai, maj, attendu);
    Exige(essai.boites.messages.back() == maj.identique + revision + u')', "the same list again is told as the same",
          essai.boites.messages.back());
    return 0;
}
