#include "saisie/Saisie.h"

#include "log/Catalogue.h"
#include "log/Ligne_Affichage.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::span<const QStringView> Entrees(Controle combo)
{
    switch (combo) {
    case Controle::Dip_A:
        return codes_diplome;
    case Controle::Bande_A:
        return bandes;
    case Controle::Mode_A:
        return modes;
    default:
        return {};
    }
}

Saisie::Saisie()
{
    for (const Controle combo : {Controle::Dip_A, Controle::Bande_A, Controle::Mode_A})
        De(combo).texte = Entrees(combo).front().toString();
    De(Controle::Nom_L).texte = u"Nom activité"_s;
    De(Controle::Label1).texte = u"Référence"_s;
    De(Controle::Mode_Aff).texte = u"Saisie QSO"_s;
    De(Controle::Label15).texte = u"En temps réel"_s;
    De(Controle::Label_Liste_QSO).texte = entete_liste_qso.toString();
    De(Controle::Mnu_Date_Auto_Oui).coche = true;
    De(Controle::Mnu_Sep_Non).coche = true;
}

void Saisie::Ecrit(Controle controle, const QString &texte)
{
    De(controle).texte = texte;
    De(controle).curseur = Curseur::Debut;
    vue_(controle, Aspect::Texte);
}

int Saisie::Indice(Controle combo) const
{
    const auto entrees = Entrees(combo);
    const auto place = std::find(entrees.begin(), entrees.end(), Texte(combo));
    return place == entrees.end() ? -1 : static_cast<int>(place - entrees.begin());
}

void Saisie::Choisit(Controle combo, int indice)
{
    Ecrit(combo, indice < 0 ? QString() : Entrees(combo)[static_cast<std::size_t>(indice)].toString());
}

void Saisie::Coche(Controle controle, bool coche)
{
    De(controle).coche = coche;
    vue_(controle, Aspect::Coche);
}

void Saisie::Active(Controle controle, bool actif)
{
    De(controle).actif = actif;
    vue_(controle, Aspect::Actif);
}

void Saisie::Donne_Focus(Controle controle)
{
    focus_ = controle;
    De(controle).curseur = Curseur::Tout;
    vue_(controle, Aspect::Focus);
}

void Saisie::Curseur_A_La_Fin(Controle champ)
{
    De(champ).curseur = Curseur::Fin;
    vue_(champ, Aspect::Curseur);
}
