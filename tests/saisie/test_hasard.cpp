#include "faux/Impression.h"
#include "faux/Poste_Saisie.h"
#include "faux/QSO_Essai.h"
#include "saisie/Chaine.h"
#include "saisie/Options.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace {

using enum Controle;

/// An operator without plan: any action that the screen allows, in any order, with any text.
class Operateur {
public:
    explicit Operateur(unsigned graine) : hasard_(graine)
    {
        for (const QString &code : codes_) {
            QByteArray octets;
            for (int i = 0; i < 4; ++i)
                octets +=
                    QSO({.ind = u"F%1AA"_s.arg(i), .dpt = u"77"_s, .ref = u"7700%1"_s.arg(i)}).toLatin1() + "\r\n";
            essai_.fichiers.Pose(u"F9ZZY_" + code + u".log", octets);
        }
        essai_.fichiers.Pose(u"Liste_DFCF.csv"_s, "");
        Ouvre(codes_.front());
    }

    /// One action; gives its name.
    std::string Agit()
    {
        const auto &[nom, action] = actions_[static_cast<std::size_t>(Nombre(static_cast<int>(actions_.size()) - 1))];
        action();
        return nom;
    }

    /// A commit has an old line to take the place of.
    [[nodiscard]] bool A_Une_Cible() const
    {
        const Lignes_Texte log = essai_.dossier.Lit_Lignes(u"F9ZZY_" + Code(essai_.etat.station.diplome) + u".log");
        const QString cible = Ligne_Log_Affichee(saisie_.ligne_selectionnee);
        return saisie_.qso_affiche && std::find(log.begin(), log.end(), cible) != log.end();
    }

    /// All lines of all logs, sorted.
    [[nodiscard]] std::vector<QString> Lignes() const
    {
        std::vector<QString> toutes;
        for (const QString &code : codes_)
            for (const QStringView ligne : essai_.dossier.Lit_Lignes(u"F9ZZY_" + code + u".log"))
                toutes.push_back(code + u' ' + ligne);
        std::sort(toutes.begin(), toutes.end());
        return toutes;
    }

private:
    int Nombre(int maximum) { return std::uniform_int_distribution<int>(0, maximum)(hasard_); }
    const QString &Parmi(const std::vector<QString> &textes)
    {
        return textes[static_cast<std::size_t>(Nombre(static_cast<int>(textes.size()) - 1))];
    }

    void Ouvre(const QString &code)
    {
        saisie_.Ecrit(Dip_A, code);
        Entree(essai_.poste, saisie_, Dip_A);
    }
    void Clique(bool double_clic)
    {
        if (ecran_.Liste_QSO().empty())
            return;
        ecran_.Selectionne_QSO(static_cast<std::size_t>(Nombre(static_cast<int>(ecran_.Liste_QSO().size()) - 1)));
        if (double_clic)
            Double_Clic_Liste(essai_.poste, saisie_, ecran_.QSO_Selectionne());
    }
    void Presse(Controle bouton, void (*action)(Poste &, Saisie &))
    {
        if (saisie_.Est_Actif(bouton))
            action(essai_.poste, saisie_);
    }
    void Choisit_Option()
    {
        Choisit_Saisie(essai_.poste, saisie_, Nombre(1) == 0);
        Tique(essai_.poste, saisie_);
    }
    /// Walks the enabled fields from one on, with a text that fits each most of the time.
    void Remplit_Et_Entre()
    {
        for (int i = Nombre(3) ? 1 : Nombre(11); i < 12 && saisie_.Est_Actif(champs_[i]); ++i) {
            if (champs_[i] != QSL_A && Nombre(2))
                saisie_.Ecrit(champs_[i], Nombre(9) ? justes_[i] : Parmi(absurdes_));
            saisie_.Donne_Focus(champs_[i]);
            Entree(essai_.poste, saisie_, champs_[i]);
        }
    }

    std::mt19937 hasard_;
    Poste_Saisie essai_;
    Saisie &saisie_ = essai_.saisie;
    Ecran_Du_Log &ecran_ = essai_.ecran_du_log;
    const std::vector<QString> codes_{u"DFCF"_s, u"DDFM"_s, u"WLF"_s};
    const Controle champs_[12] = {Bande_A, Ind_A,  Prenom_A, Ref_A,  Dpt_A, Date_A,
                                  Heure_A, Mode_A, RSTR_A,   RSTE_A, Nom_A, QSL_A};
    const QString justes_[12] = {
        u"21 Mhz"_s, u"TM5CHATEAUX1"_s, u"LÉA"_s, u"63087"_s,          u"63"_s, u"13/05/07"_s, u"14:48"_s,
        u"CW"_s,     u"599"_s,          u"579"_s, u"C. DE TOURNOËL"_s, u""_s};
    const std::vector<QString> absurdes_{u""_s,         u" "_s,   QString(60, u'X'), u"ÿ\x81€"_s,
                                         u"12-05-07"_s, u"151"_s, u"\t\0"_s};
    const std::vector<std::pair<std::string, std::function<void()>>> actions_{
        {"open", [this] { Ouvre(Parmi(codes_)); }},
        {"click", [this] { Clique(false); }},
        {"double click", [this] { Clique(true); }},
        {"insertion", [this] { Commence_Insertion(essai_.poste, saisie_); }},
        {"delete", [this] { Presse(Annule_Saisie, Supprime_QSO); }},
        {"commit", [this] { Presse(Valide_A, Valide_QSO); }},
        {"commit", [this] { Presse(Valide_A, Valide_QSO); }},
        {"option", [this] { Choisit_Option(); }},
        {"fields", [this] { Remplit_Et_Entre(); }},
        {"fields", [this] { Remplit_Et_Entre(); }},
        {"fields", [this] { Remplit_Et_Entre(); }},
        {"clear", [this] { Efface_Tout(saisie_); }},
    };
};

/// The lines of `avant` that are not in `apres`.
std::vector<QString> Parties(const std::vector<QString> &avant, const std::vector<QString> &apres)
{
    std::vector<QString> parties;
    std::set_difference(avant.begin(), avant.end(), apres.begin(), apres.end(), std::back_inserter(parties));
    return parties;
}

} // namespace

TEST(Hasard, aucune_suite_d_actions_ne_perd_ni_n_abime_un_autre_qso)
{
    int ecritures = 0;
    for (const unsigned graine : {1U, 2U, 3U}) {
        Operateur operateur(graine);
        std::vector<QString> avant = operateur.Lignes();
        for (int i = 0; i < 2500; ++i) {
            const bool cible = operateur.A_Une_Cible();
            const std::string action = operateur.Agit();
            std::vector<QString> apres = operateur.Lignes();
            const std::size_t parties = Parties(avant, apres).size();
            const std::size_t venues = Parties(apres, avant).size();
            SCOPED_TRACE(action + " " + std::to_string(graine) + "/" + std::to_string(i));
            ASSERT_LE(parties, action == "delete" || action == "commit" ? 1U : 0U);
            ASSERT_LE(venues, action == "commit" ? 1U : 0U);
            // What is replaced makes room for one line, and what is there to be replaced is.
            ASSERT_TRUE(action != "commit" || venues >= parties);
            ASSERT_TRUE(action != "commit" || !cible || apres.size() == avant.size());
            for (const QString &ligne : apres)
                ASSERT_EQ(ligne.sliced(ligne.indexOf(u' ') + 1).size(), colonnes_log::longueur) << ligne.toStdString();
            ecritures += parties + venues > 0;
            avant = std::move(apres);
        }
    }
    EXPECT_GT(ecritures, 100);
}
