#include "listes/Maj_Noms.h"

#include "listes/Index_Liste.h"
#include "listes/Table_Recherches.h"
#include "log/Charge_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Garde_Copie.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Windows_1252.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

namespace col = colonnes_log;

constexpr QStringView avertissement_dfcf = u"          Attention en fonction du nombre de références\n"
                                           u"            la mise à jour peut prendre quelques minutes\n"
                                           u" Attendre la fenetre 'Mise à jour du nom des Chateaux términée'";

QString Coupe(const QString &nom)
{
    return nom.left(col::Nom.largeur);
}

/// Characters 3 and 4, the category of a hydraulic work. Other awards fall back on them too.
QString Lettres(QStringView ref)
{
    return Lit(ref, {3, 2}).toString();
}

QString Nom_En_Capitales(const Issue_Recherche &issue)
{
    return Majuscules_1252(issue.sorties.nom.value_or(QString()));
}

void Renomme_DOHF(Champs_QSO &champs, QStringView ref, Index_Liste &liste)
{
    const QString nom = Nom_En_Capitales(liste.Cherche(ref));
    champs.nom = nom.isEmpty() ? Lettres(ref) : Coupe(nom);
}

void Renomme_DFCF(Champs_QSO &champs, QStringView ref, Index_Liste &liste)
{
    const QString nom = Nom_En_Capitales(liste.Cherche(ref));
    if (nom.isEmpty())
        champs.nom = u"C."_s;
    else
        // A name too long for its columns is lost, not cut.
        champs.nom = nom.size() <= col::Nom.largeur ? nom : QString(Lettres(ref) + u' ');
}

void Renomme_DPLF(Champs_QSO &champs, QStringView ref, Index_Liste &liste)
{
    const Issue_Recherche issue = liste.Cherche(ref);
    if (!issue.trouvee) {
        champs.nom = u"P."_s;
        return;
    }
    champs.nom = Coupe(Nom_En_Capitales(issue));
    champs.dpt = Ajuste(*issue.sorties.dpt, col::Dpt.largeur);
}

void Renomme_FFF(Champs_QSO &champs, QStringView ref, Index_Liste &liste)
{
    const bool chiffre = !champs.dpt.isEmpty() && champs.dpt.front() >= u'0' && champs.dpt.front() <= u'9';
    if (!chiffre)
        champs.dpt = u"  "_s;
    const QString nom = Nom_En_Capitales(liste.Cherche(ref));
    champs.nom = nom.isEmpty() ? Lettres(ref) : Coupe(nom);
}

/// Fills the names that are missing; the others stay.
void Renomme_PC(Champs_QSO &champs, QStringView ref, Index_Liste &liste)
{
    if (Rogne(champs.nom).isEmpty())
        champs.nom = Coupe(Nom_En_Capitales(liste.Cherche(ref)));
}

// clang-format off
constexpr std::array<Maj_Nom, 5> majs = {{
    {u"Mnu_MAJ_Nom_DOHF", Diplome::DOHF, &recherches::Nom_Ouvrage, Renomme_DOHF, u"", u"Selectionnez le diplome DOHF", u"Mise à jour du nom des ouvrages términée"},
    {u"Mnu_MAJ_Nom_DFCF", Diplome::DFCF, &recherches::Nom_DFCF, Renomme_DFCF, avertissement_dfcf, u"Selectionnez le diplome DFCF", u"Mise à jour du nom des Chateaux términée"},
    {u"Mnu_MAJ_Nom_DPLF", Diplome::DPLF, &recherches::Nom_DPLF, Renomme_DPLF, u"", u"Selectionnez le diplome DPLF", u"Mise à jour du nom des ouvrages términée"},
    {u"Mnu_MAJ_Nom_FFF", Diplome::FFF, &recherches::Nom_FFF, Renomme_FFF, u"", u"Selectionnez le diplome FFF", u"Mise à jour du nom des sites términée"},
    {u"Mnu_MAJ_Nom_PC", Diplome::PC, &recherches::Cherche_PC, Renomme_PC, u"", u"Selectionnez le diplome PC", u"Mise à jour du nom des ouvrages términée"},
}};
// clang-format on

} // namespace

std::span<const Maj_Nom> Majs_Nom()
{
    return majs;
}

QString Texte_Renomme(const Lignes_Texte &log, const Maj_Nom &maj, Index_Liste &liste)
{
    QString texte;
    texte.reserve(static_cast<qsizetype>(log.size()) * (col::longueur + fin_de_ligne.size()));
    for (const QStringView ligne : log) {
        Champs_QSO champs = Champs_Log(ligne);
        maj.renomme(champs, Lit_Rogne(ligne, col::Ref), liste);
        texte += Compose_Ligne_Log(champs);
        texte += fin_de_ligne;
    }
    return texte;
}

void Maj_Noms(Poste &poste, const Maj_Nom &maj)
{
    if (!maj.avertissement.isEmpty())
        poste.boites.Message(maj.avertissement.toString());
    if (poste.etat.station.diplome != maj.diplome) {
        poste.boites.Message(maj.refus.toString());
        return;
    }
    const QString nom = poste.etat.station.Log(maj.diplome);
    Index_Liste liste(*maj.recherche, poste.dossier);
    const QString texte = Texte_Renomme(poste.dossier.Lit_Lignes(nom), maj, liste);
    if (!Remplace_En_Gardant(poste, Outil::Noms, nom,
                             [&] { poste.dossier.Remplace(nom, texte, u"Temporaire1.log"_s); }))
        return;
    Charge_Log(poste, maj.diplome);
    poste.ecran.Selectionne_Derniere();
    poste.boites.Message(maj.cloture.toString());
}
