#include "plateforme/disque/Erreur_Systeme.h"

#include <QDir>

#include <cerrno>

using namespace Qt::StringLiterals;

const int pas_un_fichier = ENODEV;

QString Raison(int numero)
{
    switch (numero) {
    case ENOENT:
        return u"fichier introuvable"_s;
    case ENOSPC:
    case EDQUOT:
        return u"le disque est plein"_s;
    case EACCES:
    case EPERM:
        return u"accès refusé"_s;
    case EROFS:
        return u"le disque est protégé en écriture"_s;
    case EISDIR:
        return u"c'est un répertoire"_s;
    case ENOTDIR:
        return u"une partie du chemin n'est pas un répertoire"_s;
    case ENAMETOOLONG:
        return u"nom de fichier trop long"_s;
    case EFBIG:
        return u"fichier trop gros"_s;
    case EIO:
        return u"le disque ne répond pas bien"_s;
    case EMFILE:
    case ENFILE:
        return u"trop de fichiers ouverts"_s;
    case ELOOP:
        return u"un lien qui tourne en rond"_s;
    case ENODEV:
    case ENXIO:
        return u"ce n'est pas un fichier ordinaire"_s;
    default:
        return u"erreur %1 du système"_s.arg(numero);
    }
}

Cause Cause_Systeme(int numero)
{
    switch (numero) {
    case ENOENT:
        return Cause::Fichier_Introuvable;
    case ENOSPC:
    case EDQUOT:
        return Cause::Disque_Plein;
    default:
        return Cause::Fichier_Refuse;
    }
}

Erreur_Systeme::Erreur_Systeme(const QString &chemin, int numero)
    : Erreur_Execution(Cause_Systeme(numero), u"%1 (%2)"_s.arg(QDir::toNativeSeparators(chemin), Raison(numero))),
      numero_(numero)
{
}
