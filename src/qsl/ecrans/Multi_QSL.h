#pragma once

#include "ecrans/Ecran.h"

class Champ_Saisie;
class Liste_A_Cocher;
class QComboBox;
class QPushButton;
struct Poste;

/// Marks the cards received from one correspondent in the log of any award.
class Multi_QSL : public Ecran {
    Q_OBJECT

public:
    explicit Multi_QSL(Poste &poste);

    /// Ticks that were not stored are the operator's work.
    [[nodiscard]] bool Garde_Ouvert() const override;

private:
    QPushButton *Bouton(const QString &nom, const QString &texte);
    void Dispose();
    void Relie();

    void Indicatif_Entre();
    void Diplome_Entre();
    void Recherche();
    void Enregistre();
    void Imprime();

    Poste &poste_;
    Champ_Saisie *indicatif_;
    QComboBox *diplome_;
    QPushButton *recherche_;
    Liste_A_Cocher *liste_qso_;
    QPushButton *enregistre_;
    QPushButton *imprimer_;
    /// The log that Liste_QSO was taken from.
    QString log_;
};
