#include "listes/Serveurs.h"

#include "log/Champ.h"
#include "log/Poste.h"
#include "plateforme/Reglages.h"

using namespace Qt::StringLiterals;

namespace {

struct Reglage_Hote {
    QStringView cle;
    QStringView defaut; ///< of this build
};

Reglage_Hote Reglage(Serveur serveur)
{
    switch (serveur) {
    case Serveur::DOHF:
        return {u"DOHF", QStringView(u"" VORLAIN_SERVEUR_DOHF)};
    case Serveur::PC:
        return {u"PC", QStringView(u"" VORLAIN_SERVEUR_PC)};
    case Serveur::Programme:
        break;
    }
    return {u"Programme", QStringView(u"" VORLAIN_SERVEUR_PROGRAMME)};
}

} // namespace

QString Adresse(const Poste &poste, Serveur serveur, QStringView chemin)
{
    const Reglage_Hote reglage = Reglage(serveur);
    const QString texte = poste.reglages.Lit(u"Serveurs"_s, reglage.cle.toString(), reglage.defaut.toString());
    const QStringView hote = Rogne(texte);
    if (hote.isEmpty())
        return {};
    return u"http://" + hote + chemin;
}
