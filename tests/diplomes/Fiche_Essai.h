#pragma once

#include "Log_Essai.h"
#include "diplomes/regles/Compte.h"
#include "diplomes/regles/Fiche_Des_Comptes.h"

#include <stdexcept>

using namespace diplomes;

inline Etat_Fiche Etat_De(const Fiche_Diplome &fiche, const Lignes_Essai &lignes, const Etat_Commun &etat = {})
{
    return Fiche_Des_Comptes(fiche, Compte(fiche.regles, En_Texte(lignes), etat), etat);
}

inline const Etiquette &Etiquette_De(Etat_Fiche &etat, QStringView nom)
{
    const Etiquette *etiquette = Cherche_Etiquette(etat, nom);
    if (!etiquette)
        throw std::runtime_error("no label " + nom.toString().toStdString());
    return *etiquette;
}

inline QString Texte_De(Etat_Fiche etat, QStringView nom)
{
    return Etiquette_De(etat, nom).texte;
}

inline bool Est_Atteint(Etat_Fiche etat, QStringView nom)
{
    return Etiquette_De(etat, nom).teinte == Teinte::Atteint;
}

/// The names of the buttons that are enabled, in the order of the screen.
inline QStringList Boutons_Actifs(const Etat_Fiche &etat)
{
    QStringList noms;
    for (const Etat_Niveau &niveau : etat.niveaux)
        if (niveau.bouton.actif)
            noms.push_back(niveau.bouton.nom);
    return noms;
}

/// What the labels of a tier say, from left to right.
inline QString Detail_De(const Etat_Niveau &niveau)
{
    QStringList textes;
    for (const Etiquette &etiquette : niveau.detail)
        textes.push_back(etiquette.texte);
    return textes.join(u'|');
}
