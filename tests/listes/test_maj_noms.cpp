#include "Listes_Essai.h"
#include "faux/QSO_Essai.h"
#include "listes/Index_Liste.h"
#include "listes/Maj_Noms.h"
#include "listes/Recherches_Liste.h"
#include "plateforme/Erreur_Execution.h"

#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace {

const Maj_Nom &Ligne(const QString &code)
{
    for (const Maj_Nom &maj : Majs_Nom())
        if (Code(maj.diplome) == code)
            return maj;
    throw std::runtime_error("no such entry");
}

struct Rafraichissement : ::testing::Test {
    Poste_Essai essai;

    void Pose_Log(const QString &code, const std::vector<QString> &lignes)
    {
        Pose_Liste(essai, u"F9ZZY_"_s + code + u".log", lignes);
        essai.Ouvre(code);
    }
    /// The log after the refresh of its award.
    QByteArray Apres(const QString &code)
    {
        Maj_Noms(essai.poste, Ligne(code));
        return essai.fichiers.Octets(u"F9ZZY_"_s + code + u".log");
    }
    static QByteArray Octets(const std::vector<QString> &lignes)
    {
        QString texte;
        for (const QString &ligne : lignes)
            texte += ligne + u"\r\n";
        return Encode_1252(texte);
    }
};

const QString trente = u"123456789012345678901234567890"_s;

} // namespace

