#include "plateforme/Vue_Web.h"
#include "plateforme/web/Adresses_Permises.h"
#include "plateforme/web/Page_Gardee.h"

#include <QAction>
#include <QLabel>
#include <QStackedWidget>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineView>

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

/// The page of a view over its plain text. Nothing of a visit is kept on the disk.
class Pile : public QStackedWidget {
public:
    explicit Pile(QWidget *parent)
        : QStackedWidget(parent),
          profil_(new QWebEngineProfile(this)),
          page_(new Page_Gardee(profil_, this)),
          vue_(new QWebEngineView(this)),
          texte_(new QLabel(this))
    {
        profil_->setHttpAcceptLanguage(u"fr"_s);
        profil_->setUrlRequestInterceptor(new Garde_Contenu(profil_));
        QObject::connect(profil_, &QWebEngineProfile::downloadRequested, profil_,
                         [](QWebEngineDownloadRequest *demande) { demande->cancel(); });
        vue_->setPage(page_);
        texte_->setTextFormat(Qt::PlainText);
        texte_->setAlignment(Qt::AlignCenter);
        texte_->setWordWrap(true);
        addWidget(vue_);
        addWidget(texte_);
        Propose_Actions();
    }

    /// The view lets go of the page, and the page of the profile, in this order.
    ~Pile() override
    {
        delete vue_;
        delete page_;
    }

    void Va(const QUrl &adresse)
    {
        setCurrentWidget(vue_);
        page_->Va(adresse);
    }
    void Dit(const QString &texte)
    {
        texte_->setText(texte);
        setCurrentWidget(texte_);
    }

private:
    /// The context menu of the engine can save and show sources; this one only moves between the pages seen.
    void Propose_Actions()
    {
        const auto propose = [this](QWebEnginePage::WebAction action, const QString &texte,
                                    const QKeySequence &touche) {
            QAction *proposee = page_->action(action);
            proposee->setText(texte);
            proposee->setShortcut(touche);
            vue_->addAction(proposee);
        };
        propose(QWebEnginePage::Back, u"Page précédente"_s, QKeySequence(Qt::ALT | Qt::Key_Left));
        propose(QWebEnginePage::Forward, u"Page suivante"_s, QKeySequence(Qt::ALT | Qt::Key_Right));
        propose(QWebEnginePage::Reload, u"Actualiser"_s, QKeySequence(Qt::Key_F5));
        propose(QWebEnginePage::Copy, u"Copier"_s, QKeySequence(Qt::CTRL | Qt::Key_C));
        vue_->setContextMenuPolicy(Qt::ActionsContextMenu);
    }

    QWebEngineProfile *profil_;
    Page_Gardee *page_;
    QWebEngineView *vue_;
    QLabel *texte_;
};

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
