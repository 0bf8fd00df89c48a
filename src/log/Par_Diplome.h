#pragma once

#include "log/Diplome.h"

#include <utility>

/// One value for each award, `{{ {Diplome::Ch_DFCF, valeur}, ... }}` in the order of Diplome. A row that is missing,
/// doubled or out of its place does not compile, so nobody forgets a table when an award is added.
template <typename T>
class Par_Diplome {
public:
    struct Rangee {
        Diplome diplome;
        T valeur;
    };

    template <std::size_t N>
    consteval Par_Diplome(const Rangee (&rangees)[N]) : Par_Diplome(rangees, std::make_index_sequence<N>())
    {
        static_assert(N == nombre_diplomes, "one row for each award");
        for (std::size_t rang = 0; rang < N; ++rang)
            if (rangees[rang].diplome != static_cast<Diplome>(rang))
                throw "the rows stand in the order of Diplome";
    }

    constexpr const T &operator[](Diplome diplome) const { return valeurs_[static_cast<std::size_t>(diplome)]; }

private:
    template <std::size_t N, std::size_t... Rangs>
    consteval Par_Diplome(const Rangee (&rangees)[N], std::index_sequence<Rangs...>)
        : valeurs_{rangees[Rangs].valeur...}
    {
    }

    std::array<T, nombre_diplomes> valeurs_;
};
