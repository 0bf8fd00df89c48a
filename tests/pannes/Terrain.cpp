#include "Terrain.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

QString Modele()
{
    const QString memoire = u"/dev/shm"_s;
    const QString base = QFileInfo(memoire).isWritable() ? memoire : QDir::tempPath();
    return base + u"/vorlain-pannes-XXXXXX";
}

QByteArray Octets(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw std::runtime_error("not readable: " + chemin.toStdString());
    return fichier.readAll();
}

} // namespace

Terrain::Terrain() : base_(Modele()) {}

QByteArray Terrain::Surveilles() const
{
    return QFile::encodeName(Donnees() + u':' + Reglages() + u':' + Sauvegarde());
}

void Terrain::Pose(const QString &chemin, const QByteArray &octets) const
{
    const QString entier = base_.filePath(chemin);
    QDir().mkpath(QFileInfo(entier).path());
    QFile fichier(entier);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        throw std::runtime_error("not writable: " + chemin.toStdString());
}

Releve Terrain::Lit() const
{
    Releve releve;
    QDirIterator noms(base_.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (noms.hasNext()) {
        const QFileInfo fiche(noms.next());
        const QString nom = fiche.filePath().mid(base_.path().size() + 1);
        if (fiche.isDir())
            releve[nom + u'/'];
        else
            releve[nom] = Octets(fiche.filePath());
    }
    return releve;
}

void Terrain::Remet(const Releve &voulu) const
{
    const Releve present = Lit();
    for (auto reste = present.rbegin(); reste != present.rend(); ++reste)
        if (!voulu.contains(reste->first)) {
            const QString chemin = base_.filePath(reste->first);
            reste->first.endsWith(u'/') ? QDir().rmdir(chemin) : QFile::remove(chemin);
        }
    for (const auto &[nom, octets] : voulu) {
        const auto place = present.find(nom);
        if (nom.endsWith(u'/'))
            QDir().mkpath(base_.filePath(nom));
        else if (place == present.end() || place->second != octets)
            Pose(nom, octets);
    }
}
