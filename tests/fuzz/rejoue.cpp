// Stands in for the fuzzer where there is none: hands the files of the folders on the command line to the target, once.

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille);

int main(int nombre, char **arguments)
{
    std::size_t lus = 0;
    for (int rang = 1; rang < nombre; ++rang)
        for (const auto &graine : std::filesystem::directory_iterator(arguments[rang])) {
            std::ifstream fichier(graine.path(), std::ios::binary);
            const std::vector<char> octets((std::istreambuf_iterator<char>(fichier)), {});
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(octets.data()), octets.size());
            ++lus;
        }
    std::printf("%zu inputs\n", lus);
    return lus > 0 ? 0 : 1;
}
