#pragma once

#include "Log_Essai.h"

#include <random>

/// A line of the log of hydraulic works.
inline QString Ouvrage(const QString &ref, const QString &qsl = u" "_s)
{
    return QSO({.dpt = ref.left(2), .prenom = u"JEAN"_s, .ref = ref, .nom = u"OUVRAGE "_s + ref, .qsl = qsl});
}

/// One text of a list, drawn at random.
template <typename Textes>
auto Tire(std::mt19937 &hasard, const Textes &textes)
{
    return textes[std::uniform_int_distribution<std::size_t>(0, textes.size() - 1)(hasard)];
}

/// Works of all letters, also such that no category knows, of Corsica and badly formed, and lines that are cut.
inline Lignes_Essai Ouvrages_Au_Hasard(unsigned graine, std::size_t nombre)
{
    const std::vector<QString> departements = {u"01"_s, u"45"_s, u"2A"_s, u"2b"_s, u"97"_s, u"  "_s, u"BA"_s, u"9"_s};
    const std::vector<QString> lettres = {u"BA"_s, u"EC"_s, u"BS"_s, u"PT"_s, u"PC"_s, u"TU"_s,  u"AQ"_s, u"MA"_s,
                                          u"PE"_s, u"XX"_s, u"ec"_s, u"E"_s,  u"MI"_s, u"EC@"_s, u""_s};
    const std::vector<QString> signes = {u"*"_s, u" "_s};
    std::mt19937 hasard(graine);
    Lignes_Essai lignes;
    while (lignes.size() < nombre) {
        const QString numero = QString::number(hasard() % 1000).rightJustified(3, u'0');
        const QString ligne =
            Ouvrage(Tire(hasard, departements) + Tire(hasard, lettres) + numero, Tire(hasard, signes));
        lignes.push_back(hasard() % 12 == 0 ? ligne.left(static_cast<qsizetype>(hasard() % 112)) : ligne);
    }
    return lignes;
}
