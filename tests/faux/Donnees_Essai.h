#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <stdexcept>

// The files that lie beside the tests of a folder.

inline QByteArray Octets_Du_Fichier(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw std::runtime_error("test data not there: " + chemin.toStdString());
    return fichier.readAll();
}

/// The bytes of an input in donnees/.
inline QByteArray Donnee(const QString &nom)
{
    return Octets_Du_Fichier(QStringLiteral(DONNEES_ESSAI "/donnees/") + nom);
}

/// The bytes of a golden file in attendus/.
inline QByteArray Attendu(const QString &nom)
{
    return Octets_Du_Fichier(QStringLiteral(DONNEES_ESSAI "/attendus/") + nom);
}
