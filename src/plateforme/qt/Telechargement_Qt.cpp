#include "plateforme/qt/Telechargement_Qt.h"

#include <QCursor>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

#include <memory>

namespace {

class Proxy_Systeme : public QNetworkProxyFactory {
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &demande) override { return systemProxyForQuery(demande); }
};

class Curseur_Occupe {
public:
    Curseur_Occupe() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~Curseur_Occupe() { QGuiApplication::restoreOverrideCursor(); }
    Curseur_Occupe(const Curseur_Occupe &) = delete;
    Curseur_Occupe &operator=(const Curseur_Occupe &) = delete;
};

bool Est_Http(const QUrl &url)
{
    return (url.scheme() == QStringView(u"http") || url.scheme() == QStringView(u"https")) && !url.host().isEmpty();
}

QNetworkRequest Demande(const QUrl &url)
{
    QNetworkRequest demande(url);
    demande.setRawHeader("User-Agent", "VB OpenUrl");
    // The bytes of the file as the server has them, not a compressed form of them.
    demande.setRawHeader("Accept-Encoding", "identity");
    demande.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    demande.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    demande.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    // Followed one by one here, so that the limits hold over all of them.
    demande.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    return demande;
}

struct Reponse {
    QByteArray corps;
    QUrl suite; ///< where a redirect points to; empty for a final answer
};

/// One request. A connection that breaks off leaves what has come so far.
class Transfert {
public:
    Transfert(QNetworkAccessManager &reseau, const QUrl &url, const Limites_Telechargement &limites)
        : reponse_(reseau.get(Demande(url))),
          limites_(limites)
    {
        silence_.setSingleShot(true);
        silence_.setInterval(limites.silence_ms);
        QObject::connect(&silence_, &QTimer::timeout, &attente_, [this] { Abandonne(); });
        QObject::connect(reponse_.get(), &QNetworkReply::metaDataChanged, &attente_, [this] { silence_.start(); });
        QObject::connect(reponse_.get(), &QNetworkReply::readyRead, &attente_, [this] { Lit(); });
        QObject::connect(reponse_.get(), &QNetworkReply::finished, &attente_, &QEventLoop::quit);
    }

    Reponse Recoit(const QDeadlineTimer &fin)
    {
        QTimer::singleShot(fin.remainingTime(), &attente_, [this] { Abandonne(); });
        silence_.start();
        if (!reponse_->isFinished())
            attente_.exec(QEventLoop::ExcludeUserInputEvents);
        if (!hors_limites_)
            Lit();
        if (hors_limites_)
            return {};
        return {.corps = corps_, .suite = reponse_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl()};
    }

private:
    void Lit()
    {
        silence_.start();
        corps_ += reponse_->readAll();
        if (corps_.size() > limites_.octets)
            Abandonne();
    }

    void Abandonne()
    {
        hors_limites_ = true;
        attente_.quit();
    }

    std::unique_ptr<QNetworkReply> reponse_;
    const Limites_Telechargement &limites_;
    QEventLoop attente_;
    QTimer silence_;
    QByteArray corps_;
    bool hors_limites_ = false;
};

} // namespace

Telechargement_Qt::Telechargement_Qt(const Limites_Telechargement &limites) : limites_(limites) {}

QByteArray Telechargement_Qt::Corps(const QString &adresse)
{
    QNetworkAccessManager reseau;
    reseau.setProxyFactory(new Proxy_Systeme);
    const Curseur_Occupe curseur;
    const QDeadlineTimer fin(limites_.total_ms);
    QUrl url(adresse);
    for (int redirections = 0; redirections <= limites_.redirections && Est_Http(url); ++redirections) {
        const Reponse reponse = Transfert(reseau, url, limites_).Recoit(fin);
        if (reponse.suite.isEmpty())
            return reponse.corps;
        url = url.resolved(reponse.suite);
    }
    return {};
}
