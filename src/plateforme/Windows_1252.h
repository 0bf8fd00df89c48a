#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QChar>
#include <QString>
#include <QStringView>

/// The one code page of all files. Source of the table: the Unicode Consortium's mapping of code page 1252.
/// The five bytes that the code page leaves undefined (81, 8D, 8F, 90, 9D) stand for the control character of the same
/// number, so that every file comes back byte for byte.

/// Each byte becomes one UTF-16 unit: a column of a file is an index of the text.
QString Decode_1252(QByteArrayView octets);

/// The bytes of a text. Throws Erreur_Execution (Cause::Caractere) for a character outside the table.
QByteArray Encode_1252(QStringView texte);

bool Est_Dans_1252(QChar caractere);

/// Upper case within the code page, one letter for one letter: accented letters too; "ß" and other letters whose
/// capital is not in the table stay.
QString Majuscules_1252(QStringView texte);
QChar Majuscule_1252(QChar caractere);
