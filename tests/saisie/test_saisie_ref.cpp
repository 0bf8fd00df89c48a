#include "faux/Echec.h"
#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"
#include "faux/QSO_Essai.h"
#include "plateforme/Windows_1252.h"
#include "saisie/Chaine.h"
#include "saisie/Regle_Ref.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using enum Controle;

/// A reference that its award takes, and what becomes of department "99" and name "ANCIEN NOM".
struct Cas {
    QStringView code;
    QStringView ref;
    QStringView dpt;
    QStringView nom_nouveau;
    QStringView nom_en_edition;
};

// clang-format off
constexpr Cas acceptees[] = {
    {u"DOHF", u"45EC102", u"45", u"ECLUSE DE LA FORÊT DE FONTAINE", u"ECLUSE DE LA FORÊT DE FONTAINE"},
    {u"TDC", u"11-008", u"11", u"TOUR DE L'ÉTÉ AU NOM QUI PASSE LES TRENTE", u"TOUR DE L'ÉTÉ AU NOM QUI PASSE LES TRENTE"},
    {u"DCF", u"001", u"51", u"C. NOTRE-DAME À REIMS", u"C. NOTRE-DAME À REIMS"},
    {u"DCF", u"001B", u"51", u"B. DE CHÂLONS-EN-CHAMPAGNE-ET-D'AUTRES-LIEUX-BIEN-", u"B. DE CHÂLONS-EN-CHAMPAGNE-ET-D'AUTRES-LIEUX-BIEN-"},
    {u"FFF", u"0051", u"99", u"PARC DES ÉCRINS", u"PARC DES ÉCRINS"},
    {u"DPLF", u"PB001", u"05", u"P. Phare de l'Été", u"P. Phare de l'Été"},
    {u"DFCF", u"77001", u"77", u"C. ", u"C.VAUX LE VICOMTE"},
    {u"DMF", u"77001", u"77", u"M. ", u"ANCIEN NOM"},
    {u"DLF", u"77001", u"77", u"L. ", u"ANCIEN NOM"},
    {u"DAF", u"31001A", u"31", u"A. ", u"ANCIEN NOM"},
    {u"DIFM", u"AT071", u"99", u"I. ", u"ANCIEN NOM"},
    {u"DIFI", u"44008R", u"44", u"I. ", u"ANCIEN NOM"},
    {u"DCPF", u"81PT001", u"99", u"P. ", u"ANCIEN NOM"},
    {u"DFF", u"31FP001", u"31", u"F. ", u"F. "},
    {u"DVFF", u"GA18001", u"18", u"G. ", u"ANCIEN NOM"},
    {u"DVFF", u"GVM18001", u"18", u"G. ", u"ANCIEN NOM"},
    {u"WLF", u"151", u"", u"L. ", u"ANCIEN NOM"},
    {u"PC", u"93001", u"93", u"BASILIQUE SAINT-DENIS ET SES T", u"BASILIQUE SAINT-DENIS ET SES T"},
    {u"Ch_DFCF", u"77001R", u"77", u"C. ", u"C."},
    {u"Ch_DFCF", u"77001A", u"77", u"C. ", u"C."},
    {u"Ch_DMF", u"77001B", u"99", u"M. ", u"ANCIEN NOM"},
    {u"Ch_DMF", u"77001C", u"99", u"M. ", u"ANCIEN NOM"},
};
// clang-format on

struct Refusee {
    QStringView code;
    QStringView ref;
    QStringView message;
};

