#include "ADIF_Essai.h"
#include "Lecture_Lente.h"
#include "Lecture_Rapide.h"

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Well-formed and damaged ADIF texts, the same for one seed.
class ADIF_Au_Hasard {
public:
    explicit ADIF_Au_Hasard(unsigned graine) : hasard_(graine) {}

    std::string Fichier()
    {
        std::string texte = Une_Sur(20) ? "" : "entete <SIG:1>x\r\n<EOH>" + Fin_De_Ligne();
        for (std::size_t i = Nombre(6); i > 0; --i)
            texte += Enregistrement() + (Une_Sur(8) ? "" : Fin_De_Ligne());
        for (std::size_t i = Une_Sur(2) ? Nombre(5) : 0; i > 0; --i)
            Abime(texte);
        return texte;
    }

private:
    std::size_t Nombre(std::size_t maximum) { return std::uniform_int_distribution<std::size_t>(0, maximum)(hasard_); }
    bool Une_Sur(std::size_t fois) { return Nombre(fois - 1) == 0; }
    template <std::size_t N>
    std::string Un_De(const std::array<const char *, N> &choix)
    {
        return choix[Nombre(N - 1)];
    }
    std::string Fin_De_Ligne() { return Une_Sur(2) ? "\r\n" : "\n"; }

    std::string Champ(const std::string &etiquette, const std::string &valeur)
    {
        if (Une_Sur(12))
            return "";
        return "<" + etiquette + ":" + std::to_string(Nombre(12)) + ">" + valeur + (Une_Sur(4) ? "" : " ") +
               (Une_Sur(15) ? Fin_De_Ligne() : "");
    }

    std::string Enregistrement()
    {
        std::vector<std::string> champs{
            Champ("CALL", Un_De<4>({"F5ABC", "f6xyz/p", "LONGUECALLSIGN", ""})),
            Champ("STATE", Un_De<6>({"77", "2A", "7", "ABCDE", "01", " "})),
            Champ(Un_De<2>({"name", "NAME_INTL"}), Un_De<3>({"Jean", "ANTOINE-MARIE-LOUIS", "  "})),
            Champ("SIG", Un_De<6>({"77001", "DMF-93013", "DFCF-77002R", "11-008", "", "-"})),
            Champ("QSO_DATE", Un_De<4>({"20150926", "19991231", "2015", "20160101"})),
            Champ("TIME_ON", Un_De<4>({"1405", "140559", "9", "0000"})),
            Champ("MODE", Un_De<4>({"SSB", "CW", "OLIVIA", ""})),
            Champ(Un_De<4>({"BAND", "Band", "BAND_RX", "NOTHING"}), Un_De<6>({"20m", "10", "10M", "70cm", "23cm", ""})),
            Champ(Un_De<2>({"FREQ", "FREQ_RX"}), Un_De<6>({"14.250", "3.710", "144.300", "1.850", "28", ""})),
            Champ("RST_RCVD", Un_De<3>({"59", "599", "-15"})),
            Champ("RST_SENT", Un_De<3>({"59", "59999", ""})),
            Champ("SIG_INFO", Un_De<3>({"C. de Vaux", "Un nom bien plus long que trente caracteres", ""})),
            Champ("QSL_RCVD", Un_De<3>({"Y", "N", "y"})),
            Champ("COMMENT", "a > b"),
        };
        if (Une_Sur(3))
            std::shuffle(champs.begin(), champs.end(), hasard_);
        std::string texte;
        for (const std::string &champ : champs)
            texte += champ;
        return texte + Un_De<3>({"<EOR>", "<eor>", "<EoR> "});
    }

    void Abime(std::string &texte)
    {
        if (texte.empty())
            return;
        const std::size_t place = Nombre(texte.size() - 1);
        if (Une_Sur(3))
            texte.erase(place, 1 + Nombre(6));
        else if (Une_Sur(2))
            texte.insert(place, Un_De<8>({"<", ">", "<EOR>", "\n", "<CALL", "-", "     ", "<SIG:"}));
        else
            texte[place] = static_cast<char>(Nombre(1) ? 32 + Nombre(94) : Nombre(31));
    }

    std::mt19937 hasard_;
};

} // namespace

TEST(Import_Differentiel, lit_comme_la_lecture_lente)
{
    ADIF_Au_Hasard hasard(14112026);
    constexpr std::array<const char *, 3> codes{"DFCF", "DMF", "FFF"};
    std::size_t lignes = 0;
    std::size_t echecs = 0;
    for (std::size_t i = 0; i < 6000; ++i) {
        const std::string texte = hasard.Fichier();
        const std::string code = codes[i % codes.size()];
        const bool multi = i % 2 == 1;
        const lente::Essai attendu = lente::Importe(texte, code, multi);
        const lente::Essai lu = rapide::Importe(texte, code, multi);
        ASSERT_EQ(lu.lignes, attendu.lignes) << texte;
        ASSERT_EQ(lu.messages, attendu.messages) << texte;
        ASSERT_EQ(lu.echec, attendu.echec) << texte;
        lignes += attendu.lignes.size();
        echecs += attendu.echec ? 1 : 0;
    }
    // The texts reach both ends often.
    EXPECT_GT(lignes, 1500U);
    EXPECT_GT(echecs, 300U);
}
