#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"
#include "plateforme/Commandes.h"
#include "saisie/Boutons_Reference.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Commandes_Fausses : public Commandes {
public:
    void Execute(const QString &nom) override { executees.push_back(nom); }
    [[nodiscard]] bool Connait_Commande(const QString &) const override { return true; }

    std::vector<QString> executees;
};

class Boutons : public ::testing::Test {
protected:
    Poste_Saisie essai;
    Commandes_Fausses commandes;

    /// What the button answers for an award: the message, the screen or the command.
    QString Detail(const QString &code, bool selectionne = true) { return Reponse(code, selectionne, Presse_Detail); }
    QString Detail_1(const QString &code, bool selectionne = false)
    {
        return Reponse(code, selectionne, Presse_Detail_1);
    }

private:
    QString Reponse(const QString &code, bool selectionne, void (*bouton)(Poste &, Commandes &))
    {
        essai.etat.station.diplome = Diplome_De(code);
        essai.saisie.ligne_selectionnee = selectionne ? u"      1  F5ABC"_s : QString();
        essai.ecrans.montres.clear();
        commandes.executees.clear();
        bouton(essai.poste, commandes);
        QStringList reponses;
        for (const QString &message : essai.Messages())
            reponses += u"dit " + message;
        for (const QString &ecran : essai.ecrans.montres)
            reponses += u"ouvre " + ecran;
        for (const QString &commande : commandes.executees)
            reponses += u"execute " + commande;
        return reponses.join(u" + "_s);
    }
};

} // namespace

TEST_F(Boutons, detail_repond_par_diplome)
{
    // clang-format off
    const std::pair<QStringView, QStringView> reponses[] = {
        {u"DOHF", u"ouvre Detail_Activite"},
        {u"DCF", u"ouvre Liste_References"},
        {u"DFCF", u"ouvre Detail_DFCF"},
        {u"DYLF", u"ouvre Scores_DYLF"},
        {u"DPF", u"ouvre Detail_DPF"},
        {u"TDC", u"ouvre Detail_TDC"},
        {u"FFF", u"ouvre Detail_FFF"},
        {u"DPLF", u"ouvre Liste_References"},
        {u"PC", u"ouvre Detail_PC"},
        {u"DDFM", u"execute Collecte_DDFM"},
        {u"Ch_DFCF", u"execute Fusion_Activite_DFCF"},
        {u"Ch_DMF", u"execute Fusion_Activite_DMF"},
        {u"DIFM", u"execute Liste_Des_Iles"},
    };
    // clang-format on
    QStringList actifs;
    for (const auto &[code, reponse] : reponses) {
        EXPECT_EQ(Detail(code.toString()), reponse.toString());
        actifs += code.toString();
    }
    for (const QStringView code : codes_diplome) {
        if (actifs.contains(code))
            continue;
        EXPECT_EQ(Detail(code.toString()), u"dit Bouton inactif pour ce diplome"_s);
    }
}

TEST_F(Boutons, sans_qso_detail_demande_un_qso_sauf_pour_ch_dfcf)
{
    for (const QStringView code : codes_diplome) {
        const bool epargne = code == u"Ch_DFCF";
        EXPECT_EQ(Detail(code.toString(), false),
                  epargne ? u"execute Fusion_Activite_DFCF"_s : u"dit Selectionnez un QSO"_s);
    }
}

TEST_F(Boutons, detail_1_ne_repond_qu_aux_challenges_et_sans_qso)
{
    for (const QStringView code : codes_diplome)
        EXPECT_EQ(Detail_1(code.toString()), Est_Challenge(Diplome_De(code)) ? u"execute Fusion_Trelune"_s
                                                                             : u"dit Bouton inactif pour ce diplome"_s);
}

TEST_F(Boutons, le_diplome_courant_compte_et_non_celui_de_dip_a)
{
    essai.saisie.Ecrit(Controle::Dip_A, u"PC"_s);
    EXPECT_EQ(Detail(u"DFCF"_s), u"ouvre Detail_DFCF"_s);
}
