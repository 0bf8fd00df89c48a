#pragma once

#include "ecrans/Ecran.h"
#include "outils/Import_ADIF.h"

#include <QElapsedTimer>

class QLabel;
class QProgressBar;
class QRadioButton;
class QVBoxLayout;
struct Poste;

/// Chooses how a file is imported into the log of the current award, and imports it.
class ADIF : public Ecran, private Ecran_Import {
    Q_OBJECT

public:
    explicit ADIF(Poste &poste);

    /// Names the current award, whose log the next import works on.
    void Suit_Le_Log() override;

private:
    void Pose_Formats(QVBoxLayout &colonne);
    void Pose_Destinations(QVBoxLayout &colonne);
    void Lance();

    QString Choisit_Fichier() override;
    void Avance(std::size_t faites, std::size_t total) override;
    void Ferme() override;

    Poste &poste_;
    QLabel *titre_;
    QRadioButton *r_multi_ = nullptr;
    QRadioButton *remplace_ = nullptr;
    QRadioButton *ajout_ = nullptr;
    QProgressBar *progression_;
    QElapsedTimer depuis_le_debut_;
    qint64 montree_a_ = 0; ///< milliseconds from the start to the last change of the bar
};
