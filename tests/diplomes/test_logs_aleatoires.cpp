#include "Fiche_Essai.h"
#include "diplomes/regles/Remplit_Liste.h"
#include "diplomes/tables/Tables.h"
#include "plateforme/Erreur_Execution.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

using namespace diplomes;

// Counts and rows over random logs, against counts written apart: line by line, by plain comparisons of cut texts, with
// nothing of the rules.

namespace {

// clang-format off
const QStringList bandes_tirees = {u"1.8 Mhz"_s, u"3.5 Mhz"_s, u"7.0 Mhz"_s, u"10 Mhz"_s, u"14 Mhz"_s, u"18 Mhz"_s, u"18 Mh"_s, u"21 Mhz"_s,
                                   u"24 Mhz"_s, u"28 Mhz"_s, u"50 Mhz"_s, u"144 Mhz"_s, u"432 Mhz"_s, u"10.115"_s, u""_s};
// clang-format on
const QStringList modes_tires = {u"SSB"_s, u"CW"_s, u"PSK"_s, u"TTY"_s, u"FM"_s};
const QStringList lettres_tirees = {u"CA"_s, u"PT"_s, u"PA"_s, u"FP"_s};

class Tirage {
public:
    explicit Tirage(unsigned graine) : hasard_(graine) {}

    const QString &Un_De(const QStringList &textes) { return textes[Nombre(static_cast<int>(textes.size()))]; }
    int Nombre(int borne) { return static_cast<int>(hasard_() % static_cast<unsigned>(borne)); }

    QString Ligne(bool corse)
    {
        const int dpt = Nombre(98);
        QString texte = QString::number(dpt).rightJustified(2, u'0');
        if (corse && dpt > 92)
            texte = Un_De({u"2A"_s, u"2a"_s, u"2B"_s, u"2b"_s});
        QString ligne = QSO({.ind = u"F%1AB"_s.arg(Nombre(10)),
                             .dpt = texte,
                             .prenom = u"JEAN"_s,
                             .ref = texte + Un_De(lettres_tirees) + QString::number(Nombre(999)),
                             .date = u"1%1/0%2/2%3"_s.arg(Nombre(10)).arg(1 + Nombre(9)).arg(Nombre(10)),
                             .mode = Un_De(modes_tires),
                             .bande = Un_De(bandes_tirees),
                             .nom = Un_De({u"C. forêt"_s, u"C. FORÊT"_s, u"C. Étang"_s, u"C. ZED"_s}),
                             .qsl = Un_De({u"*"_s, u"*"_s, u" "_s, u"X"_s})});
        return Nombre(20) == 0 ? ligne.left(110) : ligne;
    }

