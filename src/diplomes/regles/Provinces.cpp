#include "diplomes/regles/Provinces.h"

#include "log/Champ.h"

#include <QStringTokenizer>

namespace diplomes {

namespace {

struct Province {
    QStringView nom;
    QStringView departements;
};

constexpr std::size_t ile_de_france = 20;

// clang-format off
// 79 stands for Pays-de-Loire, which is asked first, and 49 nowhere: the award counts so.
constexpr std::array<QStringView, nombre_provinces> departements_des_numeros = {
    u"67 68",
    u"24 33 40 47 64",
    u"03 15 43 63",
    u"14 50 61",
    u"21 58 71 89",
    u"22 29 35 56",
    u"18 28 36 37 41 45",
    u"08 10 51 52",
    u"2A 2B",
    u"25 39 70 90",
    u"27 76",
    u"11 30 34 48 66",
    u"19 23 87",
    u"54 55 57 88",
    u"09 12 31 32 46 65 81 82",
    u"59 62",
    u"44 79 53 72 85",
    u"02 60 80",
    u"16 17 79 86",
    u"04 05 06 13 83 84",
    u"75 77 78 91 92 93 94 95",
    u"01 07 26 38 42 69 73 74",
};

// "Langedoc-Rousillon" is spelt so.
constexpr std::array<Province, nombre_provinces> provinces = {{
    {u"Alsace", u"67 68"},
    {u"Aquitaine", u"24 33 40 47 64"},
    {u"Auvergne", u"03 15 43 63"},
    {u"Basse-Normandie", u"14 50 61"},
    {u"Bourgogne", u"21 58 71 89"},
    {u"Bretagne", u"22 29 35 56"},
    {u"Centre", u"18 28 36 37 41 45"},
    {u"Champagne", u"08 10 51 52"},
    {u"Corse", u"2A 2B"},
    {u"Franche-Comte", u"25 39 70 90"},
    {u"Haute-Normandie", u"27 76"},
    {u"Langedoc-Rousillon", u"11 30 34 48 66"},
    {u"Limousin", u"19 23 87"},
    {u"Lorraine", u"54 55 57 88"},
    {u"Midi-Pyrenees", u"09 12 31 32 46 65 81 82"},
    {u"Nord", u"59 62"},
    {u"Pays-de-Loire", u"44 79 53 72 85"},
    {u"Picardie", u"02 60 80"},
    {u"Poitou-Charentes", u"16 17 86"},
    {u"Provence-Cote-d'Azur", u"04 05 06 13 83 84"},
    {u"Ile-de-France", u"75 77 78 91 92 93 94 95"},
    {u"Rhone-Alpes", u"01 07 26 38 42 69 73 74"},
}};
// clang-format on

bool Contient(QStringView departements, QStringView dpt)
{
    for (const QStringView chacun : QStringTokenizer(departements, u' '))
        if (chacun == dpt)
            return true;
    return false;
}

} // namespace

// clang-format off
const std::array<QStringView, nombre_provinces> textes_provinces = {
    u"01 Alsace Dpt 67 68",
    u"02 Aquitaine Dpt 24 33 40 47 64",
    u"03 Auvergne Dpt 03 15 43 63",
    u"04 Basse-Normandie Dpt 14 50 61",
    u"05 Bourgogne Dpt 21 58 71 89",
    u"06 Bretagne Dpt 22 29 35 56",
    u"07 Centre Dpt 18 28 36 37 41 45",
    u"08 Champagne Dpt 08 10 51 52",
    u"09 Corse Dpt 2A 2B",
    u"10 Franche-Comté Dpt 25 39 70 90",
    u"11 Haute-Normandie Dpt 27 76",
    u"12 Languedoc-Roussillon Dpt 11 30 34 48 66",
    u"13 Limousin Dpt 19 23 87",
    u"14 Lorraine Dpt 54 55 57 88",
    u"15 Midi-Pyrénées Dpt 09 12 31 32 46 65 81 82",
    u"16 Nord Dpt 59 62",
    u"17 Pays-de-Loire Dpt 44 49 53 72 85",
    u"18 Picardie Dpt 02 60 80",
    u"19 Poitou-Charentes Dpt 16 17 79 86",
    u"20 Provence-Côte-d'Azur Dpt 04 05 06 13 83 84",
    u"21 Ile-de-France Dpt 75 77 78 91 92 93 94 95",
    u"22 Rhône-Alpes Dpt 01 07 26 38 42 69 73 74",
};
// clang-format on

std::optional<std::size_t> Numero_Province(QStringView dpt)
{
    if (dpt.isEmpty())
        return ile_de_france;
    for (std::size_t numero = 0; numero < departements_des_numeros.size(); ++numero)
        if (Contient(departements_des_numeros[numero], dpt))
            return numero;
    return std::nullopt;
}

void Province_De_Departement(QStringView dpt, QString &province)
{
    constexpr qsizetype largeur = 20;
    if (dpt.isEmpty())
        province = Complete(provinces[ile_de_france].nom, largeur);
    for (const Province &possible : provinces)
        if (Contient(possible.departements, dpt)) {
            province = Complete(possible.nom, largeur);
            return;
        }
}

} // namespace diplomes
