#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

#include <utility>
#include <vector>

struct Etat_Commun;

namespace diplomes {

/// The values that the texts of the award tables name in braces.
class Valeurs {
public:
    Valeurs() = default;
    /// {Indicatif} and the shared texts of the award screens, each under its own name.
    explicit Valeurs(const Etat_Commun &etat);

    /// Names a value, or gives a name another value. `nom` must be a literal.
    void Pose(QStringView nom, QString texte);
    void Pose(QStringView nom, int nombre) { Pose(nom, QString::number(nombre)); }
    /// {JJ_MM_AA} of file names, {JJ/MM/AA}, {AAAA}, and {Date}, the day in the short form of the system.
    void Pose_Jour(QDate jour, const QString &date_courte);

    /// nullptr for a name without a value.
    [[nodiscard]] const QString *Cherche(QStringView nom) const;

private:
    std::vector<std::pair<QStringView, QString>> valeurs_;
};

/// A text of a table with the values in their places. A brace that names no value stands as it is; a value is not
/// looked into.
QString Compose(QStringView gabarit, const Valeurs &valeurs);

/// A day in the short form of the system's locale.
QString Date_Courte(QDate jour);

} // namespace diplomes
