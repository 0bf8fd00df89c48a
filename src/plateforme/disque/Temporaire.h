#pragma once

#include "plateforme/disque/Descripteur.h"

#include <optional>

/// The new form of a file while it is written: a file made anew beside the real one, under a name of its own, that
/// becomes the file or goes. What a crash left, or another user's file or link, is neither used nor in the way.
class Temporaire {
public:
    /// Made beside `reelle`; named after the last part of `radical`. Refusals name `nom`.
    Temporaire(const QString &reelle, const QString &radical, const QString &nom, mode_t droits);
    ~Temporaire();
    Temporaire(const Temporaire &) = delete;
    Temporaire &operator=(const Temporaire &) = delete;

    /// The bytes, whole and on the disk, with mode and owner of the file that stood there.
    void Remplit(QByteArrayView octets, const std::optional<struct stat> &ancien);
    void Devient(const QString &reelle);

private:
    [[nodiscard]] int Fait(mode_t droits);

    QString nom_;
    QString radical_; ///< full path
    QString chemin_;
    Descripteur fichier_;
    bool reste_ = true;
};
