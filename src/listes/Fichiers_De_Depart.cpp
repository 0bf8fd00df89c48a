#include "listes/Fichiers_De_Depart.h"

#include "plateforme/Dossier.h"
#include "plateforme/Tolere.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Fichier_De_Depart {
    QStringView nom;
    QStringView texte;
};

// A heading has the separators of the reader that asks for most of them, since some readers take it for a line of data.
// clang-format off
constexpr std::array<Fichier_De_Depart, 7> listes = {{
    {u"Liste_DFCF.csv",     u"Rev 000 du 01/01/12;;;;;\r\n"},
    {u"Liste_DCF.csv",      u"Rev 000 du 01/01/12;;;;\r\n"},
    {u"Liste_FFF.csv",      u"Rev 000 du 01/01/12;;;;;;;;;\r\n;;;;;;;;;\r\n;;;;;;;;;\r\n"},
    {u"Liste_TDC.csv",      u"Rev 000 01/01/12;;;;;;;\r\n"},
    {u"Liste_Ouvrages.csv", u"Rev 000 01/01/12;;;;;;;;;;;;;;;;;;;\r\n"},
    {u"Liste_PC.csv",       u"Rev 000 01/01/12;;;;;;;\r\n"},
    // No heading: the first line is the first record's, and a star there is the end.
    {u"Liste_DPLF.txt",     u"*\r\n"},
}};
// clang-format on

/// A list has its heading at least: an empty one is what a cut left. One that cannot be read is somebody's.
bool Manque(const Dossier &dossier, const QString &nom)
{
    bool vide = !dossier.Existe(nom);
    Tolere([&] { vide = vide || dossier.Octets(nom).isEmpty(); });
    return vide;
}

} // namespace

void Depose_Fichiers_De_Depart(Dossier &dossier)
{
    dossier.Cree_Si_Absent(u"Liste_Prenom.txt"_s);
    for (const Fichier_De_Depart &liste : listes) {
        const QString nom = liste.nom.toString();
        if (Manque(dossier, nom))
            dossier.Remplace(nom, liste.texte, nom + u".tmp");
    }
}
