#include "programme/Registre.h"

#include <QEventLoop>

#include <utility>

namespace {

/// In front of the others, also when it had been minimised.
void Met_Devant(Ecran &ecran)
{
    ecran.setWindowState(ecran.windowState() & ~Qt::WindowMinimized);
    ecran.show();
    ecran.raise();
    ecran.activateWindow();
}

/// Closed is not yet destroyed: the name is free at once for the screen that takes its place.
void Ferme(Ecran &ecran)
{
    ecran.setObjectName({});
    ecran.close();
}

} // namespace

Registre::~Registre()
{
    for (const QPointer<Ecran> &ecran : std::as_const(ouverts_))
        delete ecran.data();
}

void Registre::Inscrit_Ecran(Inscription ecran)
{
    const QString nom = ecran.nom;
    inscriptions_.insert(nom, std::move(ecran));
}

void Registre::Inscrit_Commande(const QString &nom, std::function<void()> commande)
{
    commandes_.insert(nom, std::move(commande));
}

QStringList Registre::Les_Noms() const
{
    QStringList noms = inscriptions_.keys();
    noms.sort();
    return noms;
}

void Registre::Montre(const QString &nom)
{
    if (Ecran *ecran = Ouvre(nom))
        Met_Devant(*ecran);
}

void Registre::Montre_Modal(const QString &nom)
{
    Ecran *ecran = Ouvre(nom);
    if (!ecran)
        return;
    QEventLoop jusqu_a_la_fermeture;
    QObject::connect(ecran, &QObject::destroyed, &jusqu_a_la_fermeture, &QEventLoop::quit);
    // A screen that was open without blocking has to be hidden before it can be modal.
    ecran->hide();
    ecran->setWindowModality(Qt::ApplicationModal);
    Met_Devant(*ecran);
    jusqu_a_la_fermeture.exec();
}

bool Registre::Connait(const QString &nom) const
{
    return inscriptions_.contains(nom);
}

void Registre::Suit_Le_Log()
{
    suiveur_();
    Ferme_Les_Attaches(Attache::Log);
    for (const QPointer<Ecran> &ecran : std::as_const(ouverts_))
        if (ecran)
            ecran->Suit_Le_Log();
}

void Registre::Suit_La_Station()
{
    Ferme_Les_Attaches(Attache::Station);
    Suit_Le_Log();
}

void Registre::Ferme_Les_Attaches(Attache attache)
{
    for (const Inscription &inscription : std::as_const(inscriptions_))
        if (Ecran *ecran = Ouvert(inscription.nom); ecran && inscription.attache == attache && !ecran->Garde_Ouvert()) {
            Ferme(*ecran);
            ouverts_.remove(inscription.nom);
        }
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

Ecran *Registre::Ouvre(const QString &nom)
{
    const auto inscription = inscriptions_.constFind(nom);
    if (inscription == inscriptions_.cend())
        return nullptr;
    if (Ecran *ouvert = Ouvert(nom)) {
        if (inscription->reouverture == Reouverture::Telle_Quelle || ouvert->Garde_Ouvert())
            return ouvert;
        Ferme(*ouvert);
    }
    Ecran *ecran = inscription->fabrique();
    ouverts_.insert(nom, ecran);
    Centre(*ecran);
    return ecran;
}

Ecran *Registre::Ouvert(const QString &nom) const
{
    return ouverts_.value(nom);
}
