#include "Essai_Import.h"

#include "Lecture_Lente.h"
#include "Lecture_Rapide.h"

namespace {

std::string Defaut(const std::string &octets, const std::string &code, bool multi)
{
    const lente::Essai lu = rapide::Importe(octets, code, multi);
    const lente::Essai attendu = lente::Importe(octets, code, multi);
    for (const std::string &ligne : lu.lignes)
        if (ligne.size() != 111)
            return "a line of " + std::to_string(ligne.size()) + " columns: " + ligne;
    if (lu.lignes != attendu.lignes)
        return "other lines than the slow reading";
    if (lu.messages != attendu.messages)
        return "other messages than the slow reading";
    if (lu.echec != attendu.echec)
        return "another end than the slow reading";
    return "";
}

} // namespace

std::string Defaut_De_L_Import(const std::string &octets)
{
    for (const char *code : {"DFCF", "FFF"})
        for (const bool multi : {false, true})
            if (const std::string defaut = Defaut(octets, code, multi); !defaut.empty())
                return defaut;
    return "";
}
