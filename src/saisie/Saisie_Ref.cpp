#include "saisie/Saisie_Ref.h"

#include "listes/Recherches_Liste.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "log/Recherches_Log.h"
#include "plateforme/Boites.h"
#include "plateforme/Windows_1252.h"
#include "saisie/Passage.h"
#include "saisie/Regle_Ref.h"

using namespace Qt::StringLiterals;

namespace {

Refus Refus_Longueur_Generale(QStringView ref)
{
    if (ref.size() > 10)
        return u"10 caracteres maxi pour la reference (pas de tiret)"_s;
    return std::nullopt;
}

/// In deferred entry repeats pass, so that a log can be completed out of order.
Refus Refus_Repetition(const Poste &poste, const Saisie &saisie, const QString &ref)
{
    if (saisie.QSO_Touche() || saisie.saisie_differee)
        return std::nullopt;
    const Trouvaille trouvaille = Cherche_Ref(poste, poste.etat.station.diplome, ref);
    if (!trouvaille.oui)
        return std::nullopt;
    return u"La référence "_s + ref + u" a été contactée le " + trouvaille.date;
}

/// What the award's list tells; an award without a list tells nothing.
Reference_Trouvee Recherche(Poste &poste, QStringView ref)
{
    const std::optional<Diplome> diplome = poste.etat.station.diplome;
    if (diplome == Diplome::DOHF)
        return Cherche_Ouvrage(poste.dossier, ref);
    if (diplome == Diplome::TDC)
        return Cherche_TDC(poste.dossier, poste.boites, ref);
    if (diplome == Diplome::DCF)
        return Cherche_DCF(poste.dossier, ref);
    if (diplome == Diplome::FFF)
        return Cherche_FFF(poste.dossier, ref);
    if (diplome == Diplome::DPLF)
        return Cherche_DPLF(poste.dossier, ref);
    if (diplome == Diplome::DFCF || diplome == Diplome::Ch_DFCF)
        return {.nom = Cherche_DFCF(poste.dossier, ref), .dpt = {}};
    if (diplome == Diplome::PC)
        return Cherche_PC(poste.dossier, ref);
    return {};
}

void Remplit_Dpt(Saisie &saisie, const Regle_Ref &regle, const Reference_Trouvee &trouvee, QStringView ref)
{
    if (regle.dpt == Source_Dpt::Inchange)
        return;
    const bool recherche = regle.dpt == Source_Dpt::Recherche;
    saisie.Ecrit(Controle::Dpt_A, recherche ? trouvee.dpt.value_or(QString()) : Dpt_De_Ref(regle.dpt, ref));
}

void Remplit_Nom(Saisie &saisie, const Regle_Ref &regle, const Reference_Trouvee &trouvee)
{
    if (!regle.nom)
        return;
    QString nom = trouvee.nom.value_or(QString());
    if (regle.nom->en_capitales)
        nom = Majuscules_1252(nom);
    if (regle.nom->coupe)
        nom.truncate(*regle.nom->coupe);
    saisie.Ecrit(Controle::Nom_A, nom);
}

/// The prefix replaces what the look-up found: the operator types the name behind it.
void Pose_Prefixe(Saisie &saisie, const Regle_Ref &regle)
{
    if (regle.prefixe.isEmpty() || (saisie.QSO_Touche() && !regle.prefixe_en_edition))
        return;
    saisie.Ecrit(Controle::Nom_A, regle.prefixe.toString());
    saisie.Curseur_A_La_Fin(Controle::Nom_A);
}

/// False if the reference was refused.
bool Applique_Regle(Poste &poste, Saisie &saisie, Diplome diplome, const QString &ref)
{
    const Regle_Ref &regle = *Regle_Ref_De(diplome);
    if (!Passe(poste, Refus_Forme_Ref(diplome, ref)))
        return false;
    const Reference_Trouvee trouvee = Recherche(poste, ref);
    if (diplome == Diplome::DCF && trouvee.dpt.value_or(QString()).isEmpty())
        poste.boites.Message(u"Référence non trouvée, cliquez sur le bouton 'Liste Cathédrales'"_s);
    Remplit_Dpt(saisie, regle, trouvee, ref);
    Remplit_Nom(saisie, regle, trouvee);
    Pose_Prefixe(saisie, regle);
    return true;
}

} // namespace

void Entree_Ref(Poste &poste, Saisie &saisie)
{
    const QString ref = saisie.Texte(Controle::Ref_A);
    if (!Passe(poste, Refus_Longueur_Generale(ref)) || !Passe(poste, Refus_Repetition(poste, saisie, ref)))
        return;
    const std::optional<Diplome> diplome = poste.etat.station.diplome;
    if (Regle_Ref_De(diplome) && !Applique_Regle(poste, saisie, *diplome, ref))
        return;
    Avance(saisie, Controle::Dpt_A);
}
