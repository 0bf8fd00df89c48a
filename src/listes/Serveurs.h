#pragma once

#include <QString>

struct Poste;

/// The servers that lists come from.
enum class Serveur { Programme, DOHF, PC };

/// The address of a path on a server, whose host (with its port, if it has one of its own) is a setting of section
/// "Serveurs" under the server's name. Empty if no host is set.
QString Adresse(const Poste &poste, Serveur serveur, QStringView chemin);
