// Arbitrary bytes as an ADIF file: build the preset "fuzz", then run
//     build/fuzz/tests/fuzz_import_adif -max_len=4096 -dict=tests/outils/fuzz/adif.dict <a folder of finds>
//     tests/outils/donnees/corpus_adif

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
