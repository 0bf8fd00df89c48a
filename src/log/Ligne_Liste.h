#pragma once

#include <QStringView>

#include <array>
#include <cstddef>
#include <span>

/// Fills `champs` with the first fields of one line of a semicolon list, as Champs_Liste does, where their number is
/// known at run time only.
void Decoupe_Liste(QStringView ligne, std::span<QStringView> champs);

/// The first N fields of one line of a semicolon list, each closed by its own ";", as they stand (no quoting, no
/// trimming). Throws Erreur_Execution (Cause::Format_Liste) for a line with fewer than N separators.
template <std::size_t N>
std::array<QStringView, N> Champs_Liste(QStringView ligne)
{
    std::array<QStringView, N> champs;
    Decoupe_Liste(ligne, champs);
    return champs;
}

/// What stands behind the N-th separator, to the end of the line; `champs` are the N fields of that line.
template <std::size_t N>
QStringView Reste_Liste(QStringView ligne, const std::array<QStringView, N> &champs)
{
    return ligne.sliced(champs.back().data() + champs.back().size() + 1 - ligne.data());
}
