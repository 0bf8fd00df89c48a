#include "plateforme/disque/Fichier_Sur.h"

#include "plateforme/disque/Descripteur.h"
#include "plateforme/disque/Temporaire.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <climits>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// What the system knows of a name; nullopt if nothing bears it.
std::optional<struct stat> Etat_De(const QString &chemin, const QString &nom)
{
    struct stat etat {};
    if (::lstat(QFile::encodeName(chemin).constData(), &etat) == 0)
        return etat;
    if (errno == ENOENT)
        return std::nullopt;
    throw Erreur_Systeme(nom, errno);
}

QString Cible_Du_Lien(const QString &lien, const QString &nom)
{
    QByteArray octets(PATH_MAX, Qt::Uninitialized);
    const ssize_t taille = ::readlink(QFile::encodeName(lien).constData(), octets.data(), PATH_MAX);
    if (taille < 0)
        throw Erreur_Systeme(nom, errno);
    octets.truncate(taille);
    return QDir(QFileInfo(lien).path()).filePath(QFile::decodeName(octets));
}

struct Cible {
    QString chemin; ///< behind all links
    std::optional<struct stat> etat;
};

/// A log that is a link keeps being one: what it points to is replaced, or made.
Cible Cible_Reelle(const QString &nom)
{
    constexpr int liens_au_plus = 40;
    QString chemin = nom;
    for (int liens = 0; liens < liens_au_plus; ++liens) {
        const std::optional<struct stat> etat = Etat_De(chemin, nom);
        if (!etat || !S_ISLNK(etat->st_mode))
            return {.chemin = chemin, .etat = etat};
        chemin = Cible_Du_Lien(chemin, nom);
    }
    throw Erreur_Systeme(nom, ELOOP);
}

/// A file that may not be written is not replaced behind its owner's back.
void Exige_Remplacable(const Cible &cible, const QString &nom)
{
    if (!cible.etat)
        return;
    if (!S_ISREG(cible.etat->st_mode))
        throw Erreur_Systeme(nom, S_ISDIR(cible.etat->st_mode) ? EISDIR : pas_un_fichier);
    if (::access(QFile::encodeName(cible.chemin).constData(), W_OK) != 0)
        throw Erreur_Systeme(nom, errno);
}

/// Opens a log for the append; `nouveau` if it was made for it.
struct Ouverture_Ajout {
    int numero;
    bool nouveau;
};

Ouverture_Ajout Ouvre_Pour_Ajouter(const QString &chemin)
{
    const int numero = Descripteur::Ouvre(chemin, O_RDWR | O_APPEND);
    if (numero >= 0)
        return {.numero = numero, .nouveau = false};
    if (errno != ENOENT)
        throw Erreur_Systeme(chemin, errno);
    const QString reel = Cible_Reelle(chemin).chemin;
    const int neuf = Descripteur::Ouvre(reel, O_RDWR | O_APPEND | O_CREAT | O_EXCL);
    if (neuf < 0)
        throw Erreur_Systeme(chemin, errno);
    return {.numero = neuf, .nouveau = true};
}

/// A last character that cannot be read is a failure: two lines might join.
bool Finit_Sans_Ligne(const Descripteur &fichier, const QString &chemin, off_t taille)
{
    char dernier = '\n';
    if (taille > 0 && Sans_Interruption([&] { return ::pread(fichier.Numero(), &dernier, 1, taille - 1); }) != 1)
        throw Erreur_Systeme(chemin, errno);
    return dernier != '\n';
}

/// Takes a line away that did not get whole to the disk. False if the disk refuses that too.
bool Reprend(const Descripteur &fichier, off_t taille)
{
    return ::ftruncate(fichier.Numero(), taille) == 0;
}

} // namespace

/// Some file systems refuse to sync a folder; the rename is then as safe as they make it.
void Synchronise_Dossier(const QString &chemin)
{
    const int numero = Descripteur::Ouvre(QFileInfo(chemin).absolutePath(), O_RDONLY | O_DIRECTORY);
    if (numero < 0)
        return;
    Sans_Interruption([&] { return ::fsync(numero); });
    ::close(numero);
}

