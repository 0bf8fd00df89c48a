// A brace in a text of an award table is closed.
#include "diplomes/modele/Gabarit.h"

constexpr diplomes::Gabarit_Niveau manque = u"il vous manque {manque_n Cathedrales";
