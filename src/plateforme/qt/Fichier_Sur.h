#pragma once

#include <QByteArrayView>
#include <QString>

/// Writes that survive a crash, on full paths. Each throws Erreur_Execution with the file's name and the reason (a full
/// disk is called full) and leaves the target as it was.

/// The new bytes go whole to `temporaire` (same file system as `cible`), are synced and renamed over `cible`; the
/// folder is synced. On failure the temporary is removed. A device takes the bytes as they are, without a temporary.
void Remplace_Fichier(const QString &cible, QByteArrayView octets, const QString &temporaire);

/// One write of `ligne` (which holds its CR LF) at the end, synced; CR LF first if the last line has none.
void Ajoute_Au_Fichier(const QString &chemin, QByteArrayView ligne);

/// An empty file where none stands.
void Cree_Fichier_Absent(const QString &chemin);

void Supprime_Fichier(const QString &chemin);

QByteArray Lit_Fichier(const QString &chemin);
