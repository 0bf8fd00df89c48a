#include "consultation/Contactes.h"

#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "log/Ordre.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"
#include "plateforme/Horloge.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

namespace col = colonnes_log;

// clang-format off
constexpr QStringView entete_ddfm = u"  Num   Dpt           Indicatif                                  Prénom                 Date          QTR    Mode     QRG     RstR  RstE               Nom de l'activité                        QSL";
constexpr QStringView entete_dylf = u"  Num                          Indicatif               Dpt       Prénom                 Date          QTR    Mode     QRG     RstR  RstE               Ville                                           QSL";
constexpr QStringView entete_autres = u"  Num        Ref           Indicatif               Dpt           Prénom              Date          QTR    Mode     QRG     RstR  RstE               Nom de l'activité                        QSL";
// clang-format on

/// The columns of a work line that its key and its band are read from.
constexpr Champ cle_reference{1, 10};
constexpr Champ cle_station{1, 23};
constexpr Champ cle_minutes{58, 3};
constexpr Champ bande_travail{67, 7};

/// One line of the log with the key of the order in front, every field at its full width.
QString Ligne_Travail(QStringView ligne_log, bool par_departement)
{
    QString ligne;
    const auto pose = [&](Champ champ, qsizetype blancs_devant) {
        ligne.resize(ligne.size() + blancs_devant, u' ');
        ligne += Complete(Lit(ligne_log, champ), champ.largeur);
    };
    pose(par_departement ? col::Dpt : col::Ref, 0);
    pose(col::Ind, 1);
    pose(par_departement ? col::Ref : col::Dpt, 2);
    pose(col::Prenom, 1);
    pose(col::Date, 1);
    for (const Champ champ : {col::Heure, col::Mode, col::Bande, col::RSTR, col::RSTE, col::Nom, col::QSL})
        pose(champ, 2);
    return ligne;
}

/// Two lines of one station in different minutes are both kept on the awards without a reference of their own.
QString Cle(QStringView ligne, std::optional<Diplome> diplome)
{
    if (diplome == Diplome::DDFM || diplome == Diplome::DYLF)
        return Lit_Rogne(ligne, cle_station).toString() + Lit_Rogne(ligne, cle_minutes);
    return Lit_Rogne(ligne, cle_reference).toString();
}

QString Numerotee(std::size_t numero, QStringView ligne)
{
    return QString::number(numero).rightJustified(4, u' ') + u"  " + ligne;
}

} // namespace

bool Choisit_Une_Bande(std::optional<Diplome> diplome)
{
    return diplome == Diplome::DDFM;
}

QString Titre_Contactes(std::optional<Diplome> diplome)
{
    return u"Liste alphanumérique des " + Code(diplome) + u" contacté(e)s";
}

QStringView Entete_Contactes(std::optional<Diplome> diplome)
{
    if (diplome == Diplome::DDFM)
        return entete_ddfm;
    return diplome == Diplome::DYLF ? entete_dylf : entete_autres;
}

std::vector<QString> Lignes_Contactes(const Lignes_Texte &log, std::optional<Diplome> diplome, QStringView bande)
{
    const bool une_bande = Choisit_Une_Bande(diplome);
    std::vector<QString> triees;
    triees.reserve(log.size());
    for (const QStringView ligne : log)
        triees.push_back(Ligne_Travail(ligne, une_bande));
    Trie_Sans_Casse(triees);

    std::vector<QString> lignes;
    std::optional<QString> precedente;
    for (const QString &ligne : triees) {
        if (une_bande && Lit_Rogne(ligne, bande_travail) != bande)
            continue;
        QString cle = Cle(ligne, diplome);
        if (cle != precedente)
            lignes.push_back(Numerotee(lignes.size() + 1, ligne));
        precedente = std::move(cle);
    }
    return lignes;
}

Contactes Remplit_Contacte(const Poste &poste, std::optional<Diplome> diplome, QStringView bande)
{
    const Lignes_Texte log = poste.dossier.Lit_Lignes(poste.etat.station.Log(diplome));
    return {.indicatif = poste.etat.station.indicatif,
            .diplome = diplome,
            .date = poste.horloge.Locale().date(),
            .lignes = Lignes_Contactes(log, diplome, bande)};
}
