#include "programme/Registre.h"

#include "ecrans/Ecran.h"

#include <QEventLoop>

#include <utility>

Registre::~Registre()
{
    for (const QPointer<QWidget> &ecran : std::as_const(ouverts_))
        delete ecran.data();
}

void Registre::Inscrit_Ecran(const QString &nom, Fabrique fabrique)
{
    fabriques_.insert(nom, std::move(fabrique));
}

void Registre::Inscrit_Commande(const QString &nom, std::function<void()> commande)
{
    commandes_.insert(nom, std::move(commande));
}

void Registre::Montre(const QString &nom)
{
    if (QWidget *ecran = Ouvre(nom)) {
        ecran->show();
        ecran->raise();
        ecran->activateWindow();
    }
}

void Registre::Montre_Modal(const QString &nom)
{
    QWidget *ecran = Ouvre(nom);
    if (!ecran)
        return;
    QEventLoop jusqu_a_la_fermeture;
    QObject::connect(ecran, &QObject::destroyed, &jusqu_a_la_fermeture, &QEventLoop::quit);
    // A screen that was open without blocking has to be hidden before it can be modal.
    ecran->hide();
    ecran->setWindowModality(Qt::ApplicationModal);
    Montre(nom);
    jusqu_a_la_fermeture.exec();
}

bool Registre::Connait(const QString &nom) const
{
    return fabriques_.contains(nom);
}

void Registre::Execute(const QString &nom)
{
    if (const auto commande = commandes_.value(nom))
        commande();
}

bool Registre::Connait_Commande(const QString &nom) const
{
    return commandes_.contains(nom);
}

QWidget *Registre::Ouvre(const QString &nom)
{
    if (QWidget *ouvert = ouverts_.value(nom))
        return ouvert;
    const Fabrique fabrique = fabriques_.value(nom);
    if (!fabrique)
        return nullptr;
    QWidget *ecran = fabrique();
    ouverts_.insert(nom, ecran);
    Centre(*ecran);
    return ecran;
}
