#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

#include <functional>
#include <map>
#include <stdexcept>
#include <vector>

/// A real HTTP server on 127.0.0.1 that plays a prepared scene for each path and records what it was asked. A path
/// without a scene closes the connection.
class Serveur_Http {
public:
    using Scene = std::function<void(QTcpSocket &)>;

    Serveur_Http()
    {
        // The machine's proxy has no way to this server.
        for (const char *variable : {"http_proxy", "HTTP_PROXY", "all_proxy", "ALL_PROXY"})
            qunsetenv(variable);
        if (!serveur_.listen(QHostAddress::LocalHost))
            throw std::runtime_error("no port to listen on");
        QObject::connect(&serveur_, &QTcpServer::newConnection, &serveur_, [this] {
            QTcpSocket *prise = serveur_.nextPendingConnection();
            QObject::connect(prise, &QTcpSocket::readyRead, prise, [this, prise] { Recoit(*prise); });
        });
    }

    [[nodiscard]] QString Hote() const { return QStringLiteral("127.0.0.1:%1").arg(serveur_.serverPort()); }
    [[nodiscard]] QString Adresse(const QString &chemin) const { return QStringLiteral("http://") + Hote() + chemin; }

    void Joue(const QString &chemin, Scene scene) { scenes_[chemin.toLatin1()] = std::move(scene); }
    /// A whole answer with its length, then the end of the connection.
    void Sert(const QString &chemin, const QByteArray &corps, const QByteArray &statut = "200 OK")
    {
        Joue(chemin, [=](QTcpSocket &prise) {
            prise.write("HTTP/1.1 " + statut + "\r\nContent-Length: " + QByteArray::number(corps.size()) +
                        "\r\nConnection: close\r\n\r\n" + corps);
            prise.disconnectFromHost();
        });
    }
    void Renvoie(const QString &chemin, const QString &vers, const QByteArray &statut = "302 Found")
    {
        Joue(chemin, [=](QTcpSocket &prise) {
            prise.write("HTTP/1.1 " + statut + "\r\nLocation: " + vers.toLatin1() +
                        "\r\nContent-Length: 5\r\nConnection: close\r\n\r\nmoved");
            prise.disconnectFromHost();
        });
    }

    /// The heads of the requests, in their order.
    std::vector<QByteArray> demandes;

private:
    void Recoit(QTcpSocket &prise)
    {
        const QByteArray demande = prise.readAll();
        if (!demande.startsWith("GET "))
            return;
        demandes.push_back(demande);
        const auto scene = scenes_.find(demande.split(' ').at(1));
        if (scene == scenes_.end())
            prise.abort();
        else
            scene->second(prise);
    }

    QTcpServer serveur_;
    std::map<QByteArray, Scene> scenes_;
};