    Lignes_Essai Log(int nombre, bool corse = true)
    {
        Lignes_Essai lignes;
        for (int i = 0; i < nombre; ++i)
            lignes.push_back(Ligne(corse));
        return lignes;
    }

private:
    std::mt19937 hasard_;
};

QString Bande(const QString &ligne)
{
    return ligne.mid(63, 7).trimmed();
}

QString Mode(const QString &ligne)
{
    return ligne.mid(59, 3).trimmed();
}

bool Etoile(const QString &ligne)
{
    return ligne.size() >= 111 && ligne[110] == u'*';
}

bool HF(const QString &ligne)
{
    const QString b = Bande(ligne);
    return b == u"1.8 Mhz"_s || b == u"3.5 Mhz"_s || b == u"7.0 Mhz"_s || b == u"14 Mhz"_s || b == u"18 Mh"_s ||
           b == u"21 Mhz"_s || b == u"24 Mhz"_s || b == u"28 Mhz"_s || b == u"50 Mhz"_s;
}

using Condition = bool (*)(const QString &ligne, const Etat_Commun &etat);

// clang-format off
const Condition toute = [](const QString &, const Etat_Commun &) { return true; };
const Condition etoile = [](const QString &l, const Etat_Commun &) { return Etoile(l); };
const Condition hf = [](const QString &l, const Etat_Commun &) { return Etoile(l) && HF(l); };
const Condition deux_metres = [](const QString &l, const Etat_Commun &) { return Etoile(l) && Bande(l) == u"144 Mhz"_s; };
const Condition etoile_ou_blanc = [](const QString &l, const Etat_Commun &) { return l.size() >= 111 && (l[110] == u'*' || l[110] == u' '); };
const Condition ssb = [](const QString &l, const Etat_Commun &) { return Etoile(l) && Mode(l) == u"SSB"_s; };
const Condition cw = [](const QString &l, const Etat_Commun &) { return Etoile(l) && Mode(l) == u"CW"_s; };
const Condition ssb_ou_cw = [](const QString &l, const Etat_Commun &) { return Etoile(l) && (Mode(l) == u"SSB"_s || Mode(l) == u"CW"_s); };
const Condition jamais = [](const QString &, const Etat_Commun &) { return false; };
const Condition categorie = [](const QString &l, const Etat_Commun &e) { return Etoile(l) && (e.code_categorie == u"MI"_s || l.mid(36, 2) == e.code_categorie); };
const Condition bande_dff = [](const QString &l, const Etat_Commun &e) { return Etoile(l) && (e.code_categorie == u"HF"_s ? HF(l) : Bande(l) == u"144 Mhz"_s); };
const Condition mode_daf = [](const QString &l, const Etat_Commun &e) {
    if (e.code_categorie == u"Mixte"_s) return Etoile(l);
    return Etoile(l) && Mode(l) == (e.code_categorie == u"Phone"_s ? u"SSB"_s : u"CW"_s);
};
const Condition mode_liste = [](const QString &l, const Etat_Commun &e) { return Etoile(l) && (e.mode_liste == u"MIX"_s || Mode(l) == e.mode_liste); };

struct Compte_Attendu { const Fiche_Diplome *fiche; std::vector<Condition> conditions; bool departements; QStringList categories; };

const std::vector<Compte_Attendu> comptes_attendus = {
    {&fiche_dcf, {toute}, false, {u""_s}},
    {&fiche_dfcf, {hf}, true, {u""_s}},
    {&fiche_dmf, {hf}, true, {u""_s}},
    {&fiche_dlf, {hf, deux_metres}, false, {u""_s}},
    {&fiche_difm, {etoile}, false, {u""_s}},
    {&fiche_fff, {etoile}, false, {u""_s}},
    {&fiche_wlf, {etoile}, false, {u""_s}},
    {&fiche_pc, {etoile_ou_blanc}, false, {u""_s}},
    {&fiche_dcpf, {categorie}, false, {u"CA"_s, u"PT"_s, u"PA"_s, u"MI"_s}},
    {&fiche_dff, {bande_dff}, false, {u"HF"_s, u"VHF"_s}},
    {&fiche_difi, {ssb_ou_cw, ssb, cw}, true, {u""_s}},
    {&fiche_dplf, {ssb, cw, jamais, etoile}, false, {u""_s}},
    {&fiche_daf, {mode_daf}, true, {u"Mixte"_s, u"Phone"_s, u"CW"_s}},
};
// clang-format on

int Index_Departement(QString dpt)
{
    dpt = dpt.toUpper();
    if (dpt == u"2A"_s)
        return 96;
    if (dpt == u"2B"_s)
        return 97;
    return dpt.toInt();
}

int Departements_De(const Lignes_Essai &lignes, Condition condition, const Etat_Commun &etat)
{
    std::set<int> vus;
    for (const QString &ligne : lignes)
        if (condition(ligne, etat))
            vus.insert(Index_Departement(ligne.mid(13, 4).trimmed()));
    vus.erase(0);
    return static_cast<int>(vus.size());
}

int Lignes_De(const Lignes_Essai &lignes, Condition condition, const Etat_Commun &etat)
{
    return static_cast<int>(
        std::count_if(lignes.begin(), lignes.end(), [&](const QString &ligne) { return condition(ligne, etat); }));
}

/// The band class of each line, carried over unlisted bands.
std::vector<QString> Classes(const Lignes_Essai &lignes, bool avec_uhf)
{
    std::vector<QString> classes;
    QString classe;
    for (const QString &ligne : lignes) {
        if (HF(ligne))
            classe = u"HF"_s;
        if (Bande(ligne) == u"144 Mhz"_s)
            classe = u"VHF"_s;
        if (avec_uhf && Bande(ligne) == u"432 Mhz"_s)
            classe = u"UHF"_s;
        classes.push_back(classe);
    }
    return classes;
}

/// The row of one QSO, cut and joined by hand.
QString Rang_Plat(const QString &l, int largeur_ref, bool replie)
{
    QString dpt = l.mid(13, 2);
    if (replie && Index_Departement(dpt) >= 96)
        dpt = QString::number(Index_Departement(dpt));
    return u" "_s + l.mid(34, largeur_ref) + u"  "_s + dpt + u"  "_s + l.mid(79, 30) + u"  "_s + l.mid(44, 8) +
           u"  "_s + l.mid(53, 5) + u"  "_s + l.mid(0, 12);
}

/// Insertion one by one, behind all that are not greater.
void Insere(std::vector<QString> &rangs, const QString &rang)
{
    auto place = rangs.begin();
    while (place != rangs.end() && place->toUpper() <= rang.toUpper())
        ++place;
    rangs.insert(place, rang);
}

struct Liste_Attendue {
    const Liste_Diplome *liste;
    Condition condition;
    int largeur_ref;
    bool corse; ///< the load fails on it otherwise
    bool replie;
    enum { Sans, Deux, Trois } classes;
    std::vector<Choix> choix;
};

// clang-format off
const std::vector<Liste_Attendue> listes_attendues = {
    {&liste_dcf, toute, 8, false, false, Liste_Attendue::Sans, {{}}},
    {&liste_dfcf, etoile, 8, true, false, Liste_Attendue::Trois, {{.bande_liste = u"HF"}, {.bande_liste = u"VHF"}, {.bande_liste = u"UHF"}}},
    {&liste_dmf, etoile, 8, true, false, Liste_Attendue::Trois, {{.bande_liste = u"HF"}, {.bande_liste = u"VHF"}}},
    {&liste_dlf, etoile, 8, false, false, Liste_Attendue::Deux, {{.bande_liste = u"HF"}, {.bande_liste = u"VHF"}}},
    {&liste_difm, etoile, 8, false, false, Liste_Attendue::Sans, {{}}},
    {&liste_fff, etoile, 8, true, false, Liste_Attendue::Sans, {{}}},
    {&liste_wlf, etoile, 10, true, false, Liste_Attendue::Sans, {{}}},
    {&liste_pc, etoile_ou_blanc, 8, true, false, Liste_Attendue::Sans, {{}}},
    {&liste_dcpf, categorie, 8, false, false, Liste_Attendue::Sans, {{.code_categorie = u"PT"}, {.code_categorie = u"MI"}}},
    {&liste_dff, etoile, 10, false, false, Liste_Attendue::Deux, {{.code_categorie = u"HF"}, {.code_categorie = u"VHF"}}},
    {&liste_difi, mode_liste, 8, true, true, Liste_Attendue::Sans, {{.mode_liste = u"MIX"}, {.mode_liste = u"SSB"}, {.mode_liste = u"CW"}}},
    {&liste_dplf, mode_liste, 8, true, true, Liste_Attendue::Sans, {{.mode_liste = u"MIX"}, {.mode_liste = u"DIGI"}}},
    {&liste_daf, mode_liste, 8, true, true, Liste_Attendue::Sans, {{.mode_liste = u"MIX"}, {.mode_liste = u"CW"}}},
};
// clang-format on

std::vector<QString> Rangs_Plats(const Liste_Attendue &attendue, const Lignes_Essai &lignes, const Etat_Commun &etat)
{
    const std::vector<QString> classes = Classes(lignes, attendue.classes == Liste_Attendue::Trois);
    const QString voulue = attendue.liste == &liste_dff ? etat.code_categorie : etat.bande_liste;
    std::vector<QString> rangs;
    for (std::size_t i = 0; i < lignes.size(); ++i)
        if (attendue.condition(lignes[i], etat) && (attendue.classes == Liste_Attendue::Sans || classes[i] == voulue))
            Insere(rangs, Rang_Plat(lignes[i], attendue.largeur_ref, attendue.replie));
    return rangs;
}

} // namespace

