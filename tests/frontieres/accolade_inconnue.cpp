// A text of an award table names the values that its place has, and no other.
#include "diplomes/modele/Gabarit.h"

constexpr diplomes::Gabarit_Ecran titre = u"Diplome DFCF {Bande_Liste} {Bande_Lisse}";
