#include "plateforme/disque/Dossier_Disque.h"

#include "plateforme/Erreur_Execution.h"
#include "plateforme/Windows_1252.h"
#include "plateforme/disque/Copie_A_Part.h"
#include "plateforme/disque/Fichier_Sur.h"

#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The bytes of a text that goes to the file `chemin`.
QByteArray Encode(const QString &chemin, QStringView texte)
{
    try {
        return Encode_1252(texte);
    } catch (const Erreur_Execution &erreur) {
        // The code page knows no files: the name of the log is told here.
        throw Erreur_Execution(erreur.La_Cause(),
                               u"%1 n'a pas été modifié : %2"_s.arg(QDir::toNativeSeparators(chemin), erreur.Texte()));
    }
}

} // namespace

Dossier_Disque::Dossier_Disque(QString repertoire) : repertoire_(std::move(repertoire)) {}

QString Dossier_Disque::Chemin(const QString &nom) const
{
    return QDir(repertoire_).filePath(nom);
}

bool Dossier_Disque::Existe(const QString &nom) const
{
    return Existe_Fichier(Chemin(nom));
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
    Remplace_Octets(nom, Encode(Chemin(nom), texte), temporaire);
}

void Dossier_Disque::Remplace_Octets(const QString &nom, QByteArrayView octets, const QString &temporaire)
{
    Remplace_Fichier(Chemin(nom), octets, temporaire);
}

void Dossier_Disque::Ajoute(const QString &nom, QStringView ligne)
{
    const QString cible = Chemin(nom);
    QByteArray octets = Encode(cible, ligne);
    octets += "\r\n";
    Ajoute_Au_Fichier(cible, octets);
}

void Dossier_Disque::Cree_Si_Absent(const QString &nom)
{
    Cree_Fichier_Absent(Chemin(nom));
}

void Dossier_Disque::Supprime(const QString &nom)
{
    Supprime_Fichier(Chemin(nom));
}

void Dossier_Disque::Copie(const QString &source, const QString &cible)
{
    Remplace_Fichier(Chemin(cible), Lit_Fichier(Chemin(source)), cible + u".tmp");
}

std::vector<Fichier_Present> Dossier_Disque::Fichiers(const QString &repertoire) const
{
    return Fichiers_Du_Repertoire(Chemin(repertoire));
}

Issue_Copie Dossier_Disque::Garde(const QString &source, const QString &cible, Avenir avenir)
{
    return Garde_Fichier(Chemin(source), Chemin(cible), avenir);
}

void Dossier_Disque::Separe(const QString &copie)
{
    Separe_Fichier(Chemin(copie));
}
