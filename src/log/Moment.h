#pragma once

#include <QDate>
#include <QString>

#include <optional>

/// The four-digit year of a two-digit one, 0 to 99: 50 to 99 are 19xx, 00 to 49 are 20xx.
constexpr int Annee_Entiere(int annee)
{
    return annee >= 50 ? 1900 + annee : 2000 + annee;
}

/// "AAAAMMJJHH:MM" of a Ligne_Log, which orders as text; nullopt if its date or time has not the given form.
/// No calendar check: 31/02/15 has its place.
std::optional<QString> Moment(QStringView ligne_log);

/// JJ_MM_AA, the date part of file names.
QString Date_De_Fichier(QDate date);
/// JJ/MM/AAAA, the date as the settings hold it.
QString Date_De_Reglage(QDate date);
/// The date of a JJ/MM/AAAA text; nullopt if it is none.
std::optional<QDate> Lit_Date_De_Reglage(const QString &texte);
