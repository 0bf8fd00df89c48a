#pragma once

#include <QString>

namespace diplomes {

/// An ADIF record of an award, one line without its end: elements a blank apart, then the end mark.
class Enregistrement_ADIF {
public:
    /// Adds `<etiquette:length>value`, the value without the blanks around it; an empty one has the length 0.
    void Pose(QStringView etiquette, QStringView valeur);
    [[nodiscard]] QString Termine() const;

private:
    QString texte_;
};

/// The wavelength of a trimmed band; empty for a band that the awards' records do not know.
QStringView Bande_En_Metres(QStringView bande);
/// JJ/MM/AA as AAAAMMJJ; the century is always "20".
QString Date_ADIF(QStringView date);
/// The first two and the last two characters of HH:MM.
QString Heure_ADIF(QStringView heure);

} // namespace diplomes
