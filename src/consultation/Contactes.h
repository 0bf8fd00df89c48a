#pragma once

#include "log/Diplome.h"
#include "plateforme/Lignes_Texte.h"

#include <QDate>
#include <QString>

#include <vector>

struct Poste;

/// What a log has contacted: one numbered row a reference, with the texts that go with the list.
struct Contactes {
    QString indicatif;
    std::optional<Diplome> diplome;
    QDate date; ///< of the day the rows were made
    std::vector<QString> lignes;
};

/// True for the award whose rows are those of one band, which the operator chooses first.
bool Choisit_Une_Bande(std::optional<Diplome> diplome);

/// "Liste alphanumérique des <code> contacté(e)s".
QString Titre_Contactes(std::optional<Diplome> diplome);
/// The heading above the list of an award.
QStringView Entete_Contactes(std::optional<Diplome> diplome);

/// The rows of a log, sorted: DDFM by department, the others by reference. Lines with the key of the line before them
/// are left out; the key is the reference, and for DDFM and DYLF the station with the minutes. On DDFM only lines of
/// `bande` count.
std::vector<QString> Lignes_Contactes(const Lignes_Texte &log, std::optional<Diplome> diplome, QStringView bande);

/// The rows of the log of an award as it is on the disk. Throws Erreur_Execution if it is absent.
Contactes Remplit_Contacte(const Poste &poste, std::optional<Diplome> diplome, QStringView bande);

/// Writes the list to a text file in Repertoire_Appli and tells its name.
void Enregistre_Contactes(Poste &poste, const Contactes &contactes);
/// Prints the list; a box tells what kept it from paper.
void Imprime_Contactes(Poste &poste, const Contactes &contactes);
