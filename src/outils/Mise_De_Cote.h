#pragma once

struct Poste;

// The .bak of an import that replaces the log. Putting it aside goes by a name without a year for every award; putting
// it back and deleting it go by the name with a year for Ch_DFCF, where they find nothing and fail. It stands so.

/// `<call>_<code>.log` becomes `.bak`. A .bak that an earlier import left is kept as `<call>_<code>_<n>.bak`, n from 2,
/// if it holds lines that the log lacks, and the user is told.
void Met_Le_Log_De_Cote(Poste &poste);
/// The .bak becomes the log again.
void Remet_Le_Log(Poste &poste);
/// Once an import has ended well: deletes the .bak and those that were kept beside it.
void Oublie_Le_Bak(Poste &poste);
