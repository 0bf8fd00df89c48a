#pragma once

struct Poste;

// The .bak of an import that replaces the log. Putting it aside goes by a name without a year for every award; putting
// it back and deleting it go by the name with a year for Ch_DFCF, where they find nothing and fail. It stands so.

/// `<call>_<code>.log` becomes `.bak`.
void Met_Le_Log_De_Cote(Poste &poste);
/// The .bak becomes the log again.
void Remet_Le_Log(Poste &poste);
void Oublie_Le_Bak(Poste &poste);

/// A .bak that has no log beside it becomes the log again, and the user is told: the import that left it was cut off.
void Retablit_Un_Import_Coupe(Poste &poste);
