#pragma once

#include <QString>
#include <QUrl>

/// The address that the view is sent to: plain http if the text names no scheme. Invalid for a text that is no address
/// of the web (http or https with a host).
QUrl Adresse_Web(const QString &texte);

/// True for a host of this machine or of the local network: loopback, private and link-local addresses, "localhost",
/// ".local", and names without a dot.
bool Est_Locale(const QUrl &adresse);

/// True if a page may lead to another, by a link or a redirection: an address of the web, and no local one from a page
/// that is not local itself.
bool Page_Permise(const QUrl &cible, const QUrl &page);

/// True if a page may fetch what it is made of: as above, and data that it carries itself.
bool Contenu_Permis(const QUrl &cible, const QUrl &page);