TEST(Logs_Aleatoires, chaque_fiche_compte_comme_un_comptage_plat)
{
    Tirage tirage(20261115);
    for (const Compte_Attendu &attendu : comptes_attendus)
        for (const QString &code : attendu.categories)
            for (int essai = 0; essai < 5; ++essai) {
                Etat_Commun etat;
                etat.code_categorie = code;
                const Lignes_Essai lignes = tirage.Log(50 + 200 * essai);
                const std::vector<Comptes> comptes = Compte(attendu.fiche->regles, En_Texte(lignes), etat);
                ASSERT_EQ(comptes.size(), attendu.conditions.size());
                for (std::size_t i = 0; i < comptes.size(); ++i) {
                    EXPECT_EQ(comptes[i].n, Lignes_De(lignes, attendu.conditions[i], etat));
                    EXPECT_EQ(comptes[i].d,
                              attendu.departements ? Departements_De(lignes, attendu.conditions[i], etat) : 0);
                }
            }
}

TEST(Logs_Aleatoires, chaque_liste_a_les_rangs_d_un_filtre_plat_dans_leur_ordre)
{
    Tirage tirage(71207);
    for (const Liste_Attendue &attendue : listes_attendues)
        for (const Choix &choix : attendue.choix)
            for (int essai = 0; essai < 4; ++essai) {
                Etat_Commun etat;
                Applique(choix, etat);
                const Lignes_Essai lignes = tirage.Log(40 + 100 * essai, attendue.corse);
                const Etat_Liste liste = Remplit_Liste(*attendue.liste, En_Texte(lignes), etat);
                const std::vector<QString> rangs = Rangs_Plats(attendue, lignes, etat);
                ASSERT_EQ(liste.rangs, rangs) << attendue.liste->ecran.toString().toStdString();
                EXPECT_TRUE(liste.compte.startsWith(u" %1 "_s.arg(rangs.size())));
            }
}

