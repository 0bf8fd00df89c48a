#pragma once

#include "plateforme/Erreur_Execution.h"

/// A refusal of the operating system, with its number.
class Erreur_Systeme : public Erreur_Execution {
public:
    Erreur_Systeme(const QString &chemin, int numero);
    [[nodiscard]] int Numero() const { return numero_; }

private:
    int numero_;
};

/// Stands for what is no file that can be read and written: a FIFO, a device, a socket.
extern const int pas_un_fichier;

/// The refusal in French: "le disque est plein".
QString Raison(int numero);
Cause Cause_Systeme(int numero);
