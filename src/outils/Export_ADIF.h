#pragma once

struct Poste;

/// Writes the log of the current award to `<call>_<code>.adi` beside it, in the place of an earlier one, and tells so.
/// Throws Erreur_Execution if the log is not there: for Ch_DMF the one without a year is looked for.
void Export_ADIF(Poste &poste);
