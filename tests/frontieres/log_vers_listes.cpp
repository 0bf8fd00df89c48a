// A library does not see the one that is built on it.
#include "listes/Recherches_Liste.h"
