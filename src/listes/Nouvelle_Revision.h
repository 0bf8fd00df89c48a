#pragma once

struct Poste;

/// Asks the program's site for the current version and tells whether it is the one that runs. A version file with an
/// empty line, or none, ends the check without a word.
void Nouvelle_Revision(Poste &poste);
