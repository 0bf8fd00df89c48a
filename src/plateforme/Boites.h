#pragma once

#include <QString>

/// The message boxes: plain text, title "Vorlain". Nothing else of the program talks to the user in a box.
class Boites {
public:
    virtual ~Boites() = default;
    /// A message with the one button "OK".
    virtual void Message(const QString &texte) = 0;
    /// A question with "Oui" and "Non"; true for "Oui".
    virtual bool Question(const QString &texte) = 0;
};
