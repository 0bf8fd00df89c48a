#include "plateforme/web/Pile.h"

#include "plateforme/web/Page_Gardee.h"

#include <QAction>
#include <QLabel>
#include <QWebEngineDownloadRequest>
#include <QWebEngineProfile>
#include <QWebEngineView>

using namespace Qt::StringLiterals;

Pile::Pile(QWidget *parent)
    : QStackedWidget(parent),
      profil_(new QWebEngineProfile(this)),
      page_(new Page_Gardee(profil_, this)),
      vue_(new QWebEngineView(this)),
      texte_(new QLabel(this))
{
    profil_->setHttpAcceptLanguage(u"fr"_s);
    profil_->setUrlRequestInterceptor(new Garde_Contenu(profil_));
    connect(profil_, &QWebEngineProfile::downloadRequested, profil_,
            [](QWebEngineDownloadRequest *demande) { demande->cancel(); });
    connect(page_, &QWebEnginePage::urlChanged, this, [this](const QUrl &adresse) {
        if (currentWidget() == vue_)
            url_ = adresse;
    });
    vue_->setPage(page_);
    texte_->setTextFormat(Qt::PlainText);
    texte_->setAlignment(Qt::AlignCenter);
    texte_->setWordWrap(true);
    addWidget(vue_);
    addWidget(texte_);
    Propose_Actions();
}

/// The view lets go of the page, and the page of the profile, in this order.
Pile::~Pile()
{
    delete vue_;
    delete page_;
}

void Pile::Va(const QUrl &adresse)
{
    setCurrentWidget(vue_);
    url_ = adresse;
    page_->Va(adresse);
}

void Pile::Dit(const QString &texte)
{
    url_.clear();
    texte_->setText(texte);
    setCurrentWidget(texte_);
}

/// The context menu of the engine can save and show sources; this one only moves between the pages seen.
void Pile::Propose_Actions()
{
    const auto propose = [this](QWebEnginePage::WebAction action, const QString &texte, const QKeySequence &touche) {
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
