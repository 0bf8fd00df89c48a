#pragma once

#include <QLibrary>
#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <atomic>
#include <vector>

/// A print server on this machine with one printer, "Essai", which answers every job with `etat`. It has a thread of
/// its own: who prints waits for its answers. The calling thread prints there as long as the object lives.
class Serveur_D_Impression : public QThread {
public:
    explicit Serveur_D_Impression(quint16 etat) : etat_(etat)
    {
        start();
        pret_.acquire();
        Adresse("127.0.0.1:" + QByteArray::number(port_));
    }
    ~Serveur_D_Impression() override
    {
        Adresse(QByteArray());
        quit();
        wait();
    }
    /// What was asked for, to be read when nothing is being printed.
    std::vector<QByteArray> demandes;

protected:
    void run() override
    {
        QTcpServer serveur;
        serveur.listen(QHostAddress::LocalHost);
        port_ = serveur.serverPort();
        QObject::connect(&serveur, &QTcpServer::newConnection, &serveur, [&] {
            QTcpSocket *prise = serveur.nextPendingConnection();
            auto *recu = new Recu;
            QObject::connect(prise, &QObject::destroyed, [recu] { delete recu; });
            QObject::connect(prise, &QTcpSocket::readyRead, prise, [=, this] { Lit(*prise, *recu); });
        });
        pret_.release();
        exec();
    }

private:
    struct Recu {
        QByteArray octets;
        bool invite = false;
    };

    static void Adresse(const QByteArray &adresse)
    {
        QLibrary cups(QStringLiteral("cups"), 2);
        if (const auto pose = reinterpret_cast<void (*)(const char *)>(cups.resolve("cupsSetServer")))
            pose(adresse.isEmpty() ? nullptr : adresse.constData());
    }
    static QByteArray Attribut(char genre, const QByteArray &nom, const QByteArray &valeur)
    {
        const auto mesure = [](const QByteArray &texte) -> QByteArray {
            return QByteArray(1, '\0') + char(texte.size()) + texte;
        };
        return genre + mesure(nom) + mesure(valeur);
    }
    [[nodiscard]] QByteArray Imprimantes() const
    {
        return '\x04' + Attribut('\x42', "printer-name", "Essai") +
               Attribut('\x45', "printer-uri-supported",
                        "ipp://127.0.0.1:" + QByteArray::number(port_) + "/printers/Essai") +
               Attribut('\x23', "printer-state", QByteArray("\0\0\0\3", 4)) +
               Attribut('\x23', "printer-type", QByteArray("\0\0\0\4", 4)) +
               Attribut('\x22', "printer-is-accepting-jobs", "\x01");
    }
    /// Answers when a request is there whole.
    void Lit(QTcpSocket &prise, Recu &recu)
    {
        recu.octets += prise.readAll();
        const qsizetype fin = recu.octets.indexOf("\r\n\r\n");
        if (fin < 0)
            return;
        const QByteArray entetes = recu.octets.first(fin).toLower();
        if (entetes.contains("100-continue") && !std::exchange(recu.invite, true))
            prise.write("HTTP/1.1 100 Continue\r\n\r\n");
        const qsizetype place = entetes.indexOf("content-length: ");
        const qsizetype taille = place < 0 ? 0 : entetes.mid(place + 16).split('\r')[0].toLongLong();
        const bool en_morceaux = entetes.contains("chunked");
        if (en_morceaux ? !recu.octets.endsWith("\r\n0\r\n\r\n") : recu.octets.size() < fin + 4 + taille)
            return;
        demandes.push_back(std::exchange(recu, {}).octets);
        Repond(prise, demandes.back().mid(fin + 4), en_morceaux);
    }
    void Repond(QTcpSocket &prise, QByteArray demande, bool en_morceaux) const
    {
        if (en_morceaux)
            demande.remove(0, demande.indexOf("\r\n") + 2);
        if (demande.size() < 8) {
            prise.write("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n");
            return;
        }
        const int operation = demande[3];
        const bool travail = demande[2] == 0 && (operation == 2 || operation == 5 || operation == 6);
        const quint16 etat = travail ? etat_ : 0;
        QByteArray corps = QByteArray("\1\1", 2) + char(etat >> 8) + char(etat & 0xff) + demande.mid(4, 4) + '\x01' +
                           Attribut('\x47', "attributes-charset", "utf-8") +
                           Attribut('\x48', "attributes-natural-language", "fr");
        if (etat != 0)
            corps += Attribut('\x41', "status-message", "la file est fermée");
        corps += travail ? '\x02' + Attribut('\x21', "job-id", QByteArray("\0\0\0\7", 4)) : Imprimantes();
        prise.write("HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nContent-Length: " +
                    QByteArray::number(corps.size() + 1) + "\r\n\r\n" + corps + '\x03');
    }

    quint16 etat_;
    std::atomic<quint16> port_ = 0;
    QSemaphore pret_;
};
