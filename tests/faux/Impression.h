#pragma once

#include <QByteArray>
#include <QString>

#include <ostream>

// GoogleTest finds these by argument-dependent lookup and shows texts instead of bytes of objects.
inline void PrintTo(const QString &texte, std::ostream *flux)
{
    *flux << '"' << texte.toStdString() << '"';
}
inline void PrintTo(QStringView texte, std::ostream *flux)
{
    *flux << '"' << texte.toString().toStdString() << '"';
}
inline void PrintTo(const QByteArray &octets, std::ostream *flux)
{
    *flux << '"' << octets.toStdString() << '"';
}
