#pragma once

#include <QString>

namespace diplomes {

/// The ADIF record of a QSO with a work or an activity, one line without its end. `sig` bears the reference, and
/// `sig_info` its length in front of the name.
QString Ligne_ADIF_Ouvrage(QStringView ligne_log);

} // namespace diplomes
