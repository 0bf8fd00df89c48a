#include "plateforme/disque/Magasin_Reglages.h"

#include "plateforme/disque/Descripteur.h"

#include <QSettings>

#include <sys/mman.h>

using namespace Qt::StringLiterals;

namespace {

/// QSettings keeps what it read by the file's name, and reads again only where size or date differ: each file of ours
/// gets a date of its own, long past.
void Date_Unique(const Descripteur &fichier)
{
    static time_t seconde = 0;
    const timespec date{++seconde, 0};
    const timespec dates[2] = {date, date};
    ::futimens(fichier.Numero(), dates);
}

QByteArray Cle_Codee(QStringView texte)
{
    QByteArray codee;
    for (const QChar caractere : texte) {
        const char16_t valeur = caractere.unicode();
        if (valeur == u'/')
            codee += '\\';
        else if (valeur < 0x80 && (caractere.isLetterOrNumber() || QStringView(u"_-.").contains(caractere)))
            codee += static_cast<char>(valeur);
        else if (valeur <= 0xFF)
            codee += '%' + QByteArray::number(valeur, 16).rightJustified(2, '0').toUpper();
        else
            codee += "%U" + QByteArray::number(valeur, 16).rightJustified(4, '0').toUpper();
    }
    return codee;
}

bool Est_Hexadecimal(QChar caractere)
{
    return QStringView(u"0123456789abcdefABCDEF").contains(caractere);
}

QByteArray Valeur_Codee(const QString &texte)
{
    QString codee;
    bool apres_un_code = false;
    // A first "@" would announce a value of another type.
    const QString protege = texte.startsWith(u'@') ? QString(u'@' + texte) : texte;
    for (const QChar caractere : protege) {
        const bool commande = caractere < u' ';
        if (commande || (apres_un_code && Est_Hexadecimal(caractere)))
            codee += u"\\x" + QString::number(caractere.unicode(), 16);
        else if (caractere == u'"' || caractere == u'\\')
            codee += u'\\' + QString(caractere);
        else
            codee += caractere;
        apres_un_code = commande || (apres_un_code && Est_Hexadecimal(caractere));
    }
    const bool nue = !codee.startsWith(u' ') && !codee.endsWith(u' ') && !codee.contains(u';') &&
                     !codee.contains(u',') && !codee.contains(u'=');
    return (nue ? codee : u'"' + codee + u'"').toUtf8();
}

QByteArray Entete(const QString &section)
{
    if (section.isEmpty())
        return "[General]\n";
    // The bare word stands for the keys without a section.
    const bool reservee = section.compare(u"general", Qt::CaseInsensitive) == 0;
    return (reservee ? "[%" : "[") + Cle_Codee(section) + "]\n";
}

} // namespace

QString Texte_Reglage(const QSettings &magasin, const QString &cle, const QString &defaut)
{
    const QVariant valeur = magasin.value(cle);
    if (!valeur.isValid())
        return defaut;
    // A value written by hand with a bare comma is read as a list.
    if (valeur.metaType() == QMetaType::fromType<QStringList>())
        return valeur.toStringList().join(u", "_s);
    return valeur.toString();
}

Contenu_Reglages Decode_Reglages(const QByteArray &octets)
{
    // In memory: QSettings takes a disk that stops answering for a shorter store.
    const Descripteur fichier(::memfd_create("reglages", MFD_CLOEXEC), u"les réglages"_s);
    if (fichier.Numero() < 0)
        throw Erreur_Systeme(u"les réglages"_s, errno);
    fichier.Ecrit(octets);
    Date_Unique(fichier);
    const QSettings magasin(u"/proc/self/fd/%1"_s.arg(fichier.Numero()), QSettings::NativeFormat);
    Contenu_Reglages contenu;
    for (const QString &cle : magasin.allKeys())
        contenu[cle] = Texte_Reglage(magasin, cle, {});
    return contenu;
}

QByteArray Encode_Reglages(const Contenu_Reglages &contenu)
{
    QMap<QString, QByteArray> sections;
    for (auto place = contenu.begin(); place != contenu.end(); ++place) {
        const qsizetype barre = place.key().indexOf(u'/');
        sections[place.key().left(qMax(qsizetype{0}, barre))] +=
            Cle_Codee(QStringView(place.key()).sliced(barre + 1)) + '=' + Valeur_Codee(place.value()) + '\n';
    }
    QByteArray octets;
    for (auto section = sections.begin(); section != sections.end(); ++section)
        octets += (octets.isEmpty() ? "" : "\n") + Entete(section.key()) + section.value();
    if (Decode_Reglages(octets) != contenu)
        throw Erreur_Execution(Cause::Fichier_Refuse, u"ils ne seraient pas relus comme ils sont"_s);
    return octets;
}
