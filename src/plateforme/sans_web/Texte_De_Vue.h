#pragma once

#include <QLabel>
#include <QUrl>

/// What stands in the place of a page: a text that can be copied.
class Texte_De_Vue : public QLabel {
    Q_OBJECT
    /// The page that a view with an engine would show; empty if none was asked for.
    Q_PROPERTY(QUrl url READ url)

public:
    explicit Texte_De_Vue(QWidget *parent);

    void Montre(const QString &texte, const QUrl &url);
    [[nodiscard]] QUrl url() const { return url_; }

private:
    QUrl url_;
};
