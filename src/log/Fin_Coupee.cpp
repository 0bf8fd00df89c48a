#include "log/Fin_Coupee.h"

#include "log/Ligne_Log.h"
#include "log/Moment.h"
#include "plateforme/Lignes_Texte.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The columns up to the band: with them a QSO can be found and corrected.
constexpr qsizetype essentiel = colonnes_log::Bande.colonne + colonnes_log::Bande.largeur - 1;

/// The columns that are blank in every record.
constexpr std::array<qsizetype, 10> separateurs = {13, 16, 17, 18, 34, 53, 59, 63, 71, 75};

bool Est_Un_Debut_De_QSO(const QString &fin)
{
    return std::all_of(separateurs.begin(), separateurs.end(),
                       [&](qsizetype colonne) { return fin.size() < colonne || fin[colonne - 1] == u' '; });
}

/// What was not written by the program is not for it to mend.
bool Suit_Un_QSO_Entier(QStringView avant)
{
    if (avant.isEmpty())
        return true;
    const qsizetype debut = avant.chopped(1).lastIndexOf(u'\n') + 1;
    return avant.size() - debut == colonnes_log::longueur + fin_de_ligne.size() && avant.endsWith(fin_de_ligne);
}

} // namespace

std::optional<Fin_Reparee> Repare_La_Fin(const QString &texte)
{
    const qsizetype debut = texte.lastIndexOf(u'\n') + 1;
    const QString fin = texte.mid(debut);
    const bool coupee_dans_sa_fin = fin.size() == colonnes_log::longueur + 1 && fin.endsWith(u'\r');
    if (fin.isEmpty() || (fin.size() >= colonnes_log::longueur && !coupee_dans_sa_fin))
        return std::nullopt;
    const QString avant = texte.left(debut);
    if (!Suit_Un_QSO_Entier(avant) || !Est_Un_Debut_De_QSO(fin))
        return std::nullopt;
    if (coupee_dans_sa_fin || (fin.size() >= essentiel && Moment(fin)))
        return Fin_Reparee{.texte = avant + fin.left(colonnes_log::longueur).leftJustified(colonnes_log::longueur) +
                                    fin_de_ligne,
                           .message = u"Le dernier QSO du log %1 avait été coupé, il a été complété : vérifiez-le"_s};
    return Fin_Reparee{.texte = avant,
                       .message =
                           u"Le dernier QSO du log %1 avait été coupé, ce qui en restait a été retiré :\n"_s + fin};
}
