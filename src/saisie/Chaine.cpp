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

void Entree_Bande(Poste &poste, Vue_Saisie &vue)
{
    if (!Passe(poste, Refus_Bande(vue.Texte(Controle::Bande_A))))
        return;
    Retient_Choix(poste, vue, Controle::Bande_A, cles::bande_utilisee);
    Avance(vue, Controle::Ind_A);
}

void Entree_Ind(Poste &poste, Vue_Saisie &vue)
{
    const QString ind = vue.Texte(Controle::Ind_A);
    if (!Passe(poste, Refus_Ind(ind)))
        return;
    const Prenom_Trouve trouve = Cherche_Prenom(poste.dossier, ind);
    poste.etat.prenom_nouveau = trouve.nouveau;
    if (vue.Texte(Controle::Prenom_A).isEmpty())
        vue.Ecrit(Controle::Prenom_A, trouve.prenom);
    Avance(vue, Controle::Prenom_A);
}

void Entree_Dpt(Poste &poste, Vue_Saisie &vue)
{
    if (!Sans_Dpt_Impose(poste.etat.station.diplome) && !Passe(poste, Refus_Dpt(vue.Texte(Controle::Dpt_A))))
        return;
    if (poste.etat.saisie_differee || poste.etat.QSO_Touche()) {
        Avance(vue, Controle::Date_A);
        return;
    }
    // The moment of the QSO is UTC at the last tick.
    vue.Ecrit(Controle::Date_A, vue.Texte(Controle::Label33));
    vue.Ecrit(Controle::Heure_A, vue.Texte(Controle::Label37).left(5));
    Avance(vue, Controle::Mode_A);
}

/// In DPF and DDFM a department counts once for each band and mode.
Refus Refus_Deja_Contacte(const Poste &poste, const Vue_Saisie &vue)
{
    const bool concerne = poste.etat.station.diplome == Diplome::DPF || poste.etat.station.diplome == Diplome::DDFM;
    if (!concerne || poste.etat.QSO_Touche())
        return std::nullopt;
    const Trouvaille trouvaille = Cherche_Dpt_Bande_Mode(poste, vue.Texte(Controle::Dpt_A),
                                                         vue.Texte(Controle::Bande_A), vue.Texte(Controle::Mode_A));
    if (!trouvaille.oui)
        return std::nullopt;
    return u"Deja contacté le "_s + trouvaille.date;
}

/// The reports follow the mode also under edit, over the stored ones: that is wanted.
void Suit_Le_Mode(Poste &poste, Vue_Saisie &vue)
{
    Reports_Selon_Mode(vue);
    Retient_Choix(poste, vue, Controle::Mode_A, cles::mode_utilise);
}

void Entree_Mode(Poste &poste, Vue_Saisie &vue)
{
    if (!Passe(poste, Refus_Mode(vue.Texte(Controle::Mode_A))) || !Passe(poste, Refus_Deja_Contacte(poste, vue)))
        return;
    Suit_Le_Mode(poste, vue);
    Avance(vue, Controle::RSTR_A);
}

void Entree_Simple(Poste &poste, Vue_Saisie &vue, Controle champ, Refus (*regle)(QStringView), Controle suivant)
{
    if (Passe(poste, regle(vue.Texte(champ))))
        Avance(vue, suivant);
}

struct Separateur {
    QChar signe;
    bool apres_2;
    bool apres_5;
};

void Pose_Separateur(Vue_Saisie &vue, Controle champ, const Separateur &separateur, bool retour_arriere)
{
    const QString texte = vue.Texte(champ);
    if (retour_arriere) {
        vue.Curseur_A_La_Fin(champ);
        return;
    }
    if ((texte.size() == 2 && separateur.apres_2) || (texte.size() == 5 && separateur.apres_5)) {
        vue.Ecrit(champ, texte + separateur.signe);
        vue.Curseur_A_La_Fin(champ);
    }
}

} // namespace

void Entree(Poste &poste, Vue_Saisie &vue, Controle champ)
{
    switch (champ) {
    case Controle::Dip_A:
        return Ouvre_Diplome(poste, vue);
    case Controle::Bande_A:
        return Entree_Bande(poste, vue);
    case Controle::Ind_A:
        return Entree_Ind(poste, vue);
    case Controle::Prenom_A:
        return Avance(vue, Sans_Reference(poste.etat.station.diplome) ? Controle::Dpt_A : Controle::Ref_A);
    case Controle::Ref_A:
        return Entree_Ref(poste, vue);
    case Controle::Dpt_A:
        return Entree_Dpt(poste, vue);
    case Controle::Date_A:
        return Entree_Simple(poste, vue, champ, Refus_Date, Controle::Heure_A);
    case Controle::Heure_A:
        return Entree_Simple(poste, vue, champ, Refus_Heure, Controle::Mode_A);
    case Controle::Mode_A:
        return Entree_Mode(poste, vue);
    case Controle::RSTR_A:
        return Entree_Simple(poste, vue, champ, Refus_Report, Controle::RSTE_A);
    case Controle::RSTE_A:
        return Entree_Simple(poste, vue, champ, Refus_Report, Controle::Nom_A);
    case Controle::Nom_A:
        return Entree_Simple(poste, vue, champ, Refus_Nom, Controle::QSL_A);
    case Controle::QSL_A:
        return Avance(vue, Controle::Valide_A);
    default:
        return;
    }
}

bool Accepte_Touche(Poste &poste, Vue_Saisie &vue, Controle champ)
{
    if (champ == Controle::Dip_A)
        return Accepte_Touche_Dip(poste);
    if (champ == Controle::Ind_A && poste.etat.station.indicatif == indicatif_absent) {
        poste.boites.Message(Message_Premiere_Installation_Ind());
        return false;
    }
    return Montre_Un_Log(poste, vue);
}

void Avant_Touche(const Poste &poste, Vue_Saisie &vue, Controle champ, bool retour_arriere)
{
    if (!poste.etat.separateur_auto)
        return;
    if (champ == Controle::Date_A)
        Pose_Separateur(vue, champ, {.signe = u'/', .apres_2 = true, .apres_5 = true}, retour_arriere);
    if (champ == Controle::Heure_A)
        Pose_Separateur(vue, champ, {.signe = u':', .apres_2 = true, .apres_5 = false}, retour_arriere);
}

void Apres_Touche(Poste &poste, Vue_Saisie &vue, Controle champ)
{
    if (champ == Controle::Dip_A)
        Touche_Dip(poste, vue);
    if (champ == Controle::Bande_A)
        Retient_Choix(poste, vue, champ, cles::bande_utilisee);
    if (champ == Controle::Mode_A)
        Suit_Le_Mode(poste, vue);
}