// clang-format off
constexpr Refusee refusees[] = {
    {u"DOHF", u"7701R000", u"7 caractères pour la référence ex: 45EC102"},
    {u"DOHF", u"7701R0", u"7 caractères pour la référence ex: 45EC102"},
    {u"DOHF", u"", u"7 caractères pour la référence ex: 45EC102"},
    {u"TDC", u"7701R00", u"6 caractères pour la référence ex: 11-008"},
    {u"TDC", u"7701R", u"6 caractères pour la référence ex: 11-008"},
    {u"TDC", u"", u"6 caractères pour la référence ex: 11-008"},
    {u"DCF", u"7701R", u"4 caractères maxi pour le numéro ex: 001 Cathédrale 001B Basislic 001C Collégiale"},
    {u"FFF", u"7701R", u"4 caractères maxi pour la référence ex: 0051"},
    {u"FFF", u"770", u"4 caractères maxi pour la référence ex: 0051"},
    {u"FFF", u"", u"4 caractères maxi pour la référence ex: 0051"},
    {u"FFF", u"00-5", u"Pas de tirets dans la référence Ex: 0051"},
    {u"FFF", u"005", u"4 caractères maxi pour la référence ex: 0051"},
    {u"DPLF", u"7701R0", u"5 caractères maxi pour la référence ex: PB001"},
    {u"DFCF", u"7701R0", u"5 caractères pour la référence ex: 77001"},
    {u"DFCF", u"7701", u"5 caractères pour la référence ex: 77001"},
    {u"DFCF", u"", u"5 caractères pour la référence ex: 77001"},
    {u"DMF", u"7701R0", u"5 caractères pour la référence ex: 77001"},
    {u"DMF", u"7701", u"5 caractères pour la référence ex: 77001"},
    {u"DMF", u"", u"5 caractères pour la référence ex: 77001"},
    {u"DLF", u"7701R0", u"5 caractères pour la référence ex: 77001"},
    {u"DLF", u"7701", u"5 caractères pour la référence ex: 77001"},
    {u"DLF", u"", u"5 caractères pour la référence ex: 77001"},
    {u"DAF", u"7701R00", u"7 caractères pour la référence ex: 31001A"},
    {u"DAF", u"7701R", u"7 caractères pour la référence ex: 31001A"},
    {u"DAF", u"", u"7 caractères pour la référence ex: 31001A"},
    {u"DIFM", u"7701R0", u"5 caractères pour la référence ex: AT071"},
    {u"DIFM", u"7701", u"5 caractères pour la référence ex: AT071"},
    {u"DIFM", u"", u"5 caractères pour la référence ex: AT071"},
    {u"DIFI", u"7701R00", u"6 caractères pour la référence ex: 44008R"},
    {u"DIFI", u"7701R", u"6 caractères pour la référence ex: 44008R"},
    {u"DIFI", u"", u"6 caractères pour la référence ex: 44008R"},
    {u"DCPF", u"7701R000", u"7 caractères maxi pour la référence ex: 81PT001"},
    {u"DFF", u"7701R000", u"7 caractères maxi pour la référence ex: 31FP001"},
    {u"DVFF", u"7701R00012", u"9 caractères maxi pour la référence ex: GA18001"},
    {u"WLF", u"7701", u"3 caractères pour la référence ex: 151"},
    {u"WLF", u"77", u"3 caractères pour la référence ex: 151"},
    {u"WLF", u"", u"3 caractères pour la référence ex: 151"},
    {u"PC", u"7701R0", u"5 caractères pour la référence ex: 93001"},
    {u"PC", u"7701", u"5 caractères pour la référence ex: 93001"},
    {u"PC", u"", u"5 caractères pour la référence ex: 93001"},
    {u"Ch_DFCF", u"7701R00", u"6 caractères pour la référence ex: 77001R"},
    {u"Ch_DFCF", u"7701R", u"6 caractères pour la référence ex: 77001R"},
    {u"Ch_DFCF", u"", u"6 caractères pour la référence ex: 77001R"},
    {u"Ch_DFCF", u"77001X", u"Apres la référence, uniquement les caractères A, R, C, et D "},
    {u"Ch_DFCF", u"77001D", u"Apres la référence, uniquement les caractères A, R, C, et D "},
    {u"Ch_DFCF", u"770011", u"Apres la référence, uniquement les caractères A, R, C, et D "},
    {u"Ch_DFCF", u"77001r", u"Apres la référence, uniquement les caractères A, R, C, et D "},
    {u"Ch_DFCF", u"77001", u"6 caractères pour la référence ex: 77001R"},
    {u"Ch_DMF", u"7701R00", u"6 caractères pour la référence ex: 77001R"},
    {u"Ch_DMF", u"7701R", u"6 caractères pour la référence ex: 77001R"},
    {u"Ch_DMF", u"", u"6 caractères pour la référence ex: 77001R"},
    {u"Ch_DMF", u"77001X", u"Apres la référence, uniquement les caractères A, R, C, et D "},
    {u"Ch_DMF", u"77001D", u"Apres la référence, uniquement les caractères A, R, C, et D "},
    {u"Ch_DMF", u"770011", u"Apres la référence, uniquement les caractères A, R, C, et D "},
    {u"Ch_DMF", u"77001r", u"Apres la référence, uniquement les caractères A, R, C, et D "},
    {u"Ch_DMF", u"77001", u"6 caractères pour la référence ex: 77001R"},
};
// clang-format on

