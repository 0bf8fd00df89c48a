// A rule knows no screen.
#include "saisie/ecrans/Main.h"
