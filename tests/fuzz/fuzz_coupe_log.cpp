// Arbitrary bytes as a log: what cuts it into lines and fields loses nothing, and the migrations touch references only.

#include "Exige.h"

#include "log/Diplome.h"
#include "log/Ligne_Affichage.h"
#include "log/Ligne_Log.h"
#include "log/Migrations.h"
#include "plateforme/Lignes_Texte.h"
#include "plateforme/Windows_1252.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace {

/// The lines by a walk over the bytes.
std::vector<std::string> Lignes_Lentes(const std::string &octets)
{
    std::vector<std::string> lignes;
    std::string ligne;
    for (const char octet : octets) {
        if (octet != '\n') {
            ligne += octet;
            continue;
        }
        if (ligne.ends_with('\r'))
            ligne.pop_back();
        lignes.push_back(ligne);
        ligne.clear();
    }
    if (!ligne.empty())
        lignes.push_back(ligne);
    return lignes;
}

void Verifie_Coupe(const Lignes_Texte &lignes, const std::string &octets)
{
    const std::vector<std::string> lentes = Lignes_Lentes(octets);
    Exige(lignes.size() == lentes.size(), "as many lines as line ends say", QString::number(lignes.size()));
    for (std::size_t rang = 0; rang < lentes.size(); ++rang)
        Exige(Encode_1252(lignes[rang]).toStdString() == lentes[rang], "each line as it stands in the file");
}

/// A whole line comes back from its fields and from its displayed form.
void Verifie_Ligne(QStringView ligne)
{
    const QString affichee = Ligne_Affichage(1, ligne);
    if (ligne.size() < colonnes_log::longueur)
        return;
    const QString composee = Compose_Ligne_Log(Champs_Log(ligne));
    Exige(composee.size() == colonnes_log::longueur, "a line composed has its columns", composee);
    Exige(Compose_Ligne_Log(Champs_Log(composee)) == composee, "composing again changes nothing", composee);
    Exige(affichee.size() == colonnes_affichage::longueur, "a line displayed has its columns", affichee);
    Exige(Ligne_Log_Affichee(affichee) == composee, "the displayed line leads back to the stored one", affichee);
}

QString Sans_Reference(QStringView ligne)
{
    return ligne.first(colonnes_log::Ref.colonne - 1) + ligne.sliced(colonnes_log::Date.colonne - 1);
}

void Verifie_Migration(const Lignes_Texte &avant, Diplome diplome)
{
    const auto conversion = [](QStringView ancienne) -> std::optional<QString> {
        return ancienne.endsWith(u'9') ? std::optional(ancienne.sliced(2).toString()) : std::nullopt;
    };
    const std::optional<Log_Migre> migre = Migre(diplome, avant, conversion);
    Exige(!migre || diplome != Diplome::DFCF, "a log without older forms stays");
    if (!migre)
        return;
    const Lignes_Texte apres(migre->texte);
    Exige(apres.size() == avant.size(), "no line is lost or won", migre->texte);
    for (std::size_t rang = 0; rang < avant.size(); ++rang)
        if (avant[rang].size() >= colonnes_log::longueur)
            Exige(Sans_Reference(apres[rang]) == Sans_Reference(Compose_Ligne_Log(Champs_Log(avant[rang]))),
                  "only the reference changes", apres[rang].toString());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    const std::string log(reinterpret_cast<const char *>(octets), taille);
    const QString texte = Decode_1252(QByteArrayView(log.data(), qsizetype(log.size())));
    Exige(Encode_1252(texte).toStdString() == log, "the bytes come back");
    const Lignes_Texte lignes(texte);
    Verifie_Coupe(lignes, log);
    for (const QStringView ligne : lignes)
        Verifie_Ligne(ligne);
    for (const Diplome diplome : {Diplome::DFCF, Diplome::DOHF, Diplome::TDC, Diplome::DCPF, Diplome::FFF})
        Verifie_Migration(lignes, diplome);
    return 0;
}