TEST(Logs_Aleatoires, l_excellence_a_la_derniere_ligne_de_chaque_departement)
{
    Tirage tirage(97);
    for (int essai = 0; essai < 5; ++essai) {
        Etat_Commun etat;
        etat.bande_liste = u"HF"_s;
        etat.code_categorie = u"Excellence"_s;
        const Lignes_Essai lignes = tirage.Log(30 + 200 * essai);
        const std::vector<QString> classes = Classes(lignes, true);
        std::map<int, QString> dernieres;
        for (std::size_t i = 0; i < lignes.size(); ++i)
            if (Etoile(lignes[i]) && classes[i] == u"HF"_s)
                dernieres[Index_Departement(lignes[i].mid(13, 2))] = lignes[i];
        dernieres.erase(0);
        std::vector<QString> rangs;
        for (const auto &[index, l] : dernieres)
            Insere(rangs, l.mid(13, 2) + u"  "_s + l.mid(34, 10) + u"  "_s + l.mid(0, 12) + u" "_s + l.mid(18, 15) +
                              u" "_s + l.mid(44, 8) + u"  "_s + l.mid(53, 5) + u"  "_s + l.mid(63, 7) + u"  "_s +
                              l.mid(59, 3) + u"  "_s);
        EXPECT_EQ(Remplit_Liste(liste_dfcf, En_Texte(lignes), etat).rangs, rangs);
    }
}
