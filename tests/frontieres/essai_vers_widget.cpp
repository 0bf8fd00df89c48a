// The tests of rules and operations know no widgets either: what they link does not hand them on.
#include "faux/Poste_Essai.h"

#include <QWidget>
