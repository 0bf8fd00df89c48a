#include "Listes_Essai.h"
#include "listes/Index_Liste.h"
#include "listes/Table_Recherches.h"
#include "plateforme/Erreur_Execution.h"

#include <array>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const std::array<const Recherche *, 12> toutes = {
    &recherches::Cherche_DFCF, &recherches::Cherche_DCF, &recherches::Cherche_FFF,     &recherches::Cherche_DPLF,
    &recherches::Cherche_TDC,  &recherches::Ligne_TDC,   &recherches::Cherche_Ouvrage, &recherches::Cherche_PC,
    &recherches::Nom_Ouvrage,  &recherches::Nom_DFCF,    &recherches::Nom_DPLF,        &recherches::Nom_FFF};

using Hasard = std::mt19937;

template <std::size_t N>
QString Un_De(Hasard &hasard, const std::array<const char16_t *, N> &textes)
{
    return QString::fromUtf16(textes[hasard() % N]);
}

/// Few values, so that keys repeat, with dashes, blanks, prefixes and stars where a reader may stumble.
QString Un_Champ(Hasard &hasard)
{
    static constexpr std::array textes = {
        u"11",   u"8",     u"112",    u"77001", u"77-001",  u" 77001", u"FFF-0001", u"ONFF-0002", u"FFF-",
        u"0001", u"DCF-1", u"DCF-1B", u"45EC1", u"45-EC-1", u"-",      u"*",        u"",          u"001",
        u"é è",  u"Tour",  u"PC",     u"12",    u"2 ",      u"abc",    u"93001",    u"PC-93-001", u"Paris - Lyon"};
    return Un_De(hasard, textes);
}

QString Une_Ligne(Hasard &hasard)
{
    const auto tirage = hasard() % 400;
    if (tirage < 3)
        return u"ligne;cassee"_s;
    if (tirage < 8)
        return {};
    QString ligne = Un_Champ(hasard);
    for (int champ = 0; champ < 8; ++champ)
        ligne += u';' + Un_Champ(hasard);
    return ligne;
}

QString Une_Liste(Hasard &hasard, Lecture::Forme forme)
{
    QString texte;
    const auto nombre = hasard() % 120;
    for (Hasard::result_type ligne = 0; ligne < nombre; ++ligne)
        texte += (forme == Lecture::Forme::Cinq_Lignes ? Un_Champ(hasard) : Une_Ligne(hasard)) + u"\r\n";
    return texte;
}

QString Une_Reference(Hasard &hasard)
{
    static constexpr std::array textes = {u"77001",  u"0001", u"0002",   u"1",    u"1B",    u"45EC1",  u"93001",
                                          u"11-008", u"11-8", u"PB11",   u"PB8",  u"001",   u"11-112", u"112-11",
                                          u"12-012", u"",     u"absent", u"8-11", u"PB012", u" 77001 "};
    return Un_De(hasard, textes);
}

/// The outcome of a look-up or its failure, as one value.
template <typename Recherche_Faite>
std::optional<std::pair<bool, Reference_Trouvee>> Issue(Recherche_Faite &&recherche)
{
    try {
        const Issue_Recherche issue = recherche();
        return std::pair(issue.trouvee, issue.sorties);
    } catch (const Erreur_Execution &) {
        return std::nullopt;
    }
}

} // namespace

TEST(Index_Liste, donne_et_refuse_ce_qu_un_balayage_donne_et_refuse)
{
    Hasard hasard(20070512);
    std::map<const Recherche *, int> trouvees;
    int absentes = 0;
    int echecs = 0;
    const Poste_Essai essai;
    for (int tour = 0; tour < 60; ++tour) {
        for (const Recherche *recherche : toutes) {
            const QString texte = Une_Liste(hasard, recherche->lecture.forme);
            essai.fichiers.Pose(recherche->lecture.fichier.toString(), Encode_1252(texte));
            const Lignes_Texte lignes(texte);
            Index_Liste index(*recherche, essai.dossier);
            for (int question = 0; question < 12; ++question) {
                const QString ref = Une_Reference(hasard);
                const auto attendue = Issue([&] { return Balaie(*recherche, lignes, ref); });
                ASSERT_EQ(Issue([&] { return index.Cherche(ref); }), attendue) << ref.toStdString() << " in\n"
                                                                               << texte.toStdString();
                ++(!attendue ? echecs : attendue->first ? trouvees[recherche] : absentes);
            }
        }
    }
    // The lists must hold enough of each kind for the comparison to mean something.
    for (const Recherche *recherche : toutes)
        EXPECT_GT(trouvees[recherche], 3) << recherche->lecture.fichier.toString().toStdString();
    EXPECT_GT(absentes, 300);
    EXPECT_GT(echecs, 300);
}

TEST(Index_Liste, la_premiere_de_deux_lignes_de_meme_cle_l_emporte)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_PC.csv"_s,
               {u"Rev"_s, u"93001;Premier;;;;93;;"_s, u"93002;Autre;;;;93;;"_s, u"93001;Second;;;;93;;"_s});
    Index_Liste index(recherches::Cherche_PC, essai.dossier);
    EXPECT_FALSE(index.Cherche(u"93009").trouvee);
    EXPECT_EQ(index.Cherche(u"93001").sorties.nom, u"Premier"_s);
    EXPECT_EQ(index.Cherche(u"93002").sorties.nom, u"Autre"_s);
}

TEST(Index_Liste, une_ligne_fautive_n_arrete_que_les_recherches_qui_l_atteignent)
{
    const Poste_Essai essai;
    Pose_Liste(essai, u"Liste_PC.csv"_s, {u"Rev"_s, u"93001;Premier;;;;93;;"_s, u"fautive"_s, u"93002;B;;;;93;;"_s});
    Index_Liste index(recherches::Cherche_PC, essai.dossier);
    EXPECT_THROW(index.Cherche(u"93002"), Erreur_Execution);
    EXPECT_EQ(index.Cherche(u"93001").sorties.nom, u"Premier"_s);
    EXPECT_THROW(index.Cherche(u"93002"), Erreur_Execution);
}

TEST(Index_Liste, la_liste_n_est_ouverte_qu_a_la_premiere_recherche)
{
    const Poste_Essai essai;
    Index_Liste index(recherches::Cherche_PC, essai.dossier);
    EXPECT_THROW(index.Cherche(u"93001"), Erreur_Execution);
    Pose_Liste(essai, u"Liste_PC.csv"_s, {u"Rev"_s, u"93001;Premier;;;;93;;"_s});
    EXPECT_TRUE(index.Cherche(u"93001").trouvee);
}
