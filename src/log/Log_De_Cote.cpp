#include "log/Log_De_Cote.h"

#include "log/Chemin_Log.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Tolere.h"

using namespace Qt::StringLiterals;

namespace {

bool Est_De_Cote(const Dossier &dossier, QStringView indicatif, std::optional<Diplome> diplome)
{
    return dossier.Existe(Bak_Du_Log(indicatif, diplome)) && !dossier.Existe(Chemin_Log(indicatif, diplome));
}

} // namespace

QString Bak_Du_Log(QStringView indicatif, std::optional<Diplome> diplome)
{
    return indicatif + u'_' + Code(diplome) + u".bak";
}

void Change_De_Nom(Dossier &dossier, const QString &source, const QString &cible)
{
    dossier.Copie(source, cible);
    dossier.Supprime(source);
}

void Retablit_Log(Poste &poste, QStringView indicatif, std::optional<Diplome> diplome)
{
    if (!Est_De_Cote(poste.dossier, indicatif, diplome))
        return;
    const QString log = Chemin_Log(indicatif, diplome);
    Change_De_Nom(poste.dossier, Bak_Du_Log(indicatif, diplome), log);
    poste.boites.Message(u"Une importation précédente a été interrompue, le log "_s + log + u" a été rétabli");
}

void Retablit_Ou_Dit(Poste &poste, QStringView indicatif, std::optional<Diplome> diplome)
{
    bool de_cote = false;
    // Where the disk does not answer nothing says that a log stands aside.
    Tolere([&] { de_cote = Est_De_Cote(poste.dossier, indicatif, diplome); });
    if (!de_cote)
        return;
    if (const auto raison = Empechement([&] { Retablit_Log(poste, indicatif, diplome); }))
        poste.boites.Message(u"Une importation précédente a été interrompue, le log "_s +
                             Chemin_Log(indicatif, diplome) + u" n'a pas pu être rétabli :\n" + *raison);
}

void Retablit_Station(Poste &poste, QStringView indicatif)
{
    for (const Diplome diplome : tous_les_diplomes)
        Retablit_Ou_Dit(poste, indicatif, diplome);
}

bool Connait_Log(const Dossier &dossier, QStringView indicatif, Diplome diplome)
{
    return dossier.Existe(Chemin_Log(indicatif, diplome)) || dossier.Existe(Bak_Du_Log(indicatif, diplome));
}

void Cree_Log_Absent(Dossier &dossier, QStringView indicatif, Diplome diplome)
{
    if (!dossier.Existe(Bak_Du_Log(indicatif, diplome)))
        dossier.Cree_Si_Absent(Chemin_Log(indicatif, diplome));
}
