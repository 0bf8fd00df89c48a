#pragma once

#include "programme_au_hasard/Logs_Sur_Disque.h"

class QWidget;

/// What the main screen tells its operator, by its texts alone.
struct Ecran_Vu {
    QString station; ///< as in the names of files
    /// The award that is open: the one that the start loaded until the title of the entry zone names another.
    QString diplome;
    QString dip;         ///< the text of Dip_A
    QString mode;        ///< "Saisie QSO", "Affichage QSO" ...
    QString ind;         ///< the text of Ind_A
    QStringList rangees; ///< of the list, without their numbers
};

/// `au_depart` is the award that the start loaded.
Ecran_Vu Regarde(const QWidget &principal, const QString &au_depart);

bool Est_Un_Code(const QString &texte);
/// The year that the station's settings hold for a challenge.
QString Annee_Reglee(const QString &station, const QString &code);
/// The log of a station's award, with the year of its settings.
QString Log_De(const QString &station, const QString &code);
