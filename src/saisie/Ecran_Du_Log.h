#pragma once

#include "log/Ecran_Principal.h"

#include <functional>
#include <optional>

class Saisie;

/// The main screen as the log operations see it, as plain values: the QSOs of Liste_QSO, which of them is selected, and
/// the entry beside them, which a selection fills.
class Ecran_Du_Log : public Ecran_Principal {
public:
    explicit Ecran_Du_Log(Saisie &saisie) : saisie_(saisie) {}

    /// Whoever shows the list, told of each change the moment it is made.
    struct Vue {
        std::function<void()> liste = [] {};
        std::function<void(std::size_t rang)> selection = [](std::size_t) {};
    };
    void Se_Montre(Vue vue) { vue_ = std::move(vue); }

    void Remplit_Liste(Lignes_Texte lignes) override;
    [[nodiscard]] const Lignes_Texte &Liste_QSO() const override { return lignes_; }
    void Selectionne_Derniere() override;
    void Selectionne_QSO(std::size_t rang) override;
    [[nodiscard]] QString QSO_Selectionne() const override;
    [[nodiscard]] QString Ligne_Selectionnee() const override;
    void Active_Ind_A() override;
    [[nodiscard]] std::optional<Diplome> Dip_A() const override;
    void Va_A_Dip_A() override;
    [[nodiscard]] QString Ref_A() const override;
    [[nodiscard]] QString I_Station() const override;
    void Efface_Saisie() override;

private:
    Saisie &saisie_;
    Lignes_Texte lignes_;
    std::optional<std::size_t> rang_;
    Vue vue_;
};
