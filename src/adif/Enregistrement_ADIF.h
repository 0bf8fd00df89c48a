#pragma once

#include <QString>

/// An ADIF record, one line without its end: elements a blank apart, then the end mark.
class Enregistrement_ADIF {
public:
    /// Adds `<etiquette:length>value`, the value as it is; an empty one has the length 0.
    void Pose(QStringView etiquette, QStringView valeur);
    [[nodiscard]] QString Termine() const;

private:
    QString texte_;
};

/// The lines of an ADIF file down to its "<eoh>", each with its line end: two lines of text with an empty one between.
QString Entete_ADIF(const QString &premiere, const QString &seconde);
/// The line of the header that tells what the file is; `log` is the station, with its award where that is told.
QString Titre_ADIF(const QString &log);

/// JJ/MM/AA as AAAAMMJJ; the century is always "20".
QString Date_ADIF(QStringView date);
/// The first two and the last two characters of HH:MM.
QString Heure_ADIF(QStringView heure);
