#include "programme_au_hasard/Logs_Sur_Disque.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

struct Colonnes {
    qsizetype debut; ///< from 0, in the record
    qsizetype largeur;
    qsizetype blancs; ///< behind it, on screen
};

constexpr Colonnes colonnes[] = {{0, 12, 2}, {13, 2, 1}, {18, 15, 1}, {34, 10, 1}, {44, 8, 2},  {53, 5, 2},
                                 {59, 3, 2}, {63, 7, 2}, {71, 3, 2},  {75, 3, 1},  {79, 30, 2}, {110, 1, 0}};

QString Rangee(const QString &ligne)
{
    const QString pleine = ligne.leftJustified(111);
    QString rangee;
    for (const Colonnes &c : colonnes)
        rangee += pleine.sliced(c.debut, c.largeur) + QString(c.blancs, u' ');
    return rangee;
}

} // namespace

Photo Photographie(const QString &dossier)
{
    Photo photo;
    for (const QString &nom : QDir(dossier).entryList({u"*.log"_s, u"*.bak"_s}, QDir::Files)) {
        QFile fichier(dossier + u'/' + nom);
        photo[nom] = fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("(refused)");
    }
    return photo;
}

std::set<QString> Differents(const Photo &avant, const Photo &apres)
{
    std::set<QString> noms;
    for (const auto &[nom, octets] : avant)
        if (const auto la = apres.find(nom); la == apres.end() || la->second != octets)
            noms.insert(nom);
    for (const auto &[nom, octets] : apres)
        if (!avant.contains(nom))
            noms.insert(nom);
    return noms;
}

QStringList Lignes(const Photo &photo, const QString &nom)
{
    const auto la = photo.find(nom);
    if (la == photo.end() || la->second.isEmpty())
        return {};
    QStringList lignes = QString::fromLatin1(la->second).split(u"\r\n"_s);
    if (lignes.constLast().isEmpty())
        lignes.removeLast();
    return lignes;
}

QStringList Rangees(const Photo &photo, const QString &nom)
{
    QStringList rangees;
    for (const QString &ligne : Lignes(photo, nom))
        rangees += Rangee(ligne);
    return rangees;
}

QString Nom_Du_Log(const QString &station, const QString &code, const QString &annee)
{
    return station + u'_' + code + (code.startsWith(u"Ch_") ? u'_' + annee : QString()) + u".log";
}

QStringList En_Plus(const QStringList &lignes, QStringList autres)
{
    QStringList reste;
    for (const QString &ligne : lignes)
        if (!autres.removeOne(ligne))
            reste += ligne;
    return reste;
}