class Reference : public ::testing::Test {
protected:
    Reference()
    {
        Pose_Liste(u"Liste_DFCF.csv"_s, u"Rev 017 du 01/01/12;;;;;\r\n77-001;Vaux le Vicomte;;;Maincy;77\r\n"_s);
        Pose_Liste(u"Liste_DCF.csv"_s,
                   u"Rev 017 du 01/01/12;;;;\r\nDCF-001;Reims;51;Notre-Dame;\r\n"
                   u"DCF-001B;Châlons-en-Champagne-et-d'autres-lieux-bien-loin;51;Basilique Saint-Alpin;\r\n"_s);
        Pose_Liste(u"Liste_FFF.csv"_s, u"Rev 017 du 01/01/12;;;;;;\r\na;;;;;;\r\nb;;;;;;\r\n"
                                       u"1;France;x;FFF-0051;Parc des Écrins;abcdef;\r\n"_s);
        Pose_Liste(u"Liste_DPLF.txt"_s, u"Phare de l'Été\r\n1\r\nx\r\n 5 \r\ny\r\n*\r\n"_s);
        Pose_Liste(u"Liste_TDC.csv"_s, u"Rev 017 01/01/12;;;;;;;\r\n"
                                       u"8;11;1;Tour de l'été au nom qui passe les trente;Ligne;F;;\r\n"
                                       u"9;34;2;Tour du Midi;Ligne;F;;\r\n"_s);
        Pose_Liste(u"Liste_Ouvrages.csv"_s,
                   u"Rev 017 01/01/12;;;;;;\r\n45-EC-102;Ecluse de la forêt de Fontainebleau;Ecluse;45;;;\r\n"_s);
        Pose_Liste(
            u"Liste_PC.csv"_s,
            u"Rev 017 01/01/12;;;;;;;\r\nPC-93-001;Basilique Saint-Denis et ses tombeaux;;1;;93;Saint-Denis;\r\n"_s);
    }

    Poste_Saisie essai;
    Saisie &saisie = essai.saisie;

    void Pose_Liste(const QString &nom, const QString &texte) { essai.fichiers.Pose(nom, Encode_1252(texte)); }

    /// Enter on a reference of an award whose log is empty.
    void Entre(QStringView code, QStringView ref)
    {
        Ouvre_Diplome_Vide(code);
        saisie.Ecrit(Dpt_A, u"99"_s);
        saisie.Ecrit(Nom_A, u"ANCIEN NOM"_s);
        Entre_Ref(ref);
    }
    void Entre_Ref(QStringView ref)
    {
        saisie.Active(Ref_A, true);
        saisie.Ecrit(Ref_A, ref.toString());
        saisie.Donne_Focus(Ref_A);
        Entree(essai.poste, saisie, Ref_A);
    }
    void Ouvre_Diplome_Vide(QStringView code)
    {
        essai.etat.station.annee_ch_dfcf = essai.etat.station.annee_ch_dmf = u"2026"_s;
        const bool differee = saisie.saisie_differee;
        const bool affiche = saisie.qso_affiche;
        essai.Ouvre_Log(code.toString());
        if (Est_Challenge(Diplome_De(code)))
            essai.fichiers.Pose(u"F9ZZY_"_s + code + u"_2026.log", "");
        saisie.saisie_differee = differee;
        saisie.qso_affiche = affiche;
    }
    void Attend_Passage(const Cas &cas, QStringView nom)
    {
        SCOPED_TRACE((cas.code + u' ' + cas.ref).toUtf8().constData());
        Entre(cas.code, cas.ref);
        EXPECT_EQ(essai.Messages(), std::vector<QString>());
        EXPECT_EQ(saisie.Focus(), Dpt_A);
        EXPECT_TRUE(saisie.Est_Actif(Dpt_A));
        EXPECT_EQ(saisie.Texte(Dpt_A), cas.dpt.toString());
        EXPECT_EQ(saisie.Texte(Nom_A), nom.toString());
    }
};

} // namespace

