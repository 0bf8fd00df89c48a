#pragma once

#include "plateforme/Lignes_Texte.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <vector>

/// A file as its folder lists it.
struct Fichier_Present {
    QString nom;
    qint64 taille = 0; ///< bytes
};

/// What becomes of a file after it was copied: one that another file replaces may share its bytes with the copy.
enum class Avenir { Remplace, Modifie };

enum class Issue_Copie {
    Faite,
    Nom_Pris,  ///< the target exists, it was left alone
    Sans_Objet ///< there is no file to copy
};

/// The files of the program: Windows-1252 text with CR LF. A name is taken in Repertoire_Appli, unless it is a full
/// path. Every operation throws Erreur_Execution, naming the file, when the disk refuses it; the file is then what it
/// was before.
class Dossier {
public:
    virtual ~Dossier() = default;

    /// Repertoire_Appli, without a closing separator.
    [[nodiscard]] virtual QString Repertoire_Appli() const = 0;
    /// True if anything bears that name, readable or not. False means that the system said so: where it cannot say, the
    /// question fails.
    [[nodiscard]] virtual bool Existe(const QString &nom) const = 0;
    /// The whole text of a file.
    [[nodiscard]] virtual QString Lit(const QString &nom) const = 0;
    [[nodiscard]] Lignes_Texte Lit_Lignes(const QString &nom) const { return Lignes_Texte(Lit(nom)); }

    /// The bytes of a file as they are.
    [[nodiscard]] virtual QByteArray Octets(const QString &nom) const = 0;

    /// Puts `texte` in the place of a file, or makes it: written whole to a file of its own beside it, named after
    /// `temporaire`, synced, renamed over `nom`. After a crash at any instant the file is the old one or the new one,
    /// whole.
    virtual void Remplace(const QString &nom, QStringView texte, const QString &temporaire) = 0;
    /// The same for bytes that are not the program's own text.
    virtual void Remplace_Octets(const QString &nom, QByteArrayView octets, const QString &temporaire) = 0;
    /// Appends one line with its CR LF and syncs it; a last line that lost its line end gets it first.
    /// A file that is absent is made.
    virtual void Ajoute(const QString &nom, QStringView ligne) = 0;
    /// Makes an empty file where none stands; a file that exists is left alone.
    virtual void Cree_Si_Absent(const QString &nom) = 0;
    virtual void Supprime(const QString &nom) = 0;
    /// Copies bytes as they are; the copy is written beside its target and renamed over it.
    virtual void Copie(const QString &source, const QString &cible) = 0;

    /// The files of a folder, in no order; none if it is absent.
    [[nodiscard]] virtual std::vector<Fichier_Present> Fichiers(const QString &repertoire) const = 0;
    /// Keeps the bytes of a file under a name that is free, in a folder that is made if it is absent. The copy is
    /// whole and synced, or not there.
    virtual Issue_Copie Garde(const QString &source, const QString &cible, Avenir avenir) = 0;
    /// The replacement that a copy was kept for failed: a copy that shares its bytes with a file that lives on goes.
    virtual void Separe(const QString &copie) = 0;
};
