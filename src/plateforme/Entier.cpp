#include "plateforme/Entier.h"

#include "plateforme/Erreur_Execution.h"

using namespace Qt::StringLiterals;

int Entier(QStringView texte)
{
    bool valide = false;
    const int valeur = texte.trimmed().toInt(&valide);
    if (!valide)
        throw Erreur_Execution(Cause::Type, u"« %1 » n'est pas un nombre entier"_s.arg(texte));
    return valeur;
}

int Entier_De_Tete(QStringView texte)
{
    texte = texte.trimmed();
    qsizetype fin = 0;
    while (fin < texte.size() && texte[fin] >= u'0' && texte[fin] <= u'9')
        ++fin;
    return texte.first(fin).toInt();
}

std::size_t Indice(int valeur, std::size_t taille)
{
    if (valeur < 0 || static_cast<std::size_t>(valeur) >= taille)
        throw Erreur_Execution(Cause::Indice, u"l'indice %1 est en dehors de sa table"_s.arg(valeur));
    return static_cast<std::size_t>(valeur);
}
