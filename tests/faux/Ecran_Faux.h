#pragma once

#include "log/Ecran_Principal.h"
#include "log/Ligne_Affichage.h"

#include <vector>

/// The main screen as the log operations see it, with a record of what they asked.
class Ecran_Faux : public Ecran_Principal {
public:
    void Remplit_Liste(Lignes_Texte lignes) override { liste = std::move(lignes); }
    [[nodiscard]] const Lignes_Texte &Liste_QSO() const override { return liste; }
    void Selectionne_Derniere() override
    {
        appels.push_back(QStringLiteral("Selectionne_Derniere"));
        selection = liste.empty() ? QString() : Ligne_Affichage(liste.size(), liste[liste.size() - 1]);
    }
    void Selectionne_QSO(std::size_t rang) override
    {
        appels.push_back(QStringLiteral("Selectionne_QSO %1").arg(rang));
        if (rang < liste.size())
            selection = Ligne_Affichage(rang + 1, liste[rang]);
    }
    [[nodiscard]] QString QSO_Selectionne() const override { return selection; }
    [[nodiscard]] QString Ligne_Selectionnee() const override { return ligne_selectionnee; }
    void Active_Ind_A() override { appels.push_back(QStringLiteral("Active_Ind_A")); }
    [[nodiscard]] std::optional<Diplome> Dip_A() const override { return Diplome_De(dip_a); }
    void Va_A_Dip_A() override { appels.push_back(QStringLiteral("Va_A_Dip_A")); }
    [[nodiscard]] QString Ref_A() const override { return ref_a; }
    [[nodiscard]] QString I_Station() const override { return i_station; }
    void Efface_Saisie() override { appels.push_back(QStringLiteral("Efface_Saisie")); }

    Lignes_Texte liste;
    QString selection;
    QString ligne_selectionnee;
    QString dip_a;
    QString ref_a;
    QString i_station;
    std::vector<QString> appels;
};
