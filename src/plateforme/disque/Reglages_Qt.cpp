#include "plateforme/disque/Reglages_Qt.h"

#include "plateforme/Erreur_Execution.h"
#include "plateforme/disque/Fichier_Sur.h"
#include "plateforme/disque/Verrou.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Only its owner reads a settings store.
constexpr mode_t droits_du_magasin = 0600;

QString Cle(const QString &section, const QString &cle)
{
    return section + u'/' + cle;
}

Contenu_Reglages Lit_Magasin(const QString &chemin)
{
    try {
        return Existe_Fichier(chemin) ? Decode_Reglages(Lit_Fichier(chemin)) : Contenu_Reglages();
    } catch (const Erreur_Execution &erreur) {
        throw Erreur_Execution(erreur.La_Cause(), u"les réglages ne peuvent pas être lus : %1"_s.arg(erreur.Texte()));
    }
}

void Ecrit_Magasin(const QString &chemin, const Contenu_Reglages &contenu)
{
    try {
        Cree_Repertoire(QFileInfo(chemin).absolutePath());
        Remplace_Fichier(chemin, Encode_Reglages(contenu), chemin + u".tmp", droits_du_magasin);
    } catch (const Erreur_Execution &erreur) {
        throw Erreur_Execution(erreur.La_Cause(),
                               u"les réglages ne peuvent pas être enregistrés : %1"_s.arg(erreur.Texte()));
    }
}

} // namespace

Reglages_Qt::Reglages_Qt()
    : vorlain_(u"Vorlain"_s, u"Vorlain"_s),
      trelune_(u"Trelune"_s, u"Trelune"_s),
      contenu_(Lit_Magasin(vorlain_.fileName()))
{
    const QString repertoire = QFileInfo(vorlain_.fileName()).absolutePath();
    const Verrou seul = Verrouille_Repertoire(repertoire);
    if (seul.L_Etat() == Verrou::Etat::Pris)
        Retire_Restes(repertoire);
}

QString Reglages_Qt::Lit(const QString &section, const QString &cle, const QString &defaut) const
{
    const auto place = contenu_.constFind(Cle(section, cle));
    return place == contenu_.constEnd() ? Texte_Reglage(vorlain_, Cle(section, cle), defaut) : *place;
}

void Reglages_Qt::Ecrit(const QString &section, const QString &cle, const QString &valeur)
{
    // A program on another folder of logs has the same settings.
    const Verrou seul = Verrouille_Repertoire(QFileInfo(vorlain_.fileName()).absolutePath());
    Contenu_Reglages contenu = Lit_Magasin(vorlain_.fileName());
    const auto place = contenu.constFind(Cle(section, cle));
    if (place == contenu.constEnd() || *place != valeur) {
        contenu[Cle(section, cle)] = valeur;
        Ecrit_Magasin(vorlain_.fileName(), contenu);
    }
    contenu_ = contenu;
}

QString Reglages_Qt::Lit_Trelune(const QString &section, const QString &cle, const QString &defaut) const
{
    return Texte_Reglage(trelune_, Cle(section, cle), defaut);
}
