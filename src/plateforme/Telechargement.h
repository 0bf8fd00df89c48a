#pragma once

#include <QByteArray>
#include <QString>

/// Fetches whole files over HTTP. The call returns when the fetch has ended: the screens do not answer meanwhile.
class Telechargement {
public:
    virtual ~Telechargement() = default;
    /// The body that the server sent, whatever its status. Empty if there is none: no connection, no host in the
    /// address, a scheme other than http and https, a limit passed.
    [[nodiscard]] virtual QByteArray Corps(const QString &adresse) = 0;
};
