#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <sys/types.h>

/// Writes that survive a crash, on full paths. Each throws Erreur_Execution with the file's name and the reason (a full
/// disk is called full) and leaves the target as it was. A FIFO or a device in the place of a file is refused.

/// The new bytes go whole to a temporary made anew beside the real file (behind links), named after `radical`, are
/// synced and renamed over it; the folder is synced. Mode and owner stay where the system allows it; a new file gets
/// `droits` less the process's mask. On failure the temporary is removed.
void Remplace_Fichier(const QString &cible, QByteArrayView octets, const QString &radical, mode_t droits = 0666);

/// The same for what the operator had written to a file of his choice: a device or a pipe takes the bytes themselves.
void Ecrit_Document(const QString &cible, QByteArrayView octets);

/// One write of `ligne` (which holds its CR LF) at the end, synced; CR LF first if the last line has none.
/// What the file held before is never shortened. A file with a second name is replaced: only this one gets the line.
void Ajoute_Au_Fichier(const QString &chemin, QByteArrayView ligne);

/// An empty file where none stands.
void Cree_Fichier_Absent(const QString &chemin);

void Supprime_Fichier(const QString &chemin);

QByteArray Lit_Fichier(const QString &chemin);

/// False if the system says that nothing bears that name; any other answer than yes or no is a failure.
bool Existe_Fichier(const QString &chemin);

/// Makes lasting what was made, renamed or removed in the folder of `chemin`, as far as its file system can.
void Synchronise_Dossier(const QString &chemin);

/// The folder and those above it, where they are absent.
void Cree_Repertoire(const QString &chemin);

/// Removes the temporaries that a killed program left in a folder. Nobody else may be writing there.
void Retire_Restes(const QString &repertoire);
