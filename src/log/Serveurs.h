#pragma once

#include <QString>
#include <QStringView>

struct Poste;

/// The host, or host:port, of a key ("Programme", "DOHF", "PC", "Tours", "DIFM", "Cluster", "Reglement <code>"): from
/// the settings, section "Serveurs", else as the package was built. Empty if nobody named one.
QString Serveur(const Poste &poste, QStringView cle);

/// The plain http address of `chemin` ("/...", taken as it is) on the host of a key; empty without a host.
QString Adresse_Serveur(const Poste &poste, QStringView cle, QStringView chemin);