void Remplace_Fichier(const QString &cible, QByteArrayView octets, const QString &radical, mode_t droits)
{
    QString reelle = cible;
    try {
        const Cible trouvee = Cible_Reelle(cible);
        reelle = trouvee.chemin;
        Exige_Remplacable(trouvee, cible);
        Temporaire temporaire(reelle, radical, cible, trouvee.etat ? 0600 : droits);
        temporaire.Remplit(octets, trouvee.etat);
        temporaire.Devient(reelle);
    } catch (const Erreur_Systeme &erreur) {
        throw Erreur_Execution(erreur.La_Cause(), u"%1 n'a pas été modifié : %2"_s.arg(QDir::toNativeSeparators(cible),
                                                                                       Raison(erreur.Numero())));
    }
    Synchronise_Dossier(reelle);
}

void Ecrit_Document(const QString &cible, QByteArrayView octets)
{
    struct stat etat {};
    const bool existe = ::stat(QFile::encodeName(cible).constData(), &etat) == 0;
    if (!existe || S_ISREG(etat.st_mode) || S_ISDIR(etat.st_mode))
        return Remplace_Fichier(cible, octets, cible + u".tmp");
    Descripteur peripherique(cible, O_WRONLY);
    peripherique.Ecrit(octets);
    peripherique.Ferme();
}

void Ajoute_Au_Fichier(const QString &chemin, QByteArrayView ligne)
{
    const Ouverture_Ajout ouverture = Ouvre_Pour_Ajouter(chemin);
    const Descripteur fichier(ouverture.numero, chemin);
    fichier.Exige_Un_Fichier();
    const off_t taille = fichier.Etat().st_size;
    QByteArray octets;
    if (Finit_Sans_Ligne(fichier, chemin, taille))
        octets += "\r\n";
    octets += ligne;
    // What bears a second name is a copy that must stay as it is.
    if (fichier.Etat().st_nlink > 1)
        return Remplace_Fichier(chemin, QByteArray(fichier.Lit_Tout() + octets), chemin + u".tmp");
    try {
        fichier.Ecrit(octets);
        fichier.Synchronise();
    } catch (const Erreur_Systeme &erreur) {
        const bool reprise = Reprend(fichier, taille);
        if (ouverture.nouveau && reprise)
            ::unlink(QFile::encodeName(Cible_Reelle(chemin).chemin).constData());
        if (reprise)
            throw;
        throw Erreur_Execution(erreur.La_Cause(),
                               erreur.Texte() + u". La ligne est peut-être restée dans le fichier : vérifiez-le");
    }
    if (ouverture.nouveau)
        Synchronise_Dossier(chemin);
}

void Cree_Fichier_Absent(const QString &chemin)
{
    const int numero = Descripteur::Ouvre(chemin, O_WRONLY | O_CREAT | O_EXCL);
    if (numero < 0) {
        if (errno == EEXIST)
            return;
        throw Erreur_Systeme(chemin, errno);
    }
    ::close(numero);
    Synchronise_Dossier(chemin);
}

void Supprime_Fichier(const QString &chemin)
{
    if (::unlink(QFile::encodeName(chemin).constData()) != 0)
        throw Erreur_Systeme(chemin, errno);
}

QByteArray Lit_Fichier(const QString &chemin)
{
    const Descripteur fichier(chemin, O_RDONLY);
    fichier.Exige_Un_Fichier();
    return fichier.Lit_Tout();
}

bool Existe_Fichier(const QString &chemin)
{
    return Etat_De(chemin, chemin).has_value();
}

void Cree_Repertoire(const QString &chemin)
{
    if (::mkdir(QFile::encodeName(chemin).constData(), 0777) == 0 || errno == EEXIST)
        return;
    const QString dessus = QFileInfo(chemin).absolutePath();
    if (errno != ENOENT || dessus == chemin)
        throw Erreur_Systeme(chemin, errno);
    Cree_Repertoire(dessus);
    if (::mkdir(QFile::encodeName(chemin).constData(), 0777) != 0 && errno != EEXIST)
        throw Erreur_Systeme(chemin, errno);
}
