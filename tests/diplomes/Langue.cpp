#include <QByteArray>

// Saved lists hold a date in the system's short form: the tests have one system, whatever the machine's language is.
// Qt reads the variable at its first use of the system's locale.
static const bool en_francais = qputenv("LC_ALL", "fr_FR.UTF-8");
