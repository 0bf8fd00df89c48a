#include "diplomes/regles/Fiche_Des_Comptes.h"

#include "diplomes/modele/Valeurs.h"

#include <QSet>

#include <algorithm>

namespace diplomes {

namespace {

/// The part done of the condition that is furthest from being met. It is whole only where the tier is reached.
std::optional<double> Avancement(const Niveau_Diplome &niveau, Comptes comptes, Verdict verdict)
{
    const double au_plus = verdict == Verdict::Atteint ? 1 : 0.99;
    std::optional<double> avancement;
    const auto mesure = [&](int compte, int seuil) {
        if (seuil > 0)
            avancement = std::min(avancement.value_or(au_plus), double(compte) / seuil);
    };
    mesure(comptes.n, niveau.seuil_n);
    mesure(comptes.d, niveau.seuil_d);
    return avancement;
}

void Pose_Nombres(Valeurs &valeurs, const Niveau_Diplome &niveau, Comptes comptes)
{
    valeurs.Pose(u"n", comptes.n);
    valeurs.Pose(u"d", comptes.d);
    valeurs.Pose(u"seuil_n", niveau.seuil_n);
    valeurs.Pose(u"reste_n", niveau.seuil_n - comptes.n);
    valeurs.Pose(u"reste_d", niveau.seuil_d - comptes.d);
    valeurs.Pose(u"manque_n", std::max(0, niveau.seuil_n - comptes.n));
    valeurs.Pose(u"manque_d", std::max(0, niveau.seuil_d - comptes.d));
}

QStringView Texte_Selon(Verdict verdict, const Texte_Detail &texte)
{
    switch (verdict) {
    case Verdict::Atteint:
        return texte.atteint;
    case Verdict::Manque:
        return texte.manque;
    case Verdict::Inchange:
        break;
    }
    return texte.inchange;
}

Etiquette Status(const Niveau_Diplome &niveau, Verdict verdict, const Valeurs &valeurs)
{
    const QString nom = niveau.etat.toString();
    if (verdict == Verdict::Atteint)
        return {nom, Compose(niveau.atteint, valeurs), Teinte::Atteint};
    const bool change = verdict == Verdict::Manque && !niveau.manque.isEmpty();
    return {nom, Compose(change ? niveau.manque : niveau.attente, valeurs), Teinte::Attente};
}

std::vector<Etiquette> Detail(const Niveau_Diplome &niveau, Verdict verdict, const Valeurs &valeurs)
{
    std::vector<Etiquette> etiquettes;
    for (const Texte_Detail &texte : niveau.detail)
        if (!texte.nom.isEmpty())
            etiquettes.push_back({texte.nom.toString(), Compose(Texte_Selon(verdict, texte), valeurs)});
    return etiquettes;
}

void Ouvre_Boutons(const Niveau_Diplome &niveau, QSet<QString> &ouverts)
{
    if (niveau.ouvre.front().isEmpty())
        ouverts.insert(niveau.bouton.toString());
    for (const QStringView bouton : niveau.ouvre)
        ouverts.insert(bouton.toString());
}

} // namespace

Etat_Fiche Fiche_Des_Comptes(const Fiche_Diplome &fiche, std::span<const Comptes> comptes, const Etat_Commun &etat)
{
    Valeurs valeurs(etat);
    Etat_Fiche resultat{Compose(fiche.titre, valeurs), Compose(fiche.entete, valeurs), {}};
    QSet<QString> ouverts;
    for (const Niveau_Diplome &niveau : fiche.niveaux) {
        const Comptes siens = comptes[niveau.regle];
        const Verdict verdict = fiche.juge(niveau, siens);
        Pose_Nombres(valeurs, niveau, siens);
        resultat.niveaux.push_back({.etat = Status(niveau, verdict, valeurs),
                                    .detail = Detail(niveau, verdict, valeurs),
                                    .bouton = {.nom = niveau.bouton.toString()},
                                    .avancement = Avancement(niveau, siens, verdict)});
        if (verdict == Verdict::Atteint)
            Ouvre_Boutons(niveau, ouverts);
    }
    for (Etat_Niveau &niveau : resultat.niveaux)
        niveau.bouton.actif = ouverts.contains(niveau.bouton.nom);
    if (fiche.retouche)
        fiche.retouche(resultat);
    return resultat;
}

} // namespace diplomes
