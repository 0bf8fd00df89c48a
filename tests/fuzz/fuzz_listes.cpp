// Arbitrary bytes as a reference list: the first two lines are references to look for, the rest is the list.

#include "Exige.h"

#include "faux/Poste_Essai.h"
#include "listes/Index_Liste.h"
#include "listes/References.h"
#include "listes/Table_Recherches.h"
#include "log/Diplome.h"
#include "plateforme/Erreur_Execution.h"
#include "plateforme/Windows_1252.h"

#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

const auto toutes = {
    &recherches::Cherche_DFCF, &recherches::Cherche_DCF, &recherches::Cherche_FFF,     &recherches::Cherche_DPLF,
    &recherches::Cherche_TDC,  &recherches::Ligne_TDC,   &recherches::Cherche_Ouvrage, &recherches::Cherche_PC,
    &recherches::Nom_Ouvrage,  &recherches::Nom_DFCF,    &recherches::Nom_DPLF,        &recherches::Nom_FFF,
};

/// The outcome of a look-up as a text; a failure is one too.
template <typename Recherche_Faite>
QString Issue(Recherche_Faite &&recherche)
{
    try {
        const Issue_Recherche issue = recherche();
        return (issue.trouvee ? u"+" : u"-") + issue.sorties.nom.value_or(u"?"_s) + u'\n' +
               issue.sorties.dpt.value_or(u"?"_s);
    } catch (const Erreur_Execution &erreur) {
        return u"!" + Rapport(erreur);
    }
}

/// What was read for one reference does not change what the next one finds.
void Verifie_Index(const Dossier &dossier, const Lignes_Texte &liste, const std::array<QString, 3> &refs)
{
    for (const Recherche *recherche : toutes) {
        Index_Liste index(*recherche, dossier);
        for (const QString &ref : refs)
            Exige(Issue([&] { return index.Cherche(ref); }) == Issue([&] { return Balaie(*recherche, liste, ref); }),
                  "the index finds what a scan finds", ref);
    }
}

void Verifie_Vue(const Dossier &dossier, const Lignes_Texte &liste, Diplome diplome)
{
    try {
        Exige(Lit_References(dossier, diplome).entrees.size() <= liste.size(), "at most one entry a line",
              Code(diplome).toString());
    } catch (const Erreur_Execution &) {
        // A line with too few separators is told to the operator.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    static const Poste_Essai essai;
    QByteArray reste(reinterpret_cast<const char *>(octets), qsizetype(taille));
    const auto ligne_suivante = [&] {
        const qsizetype fin = reste.indexOf('\n');
        const QByteArray ligne = reste.left(fin);
        reste = fin < 0 ? QByteArray() : reste.mid(fin + 1);
        return Decode_1252(ligne);
    };
    const QString premiere = ligne_suivante();
    const QString seconde = ligne_suivante();
    for (const Recherche *recherche : toutes)
        essai.fichiers.Pose(recherche->lecture.fichier.toString(), reste);
    const Lignes_Texte liste(Decode_1252(reste));
    Verifie_Index(essai.dossier, liste, {premiere, seconde, premiere});
    for (const Diplome diplome : {Diplome::DCF, Diplome::DPLF})
        Verifie_Vue(essai.dossier, liste, diplome);
    return 0;
}
