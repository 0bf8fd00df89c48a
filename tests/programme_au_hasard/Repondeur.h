#pragma once

#include "programme_au_hasard/Hasard.h"

#include <QStringList>
#include <QTimer>

#include <functional>

class QFileDialog;
class QMessageBox;

/// Answers at random whatever stands in front of the operator and lets nothing else through: boxes, file and print
/// dialogues, the screens of the station and of the year.
class Repondeur {
public:
    /// `fichier` gives the ADIF file to choose, empty for none; `fin` is called when the program reports its end.
    Repondeur(Hasard &hasard, std::function<QString()> fichier, std::function<void(const QString &)> fin);

    /// What was seen since the last call of Oublie().
    void Oublie();
    [[nodiscard]] const QStringList &Vus() const { return vus_; }
    [[nodiscard]] const QStringList &Annees() const { return annees_; }
    [[nodiscard]] const QStringList &Stations() const { return stations_; }

private:
    void Guette();
    void Regarde();
    void Repond(QMessageBox &boite);
    void Choisit(QFileDialog &dialogue);
    void Ecrit_La_Station(QWidget &ecran);
    void Ecrit_L_Annee(QWidget &ecran);
    /// Types in `champ` and presses `Validation`, or closes the screen.
    void Valide(QWidget &ecran, const QString &champ, const QString &texte);

    Hasard &hasard_;
    std::function<QString()> fichier_;
    std::function<void(const QString &)> fin_;
    QObject guet_;
    bool occupe_ = false; ///< an answer is under way; what it opens may be a box, and nothing else
    int essais_ = 0;      ///< how often the same dialogue was found open
    QStringList vus_;
    QStringList annees_;
    QStringList stations_;
};
