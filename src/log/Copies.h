#pragma once

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

/// What a file was about to be changed by when a copy of it was kept.
enum class Outil {
    Saisie,
    Modification,
    Suppression,
    Tri,
    Doubles,
    Import,
    Noms,
    Fusion,
    Collecte,
    QSL,
    Migration,
    Liste,
    Retour ///< to an earlier copy
};

/// "Tri du log"
QStringView Libelle(Outil outil);

/// True for the changes of single QSOs: the first of a day is what a copy is kept before.
bool Est_Quotidien(Outil outil);

/// The folder of the copies, in Repertoire_Appli.
inline constexpr QStringView repertoire_copies = u"Copies";

/// A file as it stood before a tool.
struct Copie {
    QString nom;      ///< of the file it was made of: "F9ZZY_DFCF.log"
    QDateTime moment; ///< UTC, to the second
    Outil outil = Outil::Saisie;
    int numero = 1; ///< of several of the same second
    qint64 taille = 0;
};

/// Its file, below Repertoire_Appli: "Copies/F9ZZY_DFCF_20261115T144830Z_Tri.log".
QString Fichier_De_Copie(const Copie &copie);
/// The copy of that name, given without its folder; nullopt for what is none.
std::optional<Copie> Copie_Nommee(const QString &fichier);

/// Puts the newest first.
void Trie_Les_Copies(std::vector<Copie> &copies);

/// Those that go: neither among the last 20 of their file nor of the last 90 days, and from the oldest on what is
/// beyond 1 GB in all. The newest of a file never goes.
std::vector<Copie> Copies_En_Trop(std::vector<Copie> copies, const QDateTime &maintenant);
