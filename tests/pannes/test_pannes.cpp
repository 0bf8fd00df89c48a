#include "Epreuve.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// A twentieth of all points, the same at each run; VORLAIN_PANNES=tout plays them all.
int Part()
{
    return qEnvironmentVariable("VORLAIN_PANNES") == QStringLiteral("tout") ? 20 : 1;
}

class Pannes : public ::testing::TestWithParam<Operation> {};

void Imprime(const Operation &operation, const Bilan &bilan)
{
    std::printf("%-24s %6zu points %6zu passed %8.1f s\n", operation.nom, bilan.points, bilan.passes,
                static_cast<double>(bilan.millisecondes) / 1000);
}

} // namespace

TEST_P(Pannes, chaque_fichier_reste_l_ancien_ou_le_nouveau_et_le_programme_repart)
{
    const Bilan bilan = Eprouve(GetParam(), Part());
    Imprime(GetParam(), bilan);
    EXPECT_GT(bilan.points, 0U);
    for (std::size_t i = 0; i < bilan.fautes.size() && i < 12; ++i)
        ADD_FAILURE() << bilan.fautes[i];
    EXPECT_EQ(bilan.passes, bilan.points);
}

INSTANTIATE_TEST_SUITE_P(Operations, Pannes, ::testing::ValuesIn(Operations().begin(), Operations().end()),
                         [](const auto &essai) { return std::string(essai.param.nom); });
