#include "Charge_Essai.h"
#include "diplomes/regles/Regle_Challenge.h"
#include "faux/Attendus.h"
#include "plateforme/Erreur_Execution.h"

#include <map>

using namespace diplomes;

namespace {

struct Poste_Challenge : Poste_Essai {
    explicit Poste_Challenge(const QString &code = u"Ch_DFCF"_s)
    {
        etat.station.diplome = Diplome_De(code);
        etat.station.annee_ch_dfcf = u"2017"_s;
        etat.station.annee_ch_dmf = u"2019"_s;
    }
    [[nodiscard]] QString Log() const
    {
        return etat.station.diplome == Diplome::Ch_DMF ? u"F9ZZY_Ch_DMF_2019.log"_s : u"F9ZZY_Ch_DFCF_2017.log"_s;
    }
    Etat_Fiche Fiche(const Lignes_Essai &lignes) { return Fiche_De(*this, fiche_ch_dfcf, Log(), lignes); }
    Etat_Liste Liste(const Lignes_Essai &lignes) { return Liste_De(*this, liste_ch_dfcf, Log(), lignes); }
};

QString Contact(const QString &ref, const QString &dpt = u"77"_s)
{
    return QSO({.dpt = dpt, .ref = ref, .nom = u"C. "_s + ref});
}

Etat_Fiche Fiche(const Lignes_Essai &lignes)
{
    return Poste_Challenge().Fiche(lignes);
}

Etat_Liste Liste(const Lignes_Essai &lignes)
{
    return Poste_Challenge().Liste(lignes);
}

/// The line of the points total, below the rows of the saved file.
QString Total(const Etat_Liste &etat)
{
    return etat.pied_enregistre.at(1).trimmed();
}

} // namespace

TEST(Fiche_Ch_DFCF, une_reference_en_C_vaut_six_points)
{
    const Etat_Fiche etat = Fiche({Contact(u"77001C"_s)});
    EXPECT_EQ(etat.titre, u"Challenge DFCF année 2017"_s);
    EXPECT_EQ(etat.entete, etat.titre);
    EXPECT_EQ(Texte_De(etat, u"Tot_C"), u"1"_s);
    EXPECT_EQ(Texte_De(etat, u"Points_C"), u"6"_s);
    EXPECT_EQ(Texte_De(etat, u"Points_Tot"), u"6"_s);
    EXPECT_EQ(Texte_De(etat, u"Tot_A"), u"0"_s);
    EXPECT_EQ(Liste({Contact(u"77001C"_s)}).compte, u" 1 DFCF contactés avec  6 points"_s);
}

TEST(Fiche_Ch_DFCF, chaque_lettre_a_ses_points_avec_ou_sans_carte)
{
    const Etat_Fiche etat =
        Fiche(Fois(2, Contact(u"77001R"_s)) + Fois(3, Contact(u"77001A"_s)) + Fois(4, Contact(u"77001B"_s)) +
              Fois(5, Contact(u"77001C"_s)) + Lignes_Essai{Contact(u"77001"_s), Contact(u"77001c"_s), Contact(u""_s)});
    const std::map<QString, QString> attendus = {
        {u"Tot_R"_s, u"2"_s},    {u"Points_R"_s, u"2"_s},  {u"Tot_A"_s, u"3"_s},
        {u"Points_A"_s, u"6"_s}, {u"Tot_B"_s, u"4"_s},     {u"Points_B"_s, u"12"_s},
        {u"Tot_C"_s, u"5"_s},    {u"Points_C"_s, u"30"_s}, {u"Points_Tot"_s, u"50"_s}};
    for (const auto &[nom, texte] : attendus)
        EXPECT_EQ(Texte_De(etat, nom), texte) << nom.toStdString();
}

TEST(Fiche_Ch_DFCF, les_etiquettes_disent_leurs_lettres)
{
    const Etat_Fiche etat = Fiche({});
    QStringList textes;
    for (const Etat_Niveau &niveau : etat.niveaux)
        textes << niveau.etat.texte + u'|' + Detail_De(niveau);
    EXPECT_EQ(textes, (QStringList{u"Nombre de références activés contactés :|0|soit|0|points"_s,
                                   u"Nombre de références réactivés contactés :|0|soit|0|points"_s,
                                   u"Nombre de références activés validés :|0|soit|0|points"_s,
                                   u"Nombre de références réactivés validés :|0|soit|0|points"_s, u"Total|0"_s}));
    EXPECT_EQ(Boutons_Actifs(etat), QStringList{u"Liste_Cha_DFCF"_s});
}

TEST(Fiche_Ch_DFCF, le_diplome_courant_choisit_le_challenge_et_son_annee)
{
    Poste_Challenge essai(u"Ch_DMF"_s);
    EXPECT_EQ(essai.Fiche({Contact(u"77001A"_s)}).titre, u"Challenge DMF année 2019"_s);
    EXPECT_EQ(essai.Liste({}).entete, u"Challenge DMF 2019"_s);
    essai.etat.station.annee_ch_dmf = u"2020"_s;
    EXPECT_THROW(Charge_Fiche(essai.poste, fiche_ch_dfcf), Erreur_Execution);
}

