#include "log/Serveurs.h"

#include "log/Champ.h"
#include "log/Poste.h"
#include "plateforme/Reglages.h"

#include <QStringTokenizer>

using namespace Qt::StringLiterals;

namespace {

QString Serveur_Du_Paquet(QStringView cle)
{
    static const QString paires = QStringLiteral(VORLAIN_SERVEURS);
    for (const QStringView paire : QStringTokenizer(paires, u'|')) {
        const qsizetype egal = paire.indexOf(u'=');
        if (paire.first(egal) == cle)
            return paire.sliced(egal + 1).toString();
    }
    return {};
}

} // namespace

QString Serveur(const Poste &poste, QStringView cle)
{
    return Rogne(poste.reglages.Lit(u"Serveurs"_s, cle.toString(), Serveur_Du_Paquet(cle))).toString();
}

QString Adresse_Serveur(const Poste &poste, QStringView cle, QStringView chemin)
{
    const QString hote = Serveur(poste, cle);
    if (hote.isEmpty())
        return {};
    return u"http://" + hote + chemin;
}
