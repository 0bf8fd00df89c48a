#pragma once

#include "plateforme/Commandes.h"
#include "plateforme/Ecrans.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

#include <functional>

/// The screens and the commands of the program by name: the one place that knows which screen is open.
class Registre : public Ecrans, public Commandes {
public:
    using Fabrique = std::function<QWidget *()>;

    Registre() = default;
    /// Screens that are still open go with the program.
    ~Registre() override;
    Registre(const Registre &) = delete;
    Registre &operator=(const Registre &) = delete;

    void Inscrit_Ecran(const QString &nom, Fabrique fabrique);
    void Inscrit_Commande(const QString &nom, std::function<void()> commande);

    void Montre(const QString &nom) override;
    void Montre_Modal(const QString &nom) override;
    [[nodiscard]] bool Connait(const QString &nom) const override;
    void Execute(const QString &nom) override;
    [[nodiscard]] bool Connait_Commande(const QString &nom) const override;

private:
    /// The screen of that name, made now if it is not open; nullptr for a name that is not registered.
    QWidget *Ouvre(const QString &nom);

    QHash<QString, Fabrique> fabriques_;
    QHash<QString, QPointer<QWidget>> ouverts_;
    QHash<QString, std::function<void()>> commandes_;
};
