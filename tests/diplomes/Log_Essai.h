#pragma once

#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "plateforme/Windows_1252.h"

#include <initializer_list>
#include <vector>

using namespace Qt::StringLiterals;

/// Lines of a log, drawn up in a test.
using Lignes_Essai = std::vector<QString>;

/// `nombre` times the same line.
inline Lignes_Essai Fois(std::size_t nombre, const QString &ligne)
{
    return Lignes_Essai(nombre, ligne);
}

/// One confirmed line a department, from `premier` to `dernier`, on 14 MHz.
inline Lignes_Essai Departements_Confirmes(int premier, int dernier)
{
    Lignes_Essai lignes;
    for (int dpt = premier; dpt <= dernier; ++dpt)
        lignes.push_back(QSO({.dpt = QString::number(dpt).rightJustified(2, u'0'), .qsl = u"*"_s}));
    return lignes;
}

inline Lignes_Essai operator+(Lignes_Essai gauche, const Lignes_Essai &droite)
{
    gauche.insert(gauche.end(), droite.begin(), droite.end());
    return gauche;
}

inline Lignes_Texte En_Texte(const Lignes_Essai &lignes)
{
    QString texte;
    for (const QString &ligne : lignes)
        texte += ligne + fin_de_ligne;
    return Lignes_Texte(texte);
}

inline QByteArray En_Octets(const Lignes_Essai &lignes)
{
    QString texte;
    for (const QString &ligne : lignes)
        texte += ligne + fin_de_ligne;
    return Encode_1252(texte);
}
