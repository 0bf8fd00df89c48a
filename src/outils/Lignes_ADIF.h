#pragma once

#include "log/Diplome.h"
#include "plateforme/Erreur_Execution.h"

#include <QString>

#include <optional>
#include <vector>

/// What the import asks of every record.
struct Choix_Import {
    /// The file holds several awards: SIG is the code, a dash and the reference.
    bool multi = false;
    /// Add to the log instead of replacing it.
    bool ajout = true;
};

/// What one record gives, in the order in which the user meets it: messages, then the failure or the line.
struct Lecture_ADIF {
    std::vector<QStringView> messages;
    /// The record cannot become a line; the import ends here.
    std::optional<Erreur_Execution> echec;
    /// nullopt: the record is passed over.
    std::optional<QString> ligne;
};

/// Turns the records of one file into lines for the log of an award. The code before the dash of a reference stays in
/// force for the records behind it that have none.
class Lignes_ADIF {
public:
    Lignes_ADIF(std::optional<Diplome> diplome, const Choix_Import &choix);

    /// `enregistrement` is in upper case.
    Lecture_ADIF Lit(QStringView enregistrement);

private:
    void Retient_Le_Prefixe(QStringView sig);
    [[nodiscard]] bool Est_Retenu(QStringView dpt, QStringView ref) const;

    std::optional<Diplome> diplome_;
    bool multi_;
    std::optional<QString> prefixe_;
};
