#include "outils/Mise_De_Cote.h"

#include "log/Chemin_Log.h"
#include "log/Etat_Commun.h"
#include "log/Log_De_Cote.h"
#include "log/Poste.h"
#include "outils/Nom_Log_ADIF.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr int premier_numero = 2;

QString Bak_Numerote(const Station_Courante &station, int numero)
{
    return u"%1_%2_%3.bak"_s.arg(station.indicatif, Code(station.diplome)).arg(numero);
}

int Numero_Libre(const Poste &poste)
{
    int numero = premier_numero;
    while (poste.dossier.Existe(Bak_Numerote(poste.etat.station, numero)))
        ++numero;
    return numero;
}

bool Contient(const Lignes_Texte &lignes, const Lignes_Texte &autres)
{
    const std::set<QStringView> connues(lignes.begin(), lignes.end());
    return std::all_of(autres.begin(), autres.end(), [&](QStringView ligne) { return connues.contains(ligne); });
}

/// The log that an import put aside and never gave back would be lost under a shorter one.
void Garde_L_Ancien_Bak(Poste &poste, const QString &log, const QString &bak)
{
    if (!poste.dossier.Existe(bak) || Contient(poste.dossier.Lit_Lignes(log), poste.dossier.Lit_Lignes(bak)))
        return;
    const QString garde = Bak_Numerote(poste.etat.station, Numero_Libre(poste));
    Change_De_Nom(poste.dossier, bak, garde);
    poste.boites.Message(u"Une importation précédente ne s'est pas terminée, le log d'avant elle est gardé dans "_s +
                         garde + u"\njusqu'à la fin d'une importation");
}

} // namespace

void Met_Le_Log_De_Cote(Poste &poste)
{
    const Station_Courante &station = poste.etat.station;
    const QString log = Chemin_Log(station.indicatif, station.diplome);
    const QString bak = Bak_Du_Log(station.indicatif, station.diplome);
    Garde_L_Ancien_Bak(poste, log, bak);
    Change_De_Nom(poste.dossier, log, bak);
}

void Remet_Le_Log(Poste &poste)
{
    const QString nom = Nom_Log_ADIF(poste.etat);
    Change_De_Nom(poste.dossier, nom + u".bak", nom + u".log");
}

void Oublie_Le_Bak(Poste &poste)
{
    poste.dossier.Supprime(Nom_Log_ADIF(poste.etat) + u".bak");
    // From the last: after a crash those that are left still follow each other.
    for (int numero = Numero_Libre(poste); numero-- > premier_numero;)
        poste.dossier.Supprime(Bak_Numerote(poste.etat.station, numero));
}
