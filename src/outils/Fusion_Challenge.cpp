#include "outils/Fusion_Challenge.h"

#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Garde_Copie.h"
#include "log/Ordre.h"
#include "log/Poste.h"
#include "outils/Reecrit_Log.h"
#include "outils/Supprime_Doubles.h"
#include "outils/Trie_Log.h"
#include "plateforme/Dossier.h"

#include <utility>

using namespace Qt::StringLiterals;

Lignes_Par_Site::Lignes_Par_Site(const Lignes_Texte &lignes)
{
    for (const QStringView ligne : lignes) {
        const QStringView site = Lit(ligne, site_challenge);
        if (!lignes_.contains(site))
            lignes_.insert(site, ligne);
    }
}

std::optional<QStringView> Lignes_Par_Site::Pour(QStringView site) const
{
    const auto place = lignes_.constFind(site);
    if (place == lignes_.constEnd())
        return std::nullopt;
    return *place;
}

QStringView Annee_Courte(const Poste &poste, Diplome challenge)
{
    const QStringView annee = *poste.etat.station.Annee(challenge);
    return annee.last(qMin(qsizetype{2}, annee.size()));
}

QString Texte_En_Ordre(std::vector<QString> lignes)
{
    Trie_Sans_Casse(lignes);
    QString texte;
    for (const QString &ligne : lignes)
        texte.append(ligne).append(fin_de_ligne);
    return texte;
}

void Acheve_Fusion(Poste &poste, const QString &nom, std::vector<QString> lignes)
{
    const Log_Compose log = Compose_Log(poste, Texte_En_Ordre(std::move(lignes)), {Texte_Sans_Doubles, Texte_Trie});
    const auto remplace = [&] { poste.dossier.Remplace(nom, log.texte, u"Temporaire.txt"_s); };
    if (!Remplace_En_Gardant(poste, Outil::Fusion, nom, remplace))
        return;
    Montre_Log(poste, log);
    poste.ecran.Efface_Saisie();
    poste.ecran.Selectionne_Derniere();
}
