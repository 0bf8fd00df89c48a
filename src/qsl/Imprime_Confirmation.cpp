#include "qsl/Imprime_Confirmation.h"

#include "log/Champ.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Imprimante.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t lignes_par_feuille = 24;
// The header does not stand above its columns: they are cut from a stored line as if it were a displayed one.
constexpr QStringView entete =
    u"  Date    Indicatif   Debut  Dpt  Locator Bande     Mode     RstE      RstR      N°activité";
constexpr Champ debut{7, 29};
constexpr Champ suite{43, 74};

/// The station's name has its place between the two texts and is not there.
QString Pied(QStringView indicatif)
{
    return u"    " + indicatif + u" confirme les QSO's ci-dessus avec la station " + u"  signature :";
}

class Feuilles {
public:
    explicit Feuilles(QStringView indicatif) : pied_(Pied(indicatif)) { Commence(); }

    void Ajoute(const QString &ligne)
    {
        lignes_.push_back(ligne);
        if (++nombre_ < lignes_par_feuille)
            return;
        for (const QString &texte : {u""_s, pied_, u""_s, u"-"_s, u""_s})
            lignes_.push_back(texte);
        Commence();
    }

    std::vector<QString> Finit()
    {
        lignes_.resize(lignes_.size() + lignes_par_feuille - nombre_);
        lignes_.push_back(pied_);
        return lignes_;
    }

private:
    void Commence()
    {
        lignes_.push_back(entete.toString());
        lignes_.push_back(u""_s);
        nombre_ = 0;
    }

    QString pied_;
    std::vector<QString> lignes_;
    std::size_t nombre_ = 0;
};

} // namespace

std::vector<QString> Lignes_Confirmation(const std::vector<QString> &lignes_log, QStringView indicatif)
{
    Feuilles feuilles(indicatif);
    for (const QString &ligne : lignes_log)
        feuilles.Ajoute(Lit(ligne, debut).toString() + Lit(ligne, suite));
    return feuilles.Finit();
}

void Imprime_Confirmation(Poste &poste, bool liste_vide, const std::vector<QString> &cochees, QStringView indicatif)
{
    if (liste_vide) {
        poste.boites.Message(u"Pas de QSO a imprimer"_s);
        return;
    }
    const QString titre = u"Confirmation des QSO de " + indicatif;
    if (const auto empechement = poste.imprimante.Imprime(titre, Lignes_Confirmation(cochees, indicatif)))
        poste.boites.Message(*empechement);
}
