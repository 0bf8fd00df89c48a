#include "plateforme/Vue_Web.h"
#include "plateforme/web/Adresses_Permises.h"
#include "plateforme/web/Pile.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

/// What the engine reads when the first view starts it.
void Prepare_Moteur()
{
#ifdef Q_OS_UNIX
    // The engine refuses to start its sandbox for the superuser; for everybody else the sandbox stays.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
#endif
    // A redirection to the local network is on its way before the page's guard is asked: the engine stops it itself.
    const QByteArray garde = "--enable-features=BlockInsecurePrivateNetworkRequests";
    const QByteArray options = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    if (!options.contains(garde))
        qputenv("QTWEBENGINE_CHROMIUM_FLAGS", options + ' ' + garde);
}

class Vue_Moteur : public Vue_Web {
public:
    explicit Vue_Moteur(QWidget *parent) : pile_(new Pile(parent)) {}

    QWidget *Controle() override { return pile_; }
    void Navigue(const QString &adresse) override
    {
        const QUrl cible = Adresse_Web(adresse);
        if (cible.isValid())
            pile_->Va(cible);
        else
            Dit(u"Cette adresse n'est pas celle d'une page web : "_s + adresse);
    }
    void Dit(const QString &texte) override { pile_->Dit(texte); }

private:
    Pile *pile_;
};

class Vues_Moteur : public Vues_Web {
public:
    std::unique_ptr<Vue_Web> Nouvelle(QWidget *parent) override
    {
        Prepare_Moteur();
        return std::make_unique<Vue_Moteur>(parent);
    }
};

} // namespace

std::unique_ptr<Vues_Web> Vues_Web_Du_Programme()
{
    return std::make_unique<Vues_Moteur>();
}
