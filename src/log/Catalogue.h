#pragma once

#include "log/Diplome.h"

#include <QStringView>

#include <array>
#include <optional>

/// The entries of Dip_A: the codes in the order of Diplome.
extern const std::array<QStringView, nombre_diplomes> codes_diplome;

/// The entries of Bande_A.
inline constexpr std::array<QStringView, 12> bandes = {
    u"1.8 Mhz", u"3.5 Mhz", u"7.0 Mhz", u"10 Mhz", u"14 Mhz",  u"18 Mhz",
    u"21 Mhz",  u"24 Mhz",  u"28 Mhz",  u"50 Mhz", u"144 Mhz", u"432 Mhz",
};

/// The entries of Mode_A.
inline constexpr std::array<QStringView, 5> modes = {u"SSB", u"CW", u"PSK", u"TTY", u"FM"};

/// The word before the reference; none without an award.
QStringView Type_Ref(std::optional<Diplome> diplome);

/// The two challenges, whose log bears a year.
bool Est_Challenge(std::optional<Diplome> diplome);
