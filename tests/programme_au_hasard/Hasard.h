#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <vector>

/// The same draws from the same seed with every library: the distributions of the standard one differ.
class Hasard {
public:
    explicit Hasard(std::uint32_t graine) : suite_(graine) {}

    /// From 0 to `nombre` - 1.
    int Rang(std::size_t nombre) { return static_cast<int>(suite_() % nombre); }
    bool Sur_Cent(int pour_cent) { return Rang(100) < pour_cent; }
    template <typename T>
    const T &Un_De(const std::vector<T> &choix)
    {
        return choix[static_cast<std::size_t>(Rang(choix.size()))];
    }

private:
    std::mt19937 suite_;
};
