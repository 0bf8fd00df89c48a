#include "plateforme/Windows_1252.h"

#include "plateforme/Erreur_Execution.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

// Bytes 80 to 9F; all other bytes are the Unicode character of the same number.
constexpr std::array<char16_t, 32> haut = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr bool Est_Direct(char16_t unite)
{
    return unite < 0x80 || (unite >= 0xA0 && unite <= 0xFF);
}

constexpr char16_t Majuscule(char16_t unite)
{
    if ((unite >= u'a' && unite <= u'z') || (unite >= 0xE0 && unite <= 0xFE && unite != 0xF7))
        return static_cast<char16_t>(unite - 0x20);
    switch (unite) {
    case 0x0161: // s, z with caron and oe stand one below their capitals' pair
    case 0x017E:
    case 0x0153:
        return static_cast<char16_t>(unite - 1);
    case 0xFF:
        return 0x0178;
    default:
        return unite;
    }
}

/// The place of the first byte from `debut` on that is not ASCII, or the size. Most of a log is ASCII, so eight bytes
/// are passed over at a time.
qsizetype Suite_ASCII(QByteArrayView octets, qsizetype debut)
{
    std::uint64_t huit = 0;
    while (debut + 8 <= octets.size()) {
        std::memcpy(&huit, octets.data() + debut, sizeof huit);
        if (huit & 0x8080808080808080U)
            break;
        debut += 8;
    }
    while (debut < octets.size() && static_cast<unsigned char>(octets[debut]) < 0x80)
        ++debut;
    return debut;
}

/// Names the character that a text begins with, which may take two units.
[[noreturn]] void Refuse(QStringView texte)
{
    const bool double_unite = texte.size() > 1 && texte[0].isHighSurrogate() && texte[1].isLowSurrogate();
    throw Erreur_Execution(Cause::Caractere, u"le caractère « %1 » ne peut pas être enregistré dans un fichier"_s.arg(
                                                 texte.first(double_unite ? 2 : 1)));
}

} // namespace

QString Decode_1252(QByteArrayView octets)
{
    QString texte = QString::fromLatin1(octets);
    const char *source = octets.data();
    QChar *cible = nullptr;
    for (qsizetype i = Suite_ASCII(octets, 0); i < octets.size(); i = Suite_ASCII(octets, i + 1)) {
        const auto octet = static_cast<unsigned char>(source[i]);
        if (octet > 0x9F)
            continue;
        if (!cible)
            cible = texte.data();
        cible[i] = QChar(haut[static_cast<std::size_t>(octet - 0x80)]);
    }
    return texte;
}

QByteArray Encode_1252(QStringView texte)
{
    QByteArray octets(texte.size(), Qt::Uninitialized);
    char *cible = octets.data();
    for (qsizetype i = 0; i < texte.size(); ++i) {
        const char16_t unite = texte[i].unicode();
        if (Est_Direct(unite)) {
            *cible++ = static_cast<char>(unite);
            continue;
        }
        const auto *place = std::find(haut.begin(), haut.end(), unite);
        if (place == haut.end())
            Refuse(texte.sliced(i));
        *cible++ = static_cast<char>(0x80 + (place - haut.begin()));
    }
    return octets;
}

bool Est_Dans_1252(QChar caractere)
{
    return Est_Direct(caractere.unicode()) || std::find(haut.begin(), haut.end(), caractere.unicode()) != haut.end();
}

QString Majuscules_1252(QStringView texte)
{
    QString capitales = texte.toString();
    for (QChar &caractere : capitales)
        caractere = Majuscule_1252(caractere);
    return capitales;
}

QChar Majuscule_1252(QChar caractere)
{
    return QChar(Majuscule(caractere.unicode()));
}