TEST_F(Reference, une_nouvelle_entree_recoit_departement_et_debut_du_nom)
{
    for (const Cas &cas : acceptees) {
        Attend_Passage(cas, cas.nom_nouveau);
        // The name goes on behind a prefix of the award.
        EXPECT_EQ(saisie.Curseur_De(Nom_A) == Curseur::Fin, cas.nom_nouveau.size() == 3)
            << cas.code.toString().toStdString();
    }
}

TEST_F(Reference, une_entree_en_differe_recoit_la_meme_chose)
{
    saisie.saisie_differee = true;
    for (const Cas &cas : acceptees)
        Attend_Passage(cas, cas.nom_nouveau);
}

TEST_F(Reference, un_qso_affiche_ou_modifie_garde_son_nom_sauf_exception)
{
    for (bool Saisie::*drapeau : {&Saisie::qso_affiche, &Saisie::qso_en_edition}) {
        saisie.*drapeau = true;
        for (const Cas &cas : acceptees)
            Attend_Passage(cas, cas.nom_en_edition);
        saisie.*drapeau = false;
    }
}

TEST_F(Reference, une_forme_refusee_reste_et_ne_remplit_rien)
{
    for (const Refusee &refusee : refusees) {
        SCOPED_TRACE((refusee.code + u' ' + refusee.ref).toUtf8().constData());
        Entre(refusee.code, refusee.ref);
        EXPECT_EQ(essai.Messages(), std::vector<QString>{refusee.message.toString()});
        EXPECT_EQ(saisie.Focus(), Ref_A);
        EXPECT_EQ(saisie.Texte(Ref_A), refusee.ref.toString());
        EXPECT_EQ(saisie.Texte(Dpt_A), u"99"_s);
        EXPECT_EQ(saisie.Texte(Nom_A), u"ANCIEN NOM"_s);
    }
}

TEST_F(Reference, onze_caracteres_ont_le_message_general_pour_tout_diplome)
{
    for (const QStringView code : codes_diplome) {
        Entre(code, u"77-001-0001");
        EXPECT_EQ(essai.Messages(), std::vector<QString>{u"10 caracteres maxi pour la reference (pas de tiret)"_s});
        EXPECT_EQ(saisie.Focus(), Ref_A);
    }
}

TEST_F(Reference, les_18_diplomes_a_reference_ont_une_regle_et_les_autres_non)
{
    for (const QStringView code : codes_diplome)
        EXPECT_EQ(Regle_Ref_De(Diplome_De(code)) != nullptr, code != u"DDFM" && code != u"DPF" && code != u"DYLF");
    // Another text goes straight to the department.
    Entre(u"DDFM", u"x");
    EXPECT_EQ(saisie.Focus(), Dpt_A);
    EXPECT_EQ(saisie.Texte(Nom_A), u"ANCIEN NOM"_s);
}

TEST_F(Reference, une_repetition_est_dite_sur_une_ligne_avec_sa_date)
{
    essai.Ouvre_Log(u"DFCF"_s, QSO({.ref = u"77001"_s, .date = u"12/05/07"_s}).toLatin1() + "\r\n" +
                                   QSO({.ref = u"77001"_s, .date = u"13/05/07"_s}).toLatin1() + "\r\n");
    Entre_Ref(u"77001");
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"La référence 77001 a été contactée le 12/05/07"_s});
    EXPECT_EQ(saisie.Focus(), Ref_A);
    // The R of a reactivation makes another reference, which DFCF has no room for.
    Entre_Ref(u"77001R");
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"5 caractères pour la référence ex: 77001"_s});
}

TEST_F(Reference, la_repetition_est_dite_avant_la_forme)
{
    essai.Ouvre_Log(u"DFCF"_s, QSO({.ref = u"7700"_s}).toLatin1() + "\r\n");
    Entre_Ref(u"7700");
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"La référence 7700 a été contactée le 12/05/07"_s});
}

TEST_F(Reference, un_r_derriere_la_reference_n_est_pas_une_repetition)
{
    essai.Ouvre_Log(u"DIFI"_s, QSO({.ref = u"44008R"_s}).toLatin1() + "\r\n");
    Entre_Ref(u"44009R");
    EXPECT_TRUE(essai.Messages().empty());
    Entre_Ref(u"44008R");
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"La référence 44008R a été contactée le 12/05/07"_s});
}

