#pragma once

#include <QString>

/// The ADIF record of a Ligne_Log, one line without its end. SIG bears the reference and SIG_INFO the name of the
/// activity, the other way round than elsewhere, and the import relies on it. A band outside the eight known ones is
/// empty.
QString ADIF_SP(QStringView ligne_log);
