#include "plateforme/Erreur_Execution.h"

#include <utility>

using namespace Qt::StringLiterals;

Erreur_Execution::Erreur_Execution(Cause cause, QString texte)
    : cause_(cause),
      texte_(std::move(texte)),
      utf8_(texte_.toUtf8())
{
}

QString Rapport(const Erreur_Execution &erreur)
{
    return u"Erreur d'exécution : "_s + erreur.Texte();
}
