#pragma once

#include "faux/Poste_Essai.h"
#include "log/Catalogue.h"
#include "saisie/QSO_Courant.h"
#include "saisie/Repos.h"
#include "saisie/Vue_Saisie.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <span>

/// The main screen of the entry as plain values: texts, what is enabled, where the focus is. A selection made by the
/// program runs `au_clic`, as the list's own click does.
class Vue_Fausse : public Vue_Saisie {
public:
    explicit Vue_Fausse(Etat_Commun &etat) : etat_(etat)
    {
        Pose_Entrees(Controle::Dip_A, codes_diplome);
        Pose_Entrees(Controle::Bande_A, bandes);
        Pose_Entrees(Controle::Mode_A, modes);
    }

    void Remplit_Liste(Lignes_Texte lignes) override { liste = std::move(lignes); }
    [[nodiscard]] const Lignes_Texte &Liste_QSO() const override { return liste; }
    void Selectionne_Derniere() override
    {
        if (!liste.empty())
            Selectionne_QSO(liste.size() - 1);
    }
    void Selectionne_QSO(std::size_t rang) override
    {
        if (rang >= liste.size())
            return;
        selection = Ligne_Affichage(rang + 1, liste[rang]);
        au_clic(selection);
    }
    [[nodiscard]] QString QSO_Selectionne() const override { return selection; }
    void Active_Ind_A() override { Active(Controle::Ind_A, true); }
    [[nodiscard]] QString Dip_A() const override { return En_Forme_De_Code(Texte(Controle::Dip_A)); }
    [[nodiscard]] QString Ref_A() const override { return Texte(Controle::Ref_A); }
    [[nodiscard]] QString I_Station() const override { return Texte(Controle::I_Station); }
    void Efface() override { Efface_Tout(etat_, *this); }
    void Efface_Saisie() override { Efface_Champs(etat_, *this); }

    [[nodiscard]] QString Texte(Controle controle) const override
    {
        const auto place = textes.find(controle);
        return place == textes.end() ? QString() : place->second;
    }
    void Ecrit(Controle controle, const QString &texte) override
    {
        textes[controle] = texte;
        curseurs_a_la_fin.erase(controle);
    }
    [[nodiscard]] int Indice_Combo(Controle combo) const override
    {
        return static_cast<int>(entrees_.at(combo).indexOf(Texte(combo)));
    }
    [[nodiscard]] int Nombre_Combo(Controle combo) const override
    {
        return static_cast<int>(entrees_.at(combo).size());
    }
    void Choisit(Controle combo, int indice) override { Ecrit(combo, entrees_.at(combo).value(indice)); }
    [[nodiscard]] bool QSL_Coche() const override { return qsl; }
    void Coche_QSL(bool coche) override { qsl = coche; }
    [[nodiscard]] bool Est_Actif(Controle controle) const override { return !inactifs.contains(controle); }
    void Active(Controle controle, bool actif) override
    {
        if (actif)
            inactifs.erase(controle);
        else
            inactifs.insert(controle);
    }
    void Donne_Focus(Controle controle) override
    {
        // A real control that is disabled does not take it.
        EXPECT_TRUE(Est_Actif(controle)) << "focus on disabled control " << static_cast<int>(controle);
        focus = controle;
    }
    void Curseur_A_La_Fin(Controle champ) override { curseurs_a_la_fin.insert(champ); }
    void Coche_Saisie_Differee(bool differee) override { menu_differee = differee; }
    void Coche_Separateur_Auto(bool automatique) override { menu_separateur = automatique; }
    void Titre(const QString &nouveau) override { titre = nouveau; }
    void Montre_Ecran() override { montre = true; }

    std::map<Controle, QString> textes;
    std::set<Controle> inactifs;
    std::set<Controle> curseurs_a_la_fin;
    std::optional<Controle> focus;
    Lignes_Texte liste;
    QString selection;
    bool qsl = false;
    std::optional<bool> menu_differee;
    std::optional<bool> menu_separateur;
    QString titre;
    bool montre = false;
    std::function<void(const QString &)> au_clic;

private:
    void Pose_Entrees(Controle combo, std::span<const QStringView> textes_entrees)
    {
        for (const QStringView texte : textes_entrees)
            entrees_[combo] += texte.toString();
    }

    Etat_Commun &etat_;
    std::map<Controle, QStringList> entrees_;
};

/// A position with the entry's screen in it, at rest: the station F9ZZY, 14 Mhz in SSB, an empty first-name list.
struct Poste_Saisie : Poste_Essai {
    Vue_Fausse vue{etat};
    Poste poste{static_cast<const Ports &>(Poste_Essai::poste), etat, vue};

    Poste_Saisie()
    {
        vue.au_clic = [this](const QString &entree) { Clic_Liste(poste, vue, entree); };
        fichiers.Pose(QStringLiteral("Liste_Prenom.txt"), "");
        vue.Choisit(Controle::Bande_A, 4);
        vue.Choisit(Controle::Mode_A, 0);
        reglages.vorlain[{QStringLiteral("Setup F9ZZY"), QStringLiteral("bande Utilisee")}] = QStringLiteral("4");
        reglages.vorlain[{QStringLiteral("Setup F9ZZY"), QStringLiteral("Mode Utilise")}] = QStringLiteral("0");
        vue.Efface();
    }

    /// The award that is open, with its log shown and the entry at the band, without the screen's dressing.
    void Ouvre_Log(const QString &code, const QByteArray &octets = {})
    {
        fichiers.Pose(QStringLiteral("F9ZZY_") + code + QStringLiteral(".log"), octets);
        etat.station.diplome = Diplome_De(code);
        vue.Ecrit(Controle::Dip_A, code);
        vue.Efface_Saisie();
        vue.liste = dossier.Lit_Lignes(QStringLiteral("F9ZZY_") + code + QStringLiteral(".log"));
    }
    /// The messages since the last call.
    std::vector<QString> Messages() { return std::exchange(boites.messages, {}); }
};
