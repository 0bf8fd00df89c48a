#include "qsl/Cartes_QSL.h"

#include "log/Charge_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Garde_Copie.h"
#include "log/Ligne_Log.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Dossier.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

bool Attend_Sa_Carte(QStringView ligne, QStringView indicatif)
{
    return !ligne.isEmpty() && !ligne.endsWith(qsl_tenue) && ligne.contains(indicatif);
}

} // namespace

std::vector<QString> Sans_Carte(const Lignes_Texte &lignes, QStringView indicatif)
{
    std::vector<QString> attendues;
    for (const QStringView ligne : lignes)
        if (Attend_Sa_Carte(ligne, indicatif))
            attendues.push_back(ligne.toString());
    return attendues;
}

QString Texte_Marque(const Lignes_Texte &lignes, const std::vector<QString> &cochees)
{
    QSet<QStringView> a_marquer;
    for (const QString &cochee : cochees)
        a_marquer.insert(cochee);
    QString texte;
    texte.reserve(static_cast<qsizetype>(lignes.size()) * (colonnes_log::longueur + fin_de_ligne.size()));
    for (const QStringView ligne : lignes) {
        if (a_marquer.contains(ligne))
            texte += ligne.chopped(1) + qsl_tenue + fin_de_ligne;
        else
            texte += ligne + fin_de_ligne;
    }
    return texte;
}

Cartes_Attendues Cherche_Cartes(Poste &poste, Diplome diplome, QStringView indicatif)
{
    Lit_Annees_Challenge(poste);
    const QString log = poste.etat.station.Log(diplome);
    return {.log = log, .lignes = Sans_Carte(poste.dossier.Lit_Lignes(log), indicatif)};
}

bool Marque_Cartes(Poste &poste, const QString &log, const std::vector<QString> &cochees)
{
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(log);
    const auto marque = [&] { poste.dossier.Remplace(log, Texte_Marque(lignes, cochees), u"Temporaire_QSL.txt"_s); };
    if (!Remplace_En_Gardant(poste, Outil::QSL, log, marque))
        return false;
    Charge_Log(poste, poste.etat.station.diplome);
    poste.ecran.Selectionne_Derniere();
    return true;
}
