// Arbitrary bytes as an ADIF file, read the fast way and the slow way.

#include "Essai_Import.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    const std::string defaut = Defaut_De_L_Import(std::string(reinterpret_cast<const char *>(octets), taille));
    if (!defaut.empty()) {
        std::fprintf(stderr, "%s\n", defaut.c_str());
        std::abort();
    }
    return 0;
}
