#include "plateforme/qt/Dossier_Disque.h"

#include "plateforme/Erreur_Execution.h"
#include "plateforme/Windows_1252.h"
#include "plateforme/qt/Fichier_Sur.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

Dossier_Disque::Dossier_Disque(QString repertoire) : repertoire_(std::move(repertoire)) {}

QString Dossier_Disque::Chemin(const QString &nom) const
{
    return QDir(repertoire_).filePath(nom);
}

bool Dossier_Disque::S_Ouvre(const QString &nom) const
{
    QFile fichier(Chemin(nom));
    return fichier.open(QIODevice::ReadOnly);
}

bool Dossier_Disque::Existe(const QString &nom) const
{
    const QFileInfo fichier(Chemin(nom));
    return fichier.exists() || fichier.isSymLink();
}

QString Dossier_Disque::Lit(const QString &nom) const
{
    return Decode_1252(Octets(nom));
}

QByteArray Dossier_Disque::Octets(const QString &nom) const
{
    return Lit_Fichier(Chemin(nom));
}

void Dossier_Disque::Remplace(const QString &nom, QStringView texte, const QString &temporaire)
{
    Remplace_Octets(nom, Encode_1252(texte), temporaire);
}

void Dossier_Disque::Remplace_Octets(const QString &nom, QByteArrayView octets, const QString &temporaire)
{
    Remplace_Fichier(Chemin(nom), octets, Chemin(temporaire));
}

void Dossier_Disque::Ajoute(const QString &nom, QStringView ligne)
{
    QByteArray octets = Encode_1252(ligne);
    octets += "\r\n";
    Ajoute_Au_Fichier(Chemin(nom), octets);
}

void Dossier_Disque::Cree_Si_Absent(const QString &nom)
{
    Cree_Fichier_Absent(Chemin(nom));
}

void Dossier_Disque::Supprime(const QString &nom)
{
    QFile fichier(Chemin(nom));
    if (!fichier.remove())
        throw Erreur_Execution(fichier.exists() ? Cause::Fichier_Refuse : Cause::Fichier_Introuvable,
                               u"%1 ne peut pas être supprimé"_s.arg(QDir::toNativeSeparators(fichier.fileName())));
}

void Dossier_Disque::Copie(const QString &source, const QString &cible)
{
    Remplace_Fichier(Chemin(cible), Lit_Fichier(Chemin(source)), Chemin(cible) + u".tmp");
}
