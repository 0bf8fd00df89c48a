// A table reads and writes nothing.
#include "diplomes/Charge_Fiche.h"
