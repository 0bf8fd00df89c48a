// What an award is made of knows no rule.
#include "diplomes/regles/Evalue.h"
