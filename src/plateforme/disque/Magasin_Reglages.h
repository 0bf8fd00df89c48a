#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

class QSettings;

/// The text under a "section/key".
QString Texte_Reglage(const QSettings &magasin, const QString &cle, const QString &defaut);

/// A whole settings store: "section/key" and its text.
using Contenu_Reglages = QMap<QString, QString>;

/// The bytes of a store as QSettings understands them: its own form of INI.
Contenu_Reglages Decode_Reglages(const QByteArray &octets);

/// The bytes of a store, in the form that QSettings gives them. Throws Erreur_Execution if they would not be understood
/// again as they were meant.
QByteArray Encode_Reglages(const Contenu_Reglages &contenu);
