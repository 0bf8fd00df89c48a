#pragma once

#include <QString>

/// A lock of the system on an open file or folder. It ends with the process that holds it, whatever the file says.
class Verrou {
public:
    enum class Etat {
        Pris,
        Occupe,    ///< another program holds it
        Impossible ///< this place knows no locks; `raison` says why
    };

    Verrou() = default;
    Verrou(Verrou &&autre) noexcept;
    Verrou &operator=(Verrou &&) = delete;
    ~Verrou();

    [[nodiscard]] Etat L_Etat() const { return etat_; }
    [[nodiscard]] const QString &Raison_Du_Refus() const { return raison_; }

private:
    friend Verrou Verrouille_Fichier(const QString &chemin);
    friend Verrou Verrouille_Repertoire(const QString &chemin);
    void Refuse(int erreur);

    Etat etat_ = Etat::Impossible;
    QString raison_;
    QString chemin_; ///< of the lock file, which goes with the lock
    int numero_ = -1;
};

/// Takes a lock file, made where it is absent, for this program alone. Its text tells who holds it and is only for
/// people. Does not wait.
Verrou Verrouille_Fichier(const QString &chemin);

/// Waits up to a second for a folder's own lock; the caller goes on without it where it does not come.
Verrou Verrouille_Repertoire(const QString &chemin);
