#pragma once

#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

/// A page that can do nothing but be read: its links open in its own view, it opens no window and no box, saves no file
/// and reaches neither files nor the local network.
class Page_Gardee : public QWebEnginePage {
    Q_OBJECT

public:
    Page_Gardee(QWebEngineProfile *profil, QObject *parent);

    /// Sends the view to an address that the program chose itself.
    void Va(const QUrl &adresse);

protected:
    bool acceptNavigationRequest(const QUrl &cible, NavigationType genre, bool page_entiere) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &anciens, const QStringList &genres) override;
    void javaScriptAlert(const QUrl &origine, const QString &texte) override;
    bool javaScriptConfirm(const QUrl &origine, const QString &texte) override;
    bool javaScriptPrompt(const QUrl &origine, const QString &texte, const QString &defaut, QString *reponse) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel niveau, const QString &texte, int ligne,
                                  const QString &source) override;

private:
    /// Of the page in view, or of the one that is on its way: what a redirection comes from.
    QUrl origine_;
    /// The program's own address has not been asked for yet.
    bool choisie_ = false;
};

/// Keeps the parts of a page (pictures, scripts, frames) from what the page itself may not reach.
class Garde_Contenu : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void interceptRequest(QWebEngineUrlRequestInfo &demande) override;
};
