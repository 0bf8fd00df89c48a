#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

/// The entries of Dip_A; `Diplome Utilise` is an index into them.
inline constexpr std::array<QStringView, 21> codes_diplome = {
    u"Ch_DFCF", u"Ch_DMF", u"DAF", u"DCF",  u"DCPF", u"DDFM", u"DFCF", u"DFF", u"DIFI", u"DIFM", u"DLF",
    u"DMF",     u"DOHF",   u"DPF", u"DPLF", u"DVFF", u"DYLF", u"FFF",  u"PC",  u"TDC",  u"WLF",
};

/// The entries of Bande_A.
inline constexpr std::array<QStringView, 12> bandes = {
    u"1.8 Mhz", u"3.5 Mhz", u"7.0 Mhz", u"10 Mhz", u"14 Mhz",  u"18 Mhz",
    u"21 Mhz",  u"24 Mhz",  u"28 Mhz",  u"50 Mhz", u"144 Mhz", u"432 Mhz",
};

/// The entries of Mode_A.
inline constexpr std::array<QStringView, 5> modes = {u"SSB", u"CW", u"PSK", u"TTY", u"FM"};

/// How the entry screen is dressed for an award. nullopt leaves a text as the award before it left it.
struct Habillage {
    QStringView code;
    QStringView frame3; ///< for the challenges without the year, which goes behind it
    QStringView detail;
    std::optional<QStringView> detail_1;
    std::optional<QStringView> nom_l;
    QStringView label1;
    QStringView type_ref;
};

/// The dressing of a code; nullptr for a text that is none of the 21.
const Habillage *Habillage_De(QStringView code);

/// The word before the reference; a text that is no code stands for itself.
QStringView Type_Ref(QStringView code);

bool Est_Code_Diplome(QStringView texte);
/// The code that a text spells in whatever case, in its own form; a text that spells none comes back as it is.
QString En_Forme_De_Code(const QString &texte);
/// The two challenges, whose log bears a year.
bool Est_Challenge(QStringView code);
