#pragma once

#include <QString>

/// The screen that Mnu_Diplomes opens for the text of Dip_A: the sheet of the award, or its choice screen. Empty for a
/// text that is no code.
QString Ecran_Du_Diplome(QStringView code);
