#pragma once

#include "ecrans/Ecran.h"
#include "log/Copies.h"
#include "log/Difference_Logs.h"
#include "plateforme/Lignes_Texte.h"

#include <QHash>

class Liste_Fixe;
class QLabel;
class QPushButton;
class QVBoxLayout;
struct Poste;

/// The copies of the current award's log, what each would change, and the way back to one.
class Copies : public Ecran {
    Q_OBJECT

public:
    explicit Copies(Poste &poste);

    /// Shows the copies of the log that is open now.
    void Suit_Le_Log() override;

private:
    void Dispose();
    Liste_Fixe *Pose_Liste(QVBoxLayout &colonne, const QString &nom, QLabel *legende, int lignes);
    void Montre(int rang);
    void Compare(const Copie &copie);
    void Revient();
    [[nodiscard]] QString Rangee(std::size_t rang);

    Poste &poste_;
    QLabel *titre_;
    QLabel *legende_retours_;
    QLabel *legende_departs_;
    Liste_Fixe *copies_ = nullptr;
    Liste_Fixe *retours_ = nullptr;
    Liste_Fixe *departs_ = nullptr;
    QPushButton *revenir_;

    std::vector<Copie> presentes_;
    QHash<std::size_t, std::size_t> qsos_; ///< of the copies that were shown, by rank
    int choisie_ = -1;
    Lignes_Texte lignes_copie_;
    Lignes_Texte lignes_log_;
    Difference_Logs difference_;
};
