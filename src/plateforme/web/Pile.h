#pragma once

#include <QStackedWidget>
#include <QUrl>

class Page_Gardee;
class QLabel;
class QWebEngineProfile;
class QWebEngineView;

/// The page of a view over its plain text. Nothing of a visit is kept on the disk.
class Pile : public QStackedWidget {
    Q_OBJECT
    /// The page in view, or on its way there; empty while the view shows a text.
    Q_PROPERTY(QUrl url READ url)

public:
    explicit Pile(QWidget *parent);
    ~Pile() override;

    void Va(const QUrl &adresse);
    void Dit(const QString &texte);
    [[nodiscard]] QUrl url() const { return url_; }

private:
    void Propose_Actions();

    QWebEngineProfile *profil_;
    Page_Gardee *page_;
    QWebEngineView *vue_;
    QLabel *texte_;
    QUrl url_;
};
