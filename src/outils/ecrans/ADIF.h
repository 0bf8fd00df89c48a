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
class ADIF : public Ecran {
    Q_OBJECT

public:
    explicit ADIF(Poste &poste);

    /// Names the current award, whose log the next import works on.
    void Suit_Le_Log() override;

private:
    class Guichet;

    void Pose_Formats(QVBoxLayout &colonne);
    void Pose_Destinations(QVBoxLayout &colonne);
    void Lance();
    QString Prend_Le_Fichier();
    void Avance(std::size_t faites, std::size_t total);
    void Repose();

    Poste &poste_;
    QLabel *titre_;
    /// The file that the next press imports without asking; empty if the operator is to choose one.
    QString fichier_;
    QLabel *nom_fichier_;
    QRadioButton *r_multi_ = nullptr;
    QRadioButton *remplace_ = nullptr;
    QRadioButton *ajout_ = nullptr;
    QProgressBar *progression_;
    QElapsedTimer depuis_le_debut_;
    qint64 montree_a_ = 0; ///< milliseconds from the start to the last change of the bar
};
