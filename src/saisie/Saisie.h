#pragma once

#include "log/Diplome.h"
#include "saisie/Controle.h"

#include <QString>

#include <array>
#include <functional>
#include <optional>
#include <span>

/// Where the program put the cursor of a field: before its text, around the whole of it, or behind it.
enum class Curseur { Debut, Tout, Fin };

/// What of a control changed.
enum class Aspect { Texte, Coche, Actif, Focus, Curseur };

/// The entries of a combo; none for another control.
std::span<const QStringView> Entrees(Controle combo);

/// The entry as plain values: what stands in the controls of the main screen, which of them are enabled, which has the
/// focus, and what is being done with a QSO. All rules of the entry work on it; the screen shows it and hands it what
/// the operator types.
///
/// No step of the entry sets a colour: the control with the focus bears the current colour, all others the finished
/// one, and that is the screen's own doing.
class Saisie {
public:
    Saisie();

    /// Told of each change the moment it is made: a message box in the middle of a step finds the screen up to date.
    using Vue = std::function<void(Controle, Aspect)>;
    void Se_Montre(Vue vue) { vue_ = std::move(vue); }

    [[nodiscard]] QString Texte(Controle controle) const { return De(controle).texte; }
    /// The cursor goes to the beginning of a field.
    void Ecrit(Controle controle, const QString &texte);
    /// The place of a combo's text among its entries; -1 for a free text.
    [[nodiscard]] int Indice(Controle combo) const;
    /// -1 empties the combo.
    void Choisit(Controle combo, int indice);

    [[nodiscard]] bool Est_Coche(Controle controle) const { return De(controle).coche; }
    void Coche(Controle controle, bool coche);

    [[nodiscard]] bool Est_Actif(Controle controle) const { return De(controle).actif; }
    void Active(Controle controle, bool actif);

    [[nodiscard]] std::optional<Controle> Focus() const { return focus_; }
    /// The control must be enabled. The text of a field or combo is selected, so that typing replaces it.
    void Donne_Focus(Controle controle);
    [[nodiscard]] Curseur Curseur_De(Controle champ) const { return De(champ).curseur; }
    /// Nothing is selected then: typing adds to the text.
    void Curseur_A_La_Fin(Controle champ);

    // What the operator did on the screen, which shows it already.
    void Recoit_Texte(Controle controle, const QString &texte) { De(controle).texte = texte; }
    void Recoit_Coche(Controle controle, bool coche) { De(controle).coche = coche; }
    /// nullopt: the focus went to something else.
    void Recoit_Focus(std::optional<Controle> controle) { focus_ = controle; }

    /// The award that Dip_A names; nullopt for a text that is none.
    [[nodiscard]] std::optional<Diplome> Dip_A() const { return Diplome_De(Texte(Controle::Dip_A)); }
    [[nodiscard]] bool QSO_Touche() const { return qso_affiche || qso_en_edition; }

    /// The Ligne_Affichage of the last entry clicked in Liste_QSO; empty until the first click.
    QString ligne_selectionnee;
    /// A stored QSO is on display or under edit: a commit replaces instead of adding.
    bool qso_affiche = false;
    /// A double click opened the QSO: single clicks no longer fill the fields.
    bool qso_en_edition = false;
    /// Deferred entry: date and time are typed, repeats pass, a commit inserts at its place in time. The option menu
    /// does not show the one that an insertion began.
    bool saisie_differee = false;
    /// The first-name list must be updated at commit. Only a look-up by Ind_A clears it.
    bool prenom_nouveau = false;
    /// "/" and ":" come by themselves in Date_A and Heure_A.
    bool separateur_auto = false;

private:
    struct Valeur {
        QString texte;
        bool coche = false;
        bool actif = true;
        Curseur curseur = Curseur::Debut;
    };

    [[nodiscard]] const Valeur &De(Controle controle) const { return valeurs_[static_cast<std::size_t>(controle)]; }
    [[nodiscard]] Valeur &De(Controle controle) { return valeurs_[static_cast<std::size_t>(controle)]; }

    std::array<Valeur, nombre_controles> valeurs_;
    std::optional<Controle> focus_;
    Vue vue_ = [](Controle, Aspect) {};
};
