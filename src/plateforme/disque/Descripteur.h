#pragma once

#include "plateforme/disque/Erreur_Systeme.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cerrno>
#include <sys/stat.h>

/// Repeats a system call that a signal interrupted.
template <typename Appel>
auto Sans_Interruption(Appel &&appel)
{
    auto resultat = appel();
    while (resultat < 0 && errno == EINTR)
        resultat = appel();
    return resultat;
}

/// A file descriptor that is closed on every way out. Qt's QFile does not tell why a write or a sync failed. Each
/// refusal is an Erreur_Systeme with the name that the operator knows the file by.
class Descripteur {
public:
    Descripteur(const QString &chemin, int drapeaux, mode_t droits = 0666);
    /// Takes over what was opened under another name than `nom`.
    Descripteur(int numero, QString nom) : nom_(std::move(nom)), numero_(numero) {}
    ~Descripteur();
    Descripteur(const Descripteur &) = delete;
    Descripteur &operator=(const Descripteur &) = delete;

    /// -1 and errno where the system refuses.
    static int Ouvre(const QString &chemin, int drapeaux, mode_t droits = 0666);

    [[nodiscard]] int Numero() const { return numero_; }
    [[nodiscard]] struct stat Etat() const;
    /// Refuses a folder, a FIFO, a device.
    void Exige_Un_Fichier() const;
    [[nodiscard]] QByteArray Lit_Tout() const;
    void Ecrit(QByteArrayView octets) const;
    void Synchronise() const;
    void Raccourcit(off_t taille) const;
    /// A close can report a write that failed late (network folders).
    void Ferme();

private:
    QString nom_;
    int numero_;
};
