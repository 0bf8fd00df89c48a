#include "plateforme/qt/Reglages_Qt.h"

#include "plateforme/Erreur_Execution.h"

using namespace Qt::StringLiterals;

namespace {

QString Cle(const QString &section, const QString &cle)
{
    return section + u'/' + cle;
}

QString Texte(const QSettings &magasin, const QString &cle, const QString &defaut)
{
    const QVariant valeur = magasin.value(cle);
    if (!valeur.isValid())
        return defaut;
    // A value written by hand with a bare comma is read as a list.
    if (valeur.metaType() == QMetaType::fromType<QStringList>())
        return valeur.toStringList().join(u", "_s);
    return valeur.toString();
}

} // namespace

Reglages_Qt::Reglages_Qt() : vorlain_(u"Vorlain"_s, u"Vorlain"_s), trelune_(u"Trelune"_s, u"Trelune"_s) {}

QString Reglages_Qt::Lit(const QString &section, const QString &cle, const QString &defaut) const
{
    return Texte(vorlain_, Cle(section, cle), defaut);
}

void Reglages_Qt::Ecrit(const QString &section, const QString &cle, const QString &valeur)
{
    vorlain_.setValue(Cle(section, cle), valeur);
    vorlain_.sync();
    if (vorlain_.status() != QSettings::NoError)
        throw Erreur_Execution(Cause::Fichier_Refuse,
                               u"les réglages ne peuvent pas être enregistrés dans %1"_s.arg(vorlain_.fileName()));
}

QString Reglages_Qt::Lit_Trelune(const QString &section, const QString &cle, const QString &defaut) const
{
    return Texte(trelune_, Cle(section, cle), defaut);
}
