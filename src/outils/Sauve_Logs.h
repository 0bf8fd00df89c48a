#pragma once

struct Poste;

/// Copies the 21 logs of the current station to its backup folder, as `<call>_<code>.log` without a year also for the
/// challenges, and takes the two challenge years from the settings. Every failure is passed over: an absent folder
/// gives no copy and no word.
void Sauve_Logs(Poste &poste);
