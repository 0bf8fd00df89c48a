#include "plateforme/disque/Copie_A_Part.h"

#include "plateforme/disque/Descripteur.h"
#include "plateforme/disque/Fichier_Sur.h"

#include <QFile>
#include <QFileInfo>

#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <unistd.h>

namespace {

/// What stands behind the links of a name; nullopt if nothing does.
std::optional<struct stat> Etat_Reel(const QString &chemin)
{
    struct stat etat {};
    if (::stat(QFile::encodeName(chemin).constData(), &etat) == 0)
        return etat;
    if (errno == ENOENT)
        return std::nullopt;
    throw Erreur_Systeme(chemin, errno);
}

void Exige_Le_Repertoire(const QString &repertoire)
{
    if (Existe_Fichier(repertoire))
        return;
    Cree_Repertoire(repertoire);
    Synchronise_Dossier(repertoire);
}

/// False where the file system, or a right, allows no second name.
bool Lie(const QString &source, const QString &cible)
{
    if (::linkat(AT_FDCWD, QFile::encodeName(source).constData(), AT_FDCWD, QFile::encodeName(cible).constData(),
                 AT_SYMLINK_FOLLOW) != 0)
        return false;
    Synchronise_Dossier(cible);
    return true;
}

} // namespace

Issue_Copie Garde_Fichier(const QString &source, const QString &cible, Avenir avenir)
{
    const std::optional<struct stat> etat = Etat_Reel(source);
    if (!etat || !S_ISREG(etat->st_mode))
        return Issue_Copie::Sans_Objet;
    Exige_Le_Repertoire(QFileInfo(cible).absolutePath());
    if (Existe_Fichier(cible))
        return Issue_Copie::Nom_Pris;
    if (avenir == Avenir::Modifie || !Lie(source, cible))
        Remplace_Fichier(cible, Lit_Fichier(source), cible + u".tmp", etat->st_mode & 0777);
    return Issue_Copie::Faite;
}

void Separe_Fichier(const QString &copie)
{
    const std::optional<struct stat> etat = Etat_Reel(copie);
    // The only name of its bytes is never removed: a disk may refuse a rename that it has done.
    if (etat && etat->st_nlink > 1)
        Supprime_Fichier(copie);
}

std::vector<Fichier_Present> Fichiers_Du_Repertoire(const QString &repertoire)
{
    const std::unique_ptr<DIR, decltype([](DIR *ouvert) { ::closedir(ouvert); })> dossier(
        ::opendir(QFile::encodeName(repertoire).constData()));
    if (!dossier && errno == ENOENT)
        return {};
    if (!dossier)
        throw Erreur_Systeme(repertoire, errno);
    std::vector<Fichier_Present> fichiers;
    while (const dirent *entree = ::readdir(dossier.get())) {
        struct stat etat {};
        if (::fstatat(::dirfd(dossier.get()), entree->d_name, &etat, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(etat.st_mode))
            fichiers.push_back({QFile::decodeName(entree->d_name), etat.st_size});
    }
    return fichiers;
}
