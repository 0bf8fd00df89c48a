// A rule counts for any award that names it: it knows no table.
#include "diplomes/tables/Tables.h"