TEST_F(Reference, en_differe_ou_sur_un_qso_affiche_une_repetition_passe)
{
    for (bool Saisie::*drapeau : {&Saisie::saisie_differee, &Saisie::qso_affiche, &Saisie::qso_en_edition}) {
        essai.Ouvre_Log(u"DFCF"_s, QSO({.ref = u"77001"_s}).toLatin1() + "\r\n");
        saisie.*drapeau = true;
        Entre_Ref(u"77001");
        EXPECT_TRUE(essai.Messages().empty());
        EXPECT_EQ(saisie.Focus(), Dpt_A);
        saisie.*drapeau = false;
    }
}

TEST_F(Reference, en_differe_le_log_n_est_pas_lu)
{
    essai.Ouvre_Log(u"DMF"_s);
    QFile::remove(essai.fichiers.Chemin(u"F9ZZY_DMF.log"_s));
    saisie.saisie_differee = true;
    EXPECT_FALSE(Echec([&] { Entre_Ref(u"77001"); }));
    saisie.saisie_differee = false;
    EXPECT_EQ(Echec([&] { Entre_Ref(u"77001"); })->La_Cause(), Cause::Fichier_Introuvable);
}

TEST_F(Reference, une_cathedrale_inconnue_est_dite_et_vide_les_champs)
{
    Entre(u"DCF", u"999");
    EXPECT_EQ(essai.Messages(),
              std::vector<QString>{u"Référence non trouvée, cliquez sur le bouton 'Liste Cathédrales'"_s});
    EXPECT_EQ(saisie.Focus(), Dpt_A);
    EXPECT_EQ(saisie.Texte(Dpt_A), u""_s);
    EXPECT_EQ(saisie.Texte(Nom_A), u""_s);
}

TEST_F(Reference, une_inconnue_d_une_autre_liste_passe)
{
    Entre(u"DOHF", u"45EC999");
    EXPECT_EQ(saisie.Texte(Dpt_A), u"45"_s);
    EXPECT_EQ(saisie.Texte(Nom_A), u"EC"_s);
    for (const auto &[code, ref] : {std::pair(u"FFF", u"9999"), std::pair(u"PC", u"93999")}) {
        Entre(code, ref);
        EXPECT_EQ(saisie.Texte(Nom_A), u""_s);
        EXPECT_EQ(saisie.Focus(), Dpt_A);
    }
    Entre(u"DPLF", u"PB999");
    EXPECT_EQ(saisie.Texte(Dpt_A), u""_s);
    EXPECT_TRUE(essai.Messages().empty());
}

TEST_F(Reference, une_tour_inconnue_est_dite_et_laisse_la_derniere_de_la_liste)
{
    Entre(u"TDC", u"11-999");
    EXPECT_EQ(essai.Messages(), std::vector<QString>{u"Pas de tours Chappe dans le département "_s});
    EXPECT_EQ(saisie.Texte(Dpt_A), u"34"_s);
    EXPECT_EQ(saisie.Texte(Nom_A), u"TOUR DU MIDI"_s);
    EXPECT_EQ(saisie.Focus(), Dpt_A);
}

TEST_F(Reference, sans_sa_liste_la_reference_echoue)
{
    for (const auto &[code, ref, liste] : {std::tuple(u"DFCF"_s, u"77001"_s, u"Liste_DFCF.csv"_s),
                                           std::tuple(u"DOHF"_s, u"45EC102"_s, u"Liste_Ouvrages.csv"_s)}) {
        QFile::remove(essai.fichiers.Chemin(liste));
        const auto echec = Echec([&] { Entre(code, ref); });
        ASSERT_TRUE(echec);
        EXPECT_TRUE(echec->Texte().contains(liste));
    }
}

TEST_F(Reference, une_reference_courte_ne_deborde_pas)
{
    for (const auto &[code, ref, dpt] :
         {std::tuple(u"DFF", u"3", u"3"), std::tuple(u"DVFF", u"GVM", u""), std::tuple(u"DVFF", u"G", u""),
          std::tuple(u"DVFF", u"GA1", u"1"), std::tuple(u"DFF", u"", u"")}) {
        Entre(code, ref);
        EXPECT_EQ(saisie.Texte(Dpt_A), QString::fromUtf16(dpt));
    }
    Entre(u"DPLF", u"");
    EXPECT_EQ(saisie.Focus(), Dpt_A);
    Entre(u"DCF", u"");
    EXPECT_EQ(saisie.Focus(), Dpt_A);
}
