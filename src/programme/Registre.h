#pragma once

#include "ecrans/Ecran.h"
#include "plateforme/Commandes.h"
#include "plateforme/Ecrans.h"

#include <QHash>
#include <QPointer>

#include <functional>
#include <utility>

/// The screens and the commands of the program by name: the one place that knows which screen is open.
class Registre : public Ecrans, public Commandes {
public:
    Registre() = default;
    /// Screens that are still open go with the program.
    ~Registre() override;
    Registre(const Registre &) = delete;
    Registre &operator=(const Registre &) = delete;

    void Inscrit_Ecran(Inscription ecran);
    void Inscrit_Commande(const QString &nom, std::function<void()> commande);

    /// Told before the open screens that another log stands on the main screen, which is none of them.
    void Previent(std::function<void()> suiveur) { suiveur_ = std::move(suiveur); }

    /// The names of all screens, sorted.
    [[nodiscard]] QStringList Les_Noms() const;

    void Montre(const QString &nom) override;
    void Montre_Modal(const QString &nom) override;
    [[nodiscard]] bool Connait(const QString &nom) const override;
    void Suit_Le_Log() override;
    void Suit_La_Station() override;
    void Execute(const QString &nom) override;
    [[nodiscard]] bool Connait_Commande(const QString &nom) const override;

private:
    /// The screen of that name: the open one if it stays, else a new one; nullptr for a name that is not registered.
    Ecran *Ouvre(const QString &nom);
    /// Closes the open screens that are attached to what changed; those that hold unsaved work stay.
    void Ferme_Les_Attaches(Attache attache);
    /// The screen of that name if it is open, nullptr if not.
    [[nodiscard]] Ecran *Ouvert(const QString &nom) const;

    QHash<QString, Inscription> inscriptions_;
    QHash<QString, QPointer<Ecran>> ouverts_;
    QHash<QString, std::function<void()>> commandes_;
    std::function<void()> suiveur_ = [] {};
};