TEST(Fiche_Ch_DFCF, le_bouton_montre_la_liste_et_ne_change_aucun_texte)
{
    Poste_Challenge essai;
    essai.etat.code_categorie = u"de Base"_s;
    Presse_Bouton(essai.poste, fiche_ch_dfcf, u"Liste_Cha_DFCF");
    EXPECT_EQ(essai.etat.code_categorie, u"de Base"_s);
    EXPECT_EQ(essai.ecrans.montres, std::vector<QString>{u"Liste_Ch_DFCF"_s});
}

TEST(Liste_Ch_DFCF, montre_ses_rangs_tries_et_ses_textes)
{
    const Etat_Liste etat = Liste({Contact(u"77002A"_s), Contact(u"77001C"_s)});
    EXPECT_EQ(etat.titre, u"Challenge DFCF 2017"_s);
    EXPECT_EQ(etat.entete, etat.titre);
    EXPECT_EQ(etat.colonnes, u"   Ref     Dpt         Nom de l'Activité          Date   Heure  Indicatif    Points"_s);
    EXPECT_EQ(etat.compte, u" 2 DFCF contactés avec  8 points"_s);
    EXPECT_EQ(etat.rangs, (std::vector<QString>{
                              u" 77001C      77  C. 77001C                       12/05/07  14:48  F5ABC         6"_s,
                              u" 77002A      77  C. 77002A                       12/05/07  14:48  F5ABC         2"_s}));
}

TEST(Liste_Ch_DFCF, sans_lettre_les_points_de_la_ligne_d_avant_restent)
{
    const Etat_Liste etat = Liste({Contact(u"01001"_s), Contact(u"02001B"_s), Contact(u"03001"_s)});
    EXPECT_TRUE(etat.rangs[0].endsWith(u" F5ABC        "_s));
    EXPECT_TRUE(etat.rangs[2].endsWith(u" F5ABC         3"_s));
    EXPECT_EQ(Total(etat), u"Points Total : 6"_s);
    EXPECT_EQ(etat.compte, u" 3 DFCF contactés avec  3 points"_s);
}

TEST(Liste_Ch_DFCF, la_Corse_est_96_et_97)
{
    const Etat_Liste etat =
        Liste({Contact(u"2A001R"_s, u"2A"_s), Contact(u"2B001R"_s, u"2b"_s), Contact(u"XX001R"_s, u"XX"_s)});
    EXPECT_TRUE(etat.rangs[0].startsWith(u" 2A001R      96  "_s));
    EXPECT_TRUE(etat.rangs[1].startsWith(u" 2B001R      97  "_s));
    EXPECT_TRUE(etat.rangs[2].startsWith(u" XX001R      XX  "_s));
}

TEST(Liste_Ch_DFCF, des_logs_au_hasard_donnent_les_points_d_un_compte_lent)
{
    const std::map<QString, int> points = {{u"R"_s, 1}, {u"A"_s, 2}, {u"B"_s, 3}, {u"C"_s, 6}};
    std::mt19937 hasard(17);
    for (int essai = 0; essai < 40; ++essai) {
        Lignes_Essai lignes;
        int des_lettres = 0;
        int total = 0;
        int en_cours = 0;
        for (int i = 0; i < essai * 3; ++i) {
            const QString lettre = Au_Hasard(hasard, {u"R"_s, u"A"_s, u"B"_s, u"C"_s, u"1"_s, u"a"_s, u""_s});
            lignes.push_back(Contact(u"77001"_s + lettre));
            if (points.contains(lettre)) {
                en_cours = points.at(lettre);
                des_lettres += en_cours;
            }
            total += en_cours;
        }
        EXPECT_EQ(Texte_De(Fiche(lignes), u"Points_Tot"), QString::number(des_lettres));
        const Etat_Liste liste = Liste(lignes);
        EXPECT_EQ(Total(liste), u"Points Total : "_s + QString::number(total));
        EXPECT_TRUE(liste.compte.endsWith(u"avec  "_s + QString::number(des_lettres) + u" points"_s));
    }
}

TEST(Liste_Ch_DFCF, les_fichiers_prennent_l_annee_de_DFCF_et_la_page_son_total)
{
    for (const auto &[code, nom] : {std::pair(u"Ch_DFCF"_s, u"F9ZZY_Challenge_DFCF_2017_.txt"_s),
                                    {u"Ch_DMF"_s, u"F9ZZY_Challenge_DMF_2017_.txt"_s}}) {
        Poste_Challenge essai(code);
        const Etat_Liste etat = essai.Liste(
            {Contact(u"2A001R"_s, u"2A"_s), Contact(u"77001C"_s), Contact(u"77002"_s), Contact(u"01001A"_s)});
        Enregistre_Liste(essai.poste, liste_ch_dfcf, etat);
        EXPECT_EQ(essai.boites.messages, std::vector<QString>{u"Fichier enregistré sous le nom : "_s + nom});
        Compare_Attendu(nom, essai.fichiers.Octets(nom));
        Compare_Attendu(u"page_"_s + code + u".txt", En_Octets(Page_De(essai, liste_ch_dfcf, etat)));
    }
}

TEST(Liste_Ch_DFCF, l_annee_changee_depuis_est_celle_du_fichier)
{
    Poste_Challenge essai;
    const Etat_Liste etat = essai.Liste({});
    essai.etat.station.annee_ch_dfcf = u"2018"_s;
    Enregistre_Liste(essai.poste, liste_ch_dfcf, etat);
    EXPECT_TRUE(essai.fichiers.Octets(u"F9ZZY_Challenge_DFCF_2018_.txt"_s).contains("Challenge DFCF 2018\r\n"));
}