TEST_F(Rafraichissement, dohf_prend_le_nom_de_la_liste_ou_les_lettres)
{
    Pose_Liste(essai, u"Liste_Ouvrages.csv"_s,
               {u"Rev"_s, u"45-EC-102;Ecluse de l'été;;45;;;"_s, u"45EC103;x"_s + trente + u";;45;;;"_s,
                u"45EC104;;;45;;;"_s});
    Pose_Log(u"DOHF"_s, {QSO({.dpt = u"45"_s, .ref = u"45EC102"_s, .nom = u"ANCIEN"_s}),
                         QSO({.dpt = u"45"_s, .ref = u"45EC103"_s}), QSO({.dpt = u"45"_s, .ref = u"45EC104"_s}),
                         QSO({.dpt = u"18"_s, .ref = u"18BA001"_s, .nom = u"PARTI DE LA LISTE"_s, .qsl = u"*"_s})});
    EXPECT_EQ(Apres(u"DOHF"_s), Octets({QSO({.dpt = u"45"_s, .ref = u"45EC102"_s, .nom = u"ECLUSE DE L'ÉTÉ"_s}),
                                        QSO({.dpt = u"45"_s, .ref = u"45EC103"_s, .nom = u"X"_s + trente.left(29)}),
                                        QSO({.dpt = u"45"_s, .ref = u"45EC104"_s, .nom = u"EC"_s}),
                                        QSO({.dpt = u"18"_s, .ref = u"18BA001"_s, .nom = u"BA"_s, .qsl = u"*"_s})}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Mise à jour du nom des ouvrages términée"_s});
    EXPECT_EQ(essai.ecran.appels, (std::vector{u"Active_Ind_A"_s, u"Selectionne_Derniere"_s}));
    EXPECT_EQ(essai.ecran.liste.size(), 4U);
    EXPECT_FALSE(essai.fichiers.Existe(u"Temporaire1.log"_s));
}

TEST_F(Rafraichissement, dfcf_perd_un_nom_trop_long)
{
    Pose_Liste(essai, u"Liste_DFCF.csv"_s,
               {u"Rev;;;;;"_s, u"77-001;Vaux;;;;"_s, u"77002;"_s + trente.left(28) + u";;;;"_s,
                u"77003;"_s + trente.left(29) + u";;;;"_s});
    Pose_Log(u"DFCF"_s, {QSO({.ref = u"77001"_s, .nom = u"C. ANCIEN"_s}), QSO({.ref = u"77002"_s}),
                         QSO({.ref = u"77003"_s}), QSO({.ref = u"77009"_s, .nom = u"C. PARTI"_s})});
    EXPECT_EQ(Apres(u"DFCF"_s),
              Octets({QSO({.ref = u"77001"_s, .nom = u"C.VAUX"_s}),
                      QSO({.ref = u"77002"_s, .nom = u"C."_s + trente.left(28)}),
                      QSO({.ref = u"77003"_s, .nom = u"00 "_s}), QSO({.ref = u"77009"_s, .nom = u"C."_s})}));
    EXPECT_EQ(essai.boites.messages, (std::vector{u"          Attention en fonction du nombre de références\n"
                                                  u"            la mise à jour peut prendre quelques minutes\n"
                                                  u" Attendre la fenetre 'Mise à jour du nom des Chateaux términée'"_s,
                                                  u"Mise à jour du nom des Chateaux términée"_s}));
}

TEST_F(Rafraichissement, dplf_prend_aussi_le_departement_de_la_liste)
{
    Pose_Liste(essai, u"Liste_DPLF.txt"_s,
               {u"La Garoupe"_s, u"12"_s, u""_s, u" 6 "_s, u""_s, trente, u"13"_s, u""_s, u"2A"_s, u""_s, u"*"_s});
    Pose_Log(u"DPLF"_s, {QSO({.dpt = u"99"_s, .ref = u"PB012"_s}), QSO({.dpt = u"20"_s, .ref = u"PB13"_s}),
                         QSO({.dpt = u"29"_s, .ref = u"PB014"_s, .nom = u"P. PARTI"_s})});
    EXPECT_EQ(Apres(u"DPLF"_s), Octets({QSO({.dpt = u"06"_s, .ref = u"PB012"_s, .nom = u"P. LA GAROUPE"_s}),
                                        QSO({.dpt = u"2A"_s, .ref = u"PB13"_s, .nom = u"P. "_s + trente.left(27)}),
                                        QSO({.dpt = u"29"_s, .ref = u"PB014"_s, .nom = u"P."_s})}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Mise à jour du nom des ouvrages términée"_s});
}

TEST_F(Rafraichissement, dplf_garde_ses_colonnes_si_la_liste_a_un_departement_trop_long)
{
    Pose_Liste(essai, u"Liste_DPLF.txt"_s, {u"La Garoupe"_s, u"12"_s, u""_s, u"Var"_s, u""_s, u"*"_s});
    Pose_Log(u"DPLF"_s, {QSO({.dpt = u"99"_s, .ref = u"PB012"_s})});
    EXPECT_EQ(Apres(u"DPLF"_s), Octets({QSO({.dpt = u"Va"_s, .ref = u"PB012"_s, .nom = u"P. LA GAROUPE"_s})}));
}

TEST_F(Rafraichissement, fff_efface_un_departement_qui_n_en_est_pas_un)
{
    Pose_Liste(essai, u"Liste_FFF.csv"_s, {u"Rev"_s, u"1;F;;FFF-0051;Forêt d'Orient;;"_s, u"1;F;;FFF-0052;;;"_s});
    Pose_Log(u"FFF"_s, {QSO({.dpt = u"FR"_s, .ref = u"0051"_s}), QSO({.dpt = u"2A"_s, .ref = u"0052"_s}),
                        QSO({.dpt = u" 7"_s, .ref = u"0053"_s, .nom = u"PARTI"_s})});
    EXPECT_EQ(Apres(u"FFF"_s), Octets({QSO({.dpt = u"  "_s, .ref = u"0051"_s, .nom = u"FORÊT D'ORIENT"_s}),
                                       QSO({.dpt = u"2A"_s, .ref = u"0052"_s, .nom = u"52"_s}),
                                       QSO({.dpt = u"  "_s, .ref = u"0053"_s, .nom = u""_s})}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Mise à jour du nom des sites términée"_s});
}

TEST_F(Rafraichissement, pc_ne_remplit_que_les_noms_vides)
{
    Pose_Liste(essai, u"Liste_PC.csv"_s, {u"Rev"_s, u"93-001;Basilique;;;;93;St Denis;"_s});
    Pose_Log(u"PC"_s,
             {QSO({.ref = u"93001"_s, .nom = u"Ancien nom"_s}), QSO({.ref = u"93001"_s}), QSO({.ref = u"93009"_s})});
    EXPECT_EQ(Apres(u"PC"_s), Octets({QSO({.ref = u"93001"_s, .nom = u"Ancien nom"_s}),
                                      QSO({.ref = u"93001"_s, .nom = u"BASILIQUE"_s}), QSO({.ref = u"93009"_s})}));
    EXPECT_EQ(essai.boites.messages, std::vector{u"Mise à jour du nom des ouvrages términée"_s});
}

TEST_F(Rafraichissement, pc_n_ouvre_pas_une_liste_dont_aucune_ligne_n_a_besoin)
{
    Pose_Log(u"PC"_s, {QSO({.ref = u"93001"_s, .nom = u"NOM"_s})});
    EXPECT_EQ(Apres(u"PC"_s), Octets({QSO({.ref = u"93001"_s, .nom = u"NOM"_s})}));
}

TEST_F(Rafraichissement, un_autre_diplome_est_refuse)
{
    const std::array refus = {u"Selectionnez le diplome DOHF"_s, u"Selectionnez le diplome DFCF"_s,
                              u"Selectionnez le diplome DPLF"_s, u"Selectionnez le diplome FFF"_s,
                              u"Selectionnez le diplome PC"_s};
    ASSERT_EQ(Majs_Nom().size(), refus.size());
    essai.Ouvre(u"DMF"_s);
    for (std::size_t rang = 0; rang < refus.size(); ++rang) {
        essai.boites.messages.clear();
        Maj_Noms(essai.poste, Majs_Nom()[rang]);
        EXPECT_EQ(essai.boites.messages.back(), refus[rang]);
        EXPECT_EQ(essai.boites.messages.size(), rang == 1 ? 2U : 1U) << "DFCF warns before it refuses";
    }
    EXPECT_TRUE(essai.fichiers.Fichiers().isEmpty());
    EXPECT_TRUE(essai.ecran.appels.empty());
}

TEST_F(Rafraichissement, un_log_vide_reste_vide_et_finit_comme_les_autres)
{
    for (const Maj_Nom &maj : Majs_Nom()) {
        Pose_Log(Code(maj.diplome).toString(), {});
        EXPECT_EQ(Apres(Code(maj.diplome).toString()), "");
        EXPECT_EQ(essai.boites.messages.back(), maj.cloture.toString());
    }
}

TEST_F(Rafraichissement, un_echec_laisse_le_log_comme_il_etait)
{
    Pose_Log(u"PC"_s, {QSO({.ref = u"93001"_s}), QSO({.ref = u"93002"_s})});
    const QByteArray avant = essai.fichiers.Octets(u"F9ZZY_PC.log"_s);
    EXPECT_THROW(Maj_Noms(essai.poste, Ligne(u"PC"_s)), Erreur_Execution) << "no list";
    Pose_Liste(essai, u"Liste_PC.csv"_s, {u"Rev"_s, u"93001;Nom;;;;93;;"_s, u"fautive"_s});
    EXPECT_THROW(Maj_Noms(essai.poste, Ligne(u"PC"_s)), Erreur_Execution) << "a faulty line";
    EXPECT_EQ(essai.fichiers.Octets(u"F9ZZY_PC.log"_s), avant);
    EXPECT_TRUE(essai.boites.messages.empty());
    essai.Ouvre(u"DOHF"_s);
    EXPECT_THROW(Maj_Noms(essai.poste, Ligne(u"DOHF"_s)), Erreur_Execution) << "no log";
}

TEST_F(Rafraichissement, une_ligne_courte_prend_ses_colonnes)
{
    Pose_Liste(essai, u"Liste_DFCF.csv"_s, {u"Rev;;;;;"_s});
    Pose_Log(u"DFCF"_s, {u""_s, u"F5ABC"_s});
    EXPECT_EQ(Apres(u"DFCF"_s), Octets({u" "_s.repeated(79) + u"C."_s.leftJustified(32),
                                        u"F5ABC"_s.leftJustified(79) + u"C."_s.leftJustified(32)}));
}

// The refresh as one reads it: a scan of the list for each line.
namespace {

using Hasard = std::mt19937;

QString Capitales(const QString &texte)
{
    return Majuscules_1252(texte);
}

QString Nom_Attendu(const QString &code, const Dossier &dossier, Champs_QSO &champs)
{
    const QString ref = Rogne(champs.ref).toString();
    if (code == u"DOHF") {
        const QString nom = *Nom_Ouvrage(dossier, ref).nom;
        return nom.isEmpty() ? ref.mid(2, 2) : Capitales(nom).left(30);
    }
    if (code == u"DFCF") {
        const QString nom = Nom_DFCF(dossier, ref);
        if (nom.isEmpty())
            return u"C."_s;
        return nom.size() > 30 ? QString(ref.mid(2, 2) + u' ') : Capitales(nom);
    }
    if (code == u"DPLF") {
        const Reference_Trouvee phare = Nom_DPLF(dossier, ref);
        if (!phare.nom)
            return u"P."_s;
        champs.dpt = phare.dpt->left(2);
        return Capitales(*phare.nom).left(30);
    }
    if (code == u"FFF") {
        if (champs.dpt.isEmpty() || champs.dpt[0] < u'0' || champs.dpt[0] > u'9')
            champs.dpt = u"  "_s;
        const QString nom = Nom_FFF(dossier, ref);
        return nom.isEmpty() ? ref.mid(2, 2) : Capitales(nom).left(30);
    }
    if (!Rogne(champs.nom).isEmpty())
        return champs.nom;
    return Capitales(Cherche_PC(dossier, ref).nom.value_or(QString())).left(30);
}

std::optional<QString> Attendu(const QString &code, const Dossier &dossier, const Lignes_Texte &log)
{
    QString texte;
    try {
        for (const QStringView ligne : log) {
            Champs_QSO champs = Champs_Log(ligne);
            champs.nom = Nom_Attendu(code, dossier, champs);
            texte += Compose_Ligne_Log(champs) + u"\r\n";
        }
    } catch (const Erreur_Execution &) {
        return std::nullopt;
    }
    return texte;
}

QString Un_De(Hasard &hasard, const std::vector<QString> &textes)
{
    return textes[hasard() % textes.size()];
}

const std::vector<QString> references = {
    u"45EC102"_s, u"77001"_s, u"77-001"_s,   u"PB001"_s,    u"PB12"_s,    u"0051"_s, u"93001"_s, u"x"_s,
    u""_s,        u"*"_s,     u"FFF-0051"_s, u"FFF-0052"_s, u"ON-0053"_s, u"1"_s,    u"12"_s,    u"012"_s};

QString Une_Liste(Hasard &hasard, bool cinq_lignes)
{
    const std::vector<QString> textes = {u"Vaux"_s, u"été"_s, trente, trente + u"x", u""_s, u"6"_s, u"2A"_s};
    QString texte;
    for (auto nombre = hasard() % 60; nombre > 0; --nombre) {
        QString ligne = Un_De(hasard, references);
        for (int champ = 0; champ < 7 && !cinq_lignes; ++champ)
            ligne += u';' + Un_De(hasard, hasard() % 2 ? references : textes);
        if (cinq_lignes && hasard() % 3)
            ligne = Un_De(hasard, textes);
        if (hasard() % 300 == 0)
            ligne = u"fautive"_s;
        texte += ligne + u"\r\n";
    }
    return texte;
}

QString Un_Log(Hasard &hasard)
{
    QString texte;
    for (auto nombre = hasard() % 40; nombre > 0; --nombre) {
        QString ligne = QSO({.dpt = Un_De(hasard, {u"77"_s, u"F"_s, u""_s, u"2A"_s}),
                             .ref = Un_De(hasard, references),
                             .nom = Un_De(hasard, {u"ANCIEN"_s, u""_s, u"é"_s})});
        if (hasard() % 12 == 0)
            ligne.truncate(static_cast<qsizetype>(hasard() % 112));
        if (hasard() % 12 == 0)
            ligne += QChar(0) + u"trop long"_s;
        texte += ligne + u"\r\n";
    }
    return texte;
}

} // namespace

TEST_F(Rafraichissement, donne_ce_qu_un_balayage_par_ligne_donne)
{
    Hasard hasard(20260101);
    int faits = 0;
    int refuses = 0;
    for (int tour = 0; tour < 80; ++tour) {
        for (const Maj_Nom &maj : Majs_Nom()) {
            const QString code = Code(maj.diplome).toString();
            essai.fichiers.Pose(maj.recherche->lecture.fichier.toString(),
                                Encode_1252(Une_Liste(hasard, code == u"DPLF")));
            const Lignes_Texte log(Un_Log(hasard));
            const std::optional<QString> attendu = Attendu(code, essai.dossier, log);
            Index_Liste liste(*maj.recherche, essai.dossier);
            if (attendu) {
                EXPECT_EQ(Texte_Renomme(log, maj, liste), *attendu) << code.toStdString();
                ++faits;
            } else {
                EXPECT_THROW(Texte_Renomme(log, maj, liste), Erreur_Execution) << code.toStdString();
                ++refuses;
            }
        }
    }
    EXPECT_GT(faits, 200);
    EXPECT_GT(refuses, 20);
}
