#include "log/Copies.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

struct Noms_Outil {
    Outil outil;
    QStringView dans_le_nom;
    QStringView libelle;
};

// clang-format off
constexpr std::array<Noms_Outil, 13> noms = {{
    {Outil::Saisie,       u"Saisie",       u"Saisie d'un QSO"},
    {Outil::Modification, u"Modification", u"Modification d'un QSO"},
    {Outil::Suppression,  u"Suppression",  u"Suppression d'un QSO"},
    {Outil::Tri,          u"Tri",          u"Tri du log"},
    {Outil::Doubles,      u"Doubles",      u"Suppression des doubles"},
    {Outil::Import,       u"Import",       u"Importation ADIF"},
    {Outil::Noms,         u"Noms",         u"Mise à jour des noms"},
    {Outil::Fusion,       u"Fusion",       u"Fusion dans le challenge"},
    {Outil::Collecte,     u"Collecte",     u"Collecte DDFM"},
    {Outil::QSL,          u"QSL",          u"Enregistrement des QSL"},
    {Outil::Migration,    u"Migration",    u"Anciennes références"},
    {Outil::Liste,        u"Liste",        u"Mise à jour de la liste"},
    {Outil::Retour,       u"Retour",       u"Retour à une copie"},
}};
// clang-format on

const Noms_Outil &Noms_De(Outil outil)
{
    return *std::find_if(noms.begin(), noms.end(), [&](const Noms_Outil &rangee) { return rangee.outil == outil; });
}

constexpr int gardees_par_fichier = 20;
constexpr int jours_gardes = 90;
constexpr qint64 octets_en_tout = 1'000'000'000;

struct Rangee {
    const Copie *copie;
    int rang; ///< 0 for the newest of its file
};

std::vector<Rangee> Rangees(const std::vector<Copie> &triees)
{
    QHash<QString, int> vues;
    std::vector<Rangee> rangees;
    for (const Copie &copie : triees)
        rangees.push_back({&copie, vues[copie.nom]++});
    return rangees;
}

/// Read part by part: as a local time an hour of the spring would not exist.
QDateTime Moment_Lu(const QString &texte)
{
    return {QDate::fromString(texte.left(8), u"yyyyMMdd"_s), QTime::fromString(texte.mid(9, 6), u"HHmmss"_s), Qt::UTC};
}

const QString forme_moment = u"yyyyMMdd'T'HHmmss'Z'"_s;

} // namespace

QStringView Libelle(Outil outil)
{
    return Noms_De(outil).libelle;
}

bool Est_Quotidien(Outil outil)
{
    return outil == Outil::Saisie || outil == Outil::Modification || outil == Outil::Suppression;
}

QString Fichier_De_Copie(const Copie &copie)
{
    const qsizetype point = copie.nom.lastIndexOf(u'.');
    const qsizetype fin = point < 0 ? copie.nom.size() : point;
    const QString suite = copie.numero > 1 ? u'-' + QString::number(copie.numero) : QString();
    return repertoire_copies + u'/' + copie.nom.left(fin) + u'_' + copie.moment.toUTC().toString(forme_moment) + u'_' +
           Noms_De(copie.outil).dans_le_nom + suite + copie.nom.mid(fin);
}

std::optional<Copie> Copie_Nommee(const QString &fichier)
{
    static const QRegularExpression forme(u"^(.+)_(\\d{8}T\\d{6}Z)_([A-Za-z]+)(?:-(\\d+))?(\\.[a-z]+)?$"_s);
    const QRegularExpressionMatch parts = forme.match(fichier);
    const auto rangee = std::find_if(
        noms.begin(), noms.end(), [&](const Noms_Outil &rangee_) { return rangee_.dans_le_nom == parts.captured(3); });
    const QDateTime moment = Moment_Lu(parts.captured(2));
    if (!parts.hasMatch() || rangee == noms.end() || !moment.isValid())
        return std::nullopt;
    return Copie{.nom = parts.captured(1) + parts.captured(5),
                 .moment = moment,
                 .outil = rangee->outil,
                 .numero = parts.captured(4).isEmpty() ? 1 : parts.captured(4).toInt()};
}

void Trie_Les_Copies(std::vector<Copie> &copies)
{
    std::stable_sort(copies.begin(), copies.end(), [](const Copie &a, const Copie &b) {
        return std::tuple(a.moment, a.numero) > std::tuple(b.moment, b.numero);
    });
}

std::vector<Copie> Copies_En_Trop(std::vector<Copie> copies, const QDateTime &maintenant)
{
    Trie_Les_Copies(copies);
    const std::vector<Rangee> rangees = Rangees(copies);
    const QDateTime limite = maintenant.addDays(-jours_gardes);
    const auto trop_vieille = [&](const Rangee &rangee) {
        return rangee.rang >= gardees_par_fichier && rangee.copie->moment < limite;
    };
    qint64 octets = 0;
    for (const Rangee &rangee : rangees)
        octets += trop_vieille(rangee) ? 0 : rangee.copie->taille;
    std::vector<Copie> en_trop;
    for (auto rangee = rangees.rbegin(); rangee != rangees.rend(); ++rangee) {
        const bool de_trop = trop_vieille(*rangee);
        if (!de_trop && (rangee->rang == 0 || octets <= octets_en_tout))
            continue;
        octets -= de_trop ? 0 : rangee->copie->taille;
        en_trop.push_back(*rangee->copie);
    }
    return en_trop;
}
