#include "plateforme/web/Adresses_Permises.h"

#include <QHostAddress>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool Est_Du_Web(const QUrl &adresse)
{
    return adresse.isValid() && !adresse.host().isEmpty() &&
           (adresse.scheme() == u"http" || adresse.scheme() == u"https");
}

bool Est_Adresse_Locale(const QHostAddress &adresse)
{
    bool est_v4 = false;
    // An IPv4 address can be dressed as an IPv6 one.
    const QHostAddress v4(adresse.toIPv4Address(&est_v4));
    const QHostAddress &vraie = est_v4 ? v4 : adresse;
    if (vraie.isLoopback() || vraie.isLinkLocal() || vraie.isSiteLocal() || vraie.isUniqueLocalUnicast() ||
        vraie.isBroadcast() || vraie.isMulticast() || vraie == QHostAddress::AnyIPv6)
        return true;
    const auto reseaux = {u"0.0.0.0/8"_s, u"10.0.0.0/8"_s, u"100.64.0.0/10"_s, u"172.16.0.0/12"_s, u"192.168.0.0/16"_s};
    return std::any_of(reseaux.begin(), reseaux.end(),
                       [&](const QString &reseau) { return vraie.isInSubnet(QHostAddress::parseSubnet(reseau)); });
}

bool Est_Nom_Local(QStringView nom)
{
    return (!nom.isEmpty() && !nom.contains(u'.')) || nom.endsWith(u".localhost") || nom.endsWith(u".local");
}

bool Reste_Dehors(const QUrl &cible, const QUrl &page)
{
    return !Est_Locale(cible) || Est_Locale(page);
}

} // namespace

QUrl Adresse_Web(const QString &texte)
{
    const QUrl telle_quelle(texte);
    if (Est_Du_Web(telle_quelle))
        return telle_quelle;
    if (texte.contains(u"://"))
        return {};
    const QUrl completee(u"http://"_s + texte);
    return Est_Du_Web(completee) ? completee : QUrl();
}

bool Est_Locale(const QUrl &adresse)
{
    QString hote = adresse.host().toLower();
    while (hote.endsWith(u'.'))
        hote.chop(1);
    QHostAddress ip;
    return ip.setAddress(hote) ? Est_Adresse_Locale(ip) : Est_Nom_Local(hote);
}

bool Page_Permise(const QUrl &cible, const QUrl &page)
{
    return Est_Du_Web(cible) && Reste_Dehors(cible, page);
}

bool Contenu_Permis(const QUrl &cible, const QUrl &page)
{
    const QString nature = cible.scheme();
    if (nature == u"data" || nature == u"blob")
        return true;
    const bool prise = nature == u"ws" || nature == u"wss";
    return (prise || Est_Du_Web(cible)) && Reste_Dehors(cible, page);
}
