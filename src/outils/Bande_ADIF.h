#pragma once

#include <QString>

/// The band of the log for a band name in upper case, as BAND holds it; empty for one that is not known.
QString Bande_De_Cle(QStringView cle);

/// The same for a FREQ value in megahertz, of which only the whole megahertz count: 1 MHz is not known.
QString Bande_De_Frequence(QStringView frequence);
