#include "saisie/Chaine.h"

#include "log/Cles.h"
#include "log/Etat_Commun.h"
#include "log/Notice.h"
#include "log/Poste.h"
#include "log/Recherches_Log.h"
#include "plateforme/Boites.h"
#include "saisie/Choix_Retenu.h"
#include "saisie/Liste_Prenom.h"
#include "saisie/Ouverture_Diplome.h"
#include "saisie/Passage.h"
#include "saisie/Refus.h"
#include "saisie/Repos.h"
#include "saisie/Saisie_Ref.h"

using namespace Qt::StringLiterals;

namespace {

bool Sans_Reference(std::optional<Diplome> diplome)
{
    return diplome && !Notice_De(*diplome).ref;
}

bool Sans_Dpt_Impose(std::optional<Diplome> diplome)
{
    return diplome && Notice_De(*diplome).dpt_libre;
}

void Entree_Bande(Poste &poste, Saisie &saisie)
{
    if (!Passe(poste, Refus_Bande(saisie.Texte(Controle::Bande_A))))
        return;
    Retient_Choix(poste, saisie, Controle::Bande_A, cles::bande_utilisee);
    Avance(saisie, Controle::Ind_A);
}

void Entree_Ind(Poste &poste, Saisie &saisie)
{
    const QString ind = saisie.Texte(Controle::Ind_A);
    if (!Passe(poste, Refus_Ind(ind)))
        return;
    const Prenom_Trouve trouve = Cherche_Prenom(poste.dossier, ind);
    saisie.prenom_nouveau = trouve.nouveau;
    if (saisie.Texte(Controle::Prenom_A).isEmpty())
        saisie.Ecrit(Controle::Prenom_A, trouve.prenom);
    Avance(saisie, Controle::Prenom_A);
}

void Entree_Dpt(Poste &poste, Saisie &saisie)
{
    if (!Sans_Dpt_Impose(poste.etat.station.diplome) && !Passe(poste, Refus_Dpt(saisie.Texte(Controle::Dpt_A))))
        return;
    if (saisie.saisie_differee || saisie.QSO_Touche()) {
        Avance(saisie, Controle::Date_A);
        return;
    }
    // The moment of the QSO is UTC at the last tick.
    saisie.Ecrit(Controle::Date_A, saisie.Texte(Controle::Label33));
    saisie.Ecrit(Controle::Heure_A, saisie.Texte(Controle::Label37).left(5));
    Avance(saisie, Controle::Mode_A);
}

/// In DPF and DDFM a department counts once for each band and mode.
Refus Refus_Deja_Contacte(const Poste &poste, const Saisie &saisie)
{
    const bool concerne = poste.etat.station.diplome == Diplome::DPF || poste.etat.station.diplome == Diplome::DDFM;
    if (!concerne || saisie.QSO_Touche())
        return std::nullopt;
    const Trouvaille trouvaille = Cherche_Dpt_Bande_Mode(
        poste, saisie.Texte(Controle::Dpt_A), saisie.Texte(Controle::Bande_A), saisie.Texte(Controle::Mode_A));
    if (!trouvaille.oui)
        return std::nullopt;
    return u"Deja contacté le "_s + trouvaille.date;
}

/// The reports follow the mode also under edit, over the stored ones: that is wanted.
void Suit_Le_Mode(Poste &poste, Saisie &saisie)
{
    Reports_Selon_Mode(saisie);
    Retient_Choix(poste, saisie, Controle::Mode_A, cles::mode_utilise);
}

void Entree_Mode(Poste &poste, Saisie &saisie)
{
    if (!Passe(poste, Refus_Mode(saisie.Texte(Controle::Mode_A))) || !Passe(poste, Refus_Deja_Contacte(poste, saisie)))
        return;
    Suit_Le_Mode(poste, saisie);
    Avance(saisie, Controle::RSTR_A);
}

void Entree_Simple(Poste &poste, Saisie &saisie, Controle champ, Refus (*regle)(QStringView), Controle suivant)
{
    if (Passe(poste, regle(saisie.Texte(champ))))
        Avance(saisie, suivant);
}

struct Separateur {
    QChar signe;
    bool apres_2;
    bool apres_5;
};

void Pose_Separateur(Saisie &saisie, Controle champ, const Separateur &separateur, bool retour_arriere)
{
    const QString texte = saisie.Texte(champ);
    if (retour_arriere) {
        saisie.Curseur_A_La_Fin(champ);
        return;
    }
    if ((texte.size() == 2 && separateur.apres_2) || (texte.size() == 5 && separateur.apres_5)) {
        saisie.Ecrit(champ, texte + separateur.signe);
        saisie.Curseur_A_La_Fin(champ);
    }
}

} // namespace

void Entree(Poste &poste, Saisie &saisie, Controle champ)
{
    switch (champ) {
    case Controle::Dip_A:
        return Ouvre_Diplome(poste, saisie);
    case Controle::Bande_A:
        return Entree_Bande(poste, saisie);
    case Controle::Ind_A:
        return Entree_Ind(poste, saisie);
    case Controle::Prenom_A:
        return Avance(saisie, Sans_Reference(poste.etat.station.diplome) ? Controle::Dpt_A : Controle::Ref_A);
    case Controle::Ref_A:
        return Entree_Ref(poste, saisie);
    case Controle::Dpt_A:
        return Entree_Dpt(poste, saisie);
    case Controle::Date_A:
        return Entree_Simple(poste, saisie, champ, Refus_Date, Controle::Heure_A);
    case Controle::Heure_A:
        return Entree_Simple(poste, saisie, champ, Refus_Heure, Controle::Mode_A);
    case Controle::Mode_A:
        return Entree_Mode(poste, saisie);
    case Controle::RSTR_A:
        return Entree_Simple(poste, saisie, champ, Refus_Report, Controle::RSTE_A);
    case Controle::RSTE_A:
        return Entree_Simple(poste, saisie, champ, Refus_Report, Controle::Nom_A);
    case Controle::Nom_A:
        return Entree_Simple(poste, saisie, champ, Refus_Nom, Controle::QSL_A);
    case Controle::QSL_A:
        return Avance(saisie, Controle::Valide_A);
    default:
        return;
    }
}

bool Accepte_Touche(Poste &poste, Saisie &saisie, Controle champ)
{
    if (champ == Controle::Dip_A)
        return Accepte_Touche_Dip(poste);
    if (champ == Controle::Ind_A && poste.etat.station.indicatif == indicatif_absent) {
        poste.boites.Message(Message_Premiere_Installation_Ind());
        return false;
    }
    return Montre_Un_Log(poste, saisie);
}

void Avant_Touche(Saisie &saisie, Controle champ, bool retour_arriere)
{
    if (!saisie.separateur_auto)
        return;
    if (champ == Controle::Date_A)
        Pose_Separateur(saisie, champ, {.signe = u'/', .apres_2 = true, .apres_5 = true}, retour_arriere);
    if (champ == Controle::Heure_A)
        Pose_Separateur(saisie, champ, {.signe = u':', .apres_2 = true, .apres_5 = false}, retour_arriere);
}

void Apres_Touche(Poste &poste, Saisie &saisie, Controle champ)
{
    if (champ == Controle::Dip_A)
        Touche_Dip(poste, saisie);
    if (champ == Controle::Bande_A)
        Retient_Choix(poste, saisie, champ, cles::bande_utilisee);
    if (champ == Controle::Mode_A)
        Suit_Le_Mode(poste, saisie);
}
