#include "saisie/Ouverture_Diplome.h"

#include "log/Catalogue.h"
#include "log/Charge_Log.h"
#include "log/Cles.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Log_De_Cote.h"
#include "log/Notice.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Ecrans.h"
#include "plateforme/Reglages.h"
#include "saisie/Choix_Retenu.h"
#include "saisie/Refus.h"
#include "saisie/Repos.h"
#include "saisie/Saisie.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// What tells the two challenges apart when they are opened.
struct Challenge {
    Diplome diplome;
    QStringView cle_annee;
    QStringView rappel;
};

// clang-format off
constexpr Challenge challenges[] = {
    {Diplome::Ch_DFCF, cles::annee_challenge_dfcf,
     u" Lettres qui doivent suivent la référence :\n\n"
     u" - A - Activation contactée et validée\n"
     u" - R - Réactivation contactée et validée\n"
     u" - C - Activeur de Chateau validé\n"
     u" - B - Activeur de Chateau réactivé et validé\n"},
    {Diplome::Ch_DMF, cles::annee_challenge_dmf,
     u" Lettres qui doivent suivent la référence :\n\n"
     u" - A - Activation contactée et validée\n"
     u" - R - Réactivation contactée et validée\n"
     u" - C - Activeur de Moulin validé\n"
     u" - B - Activeur de Moulin réactivé et validé\n"},
};
// clang-format on

/// The first revision of the FFF list with references of four digits.
constexpr int premiere_revision_fff = 17;

void Previent_Liste_FFF(Poste &poste)
{
    const QString revision = Lit_Station(poste, cles::revision_liste_wff, cles::revision_liste_absente);
    // "Rev 017 du ...": a text without a number there counts as 0.
    if (revision.mid(4, 3).toInt() < premiere_revision_fff)
        poste.boites.Message(u"Attention vous devez mettre à jour la liste FFF\n"
                             u"Allez dans 'Outils' et 'Mise à jour des references FFF'"_s);
}

void Ecrit_Habillage(Saisie &saisie, const Habillage &habillage)
{
    saisie.Ecrit(Controle::Frame3, habillage.frame3.toString());
    saisie.Ecrit(Controle::Detail, habillage.detail.toString());
    if (habillage.detail_1)
        saisie.Ecrit(Controle::Detail_1, habillage.detail_1->toString());
    if (habillage.nom_l)
        saisie.Ecrit(Controle::Nom_L, habillage.nom_l->toString());
    saisie.Ecrit(Controle::Label1, habillage.label1.toString());
}

void Nomme_L_Annee(const Poste &poste, Saisie &saisie, Diplome challenge)
{
    saisie.Ecrit(Controle::Frame3, Notice_De(challenge).habillage.frame3 + *poste.etat.station.Annee(challenge));
}

/// False if the operator closed the choice of a year without making one, and there is no log to show.
bool Choisit_Annee_Challenge(Poste &poste, const Challenge &challenge)
{
    QString &annee = poste.etat.station.Annee_Challenge(challenge.diplome);
    annee = Lit_Station(poste, challenge.cle_annee, annee_absente);
    if (annee != annee_absente)
        return true;
    poste.etat.challenge = challenge.diplome;
    poste.ecrans.Montre_Modal(u"Select_Annee"_s);
    return annee != annee_absente || poste.dossier.Existe(poste.etat.station.Log(challenge.diplome));
}

bool Habille_Challenge(Poste &poste, Saisie &saisie, const Challenge &challenge, const Habillage &habillage)
{
    if (!Choisit_Annee_Challenge(poste, challenge))
        return false;
    Ecrit_Habillage(saisie, habillage);
    Nomme_L_Annee(poste, saisie, challenge.diplome);
    if (poste.reglages.Lit_Trelune(u"Setup"_s, cles::chemin_repertoire.toString(), u"Absent"_s) != u"Absent")
        saisie.Ecrit(Controle::Detail_1, u"Mise a jour via Trelune"_s);
    poste.boites.Message(challenge.rappel.toString());
    return true;
}

bool Habille(Poste &poste, Saisie &saisie, Diplome diplome)
{
    const Habillage &habillage = Notice_De(diplome).habillage;
    for (const Challenge &challenge : challenges)
        if (challenge.diplome == diplome)
            return Habille_Challenge(poste, saisie, challenge, habillage);
    if (diplome == Diplome::FFF)
        Previent_Liste_FFF(poste);
    Ecrit_Habillage(saisie, habillage);
    return true;
}

/// Dip_A shows a code in its own form, whatever its case was typed.
void Met_Dip_En_Forme(Saisie &saisie)
{
    const std::optional<Diplome> diplome = saisie.Dip_A();
    if (diplome && saisie.Texte(Controle::Dip_A) != Code(*diplome))
        saisie.Ecrit(Controle::Dip_A, Code(*diplome).toString());
}

void Repart_De_Zero(Poste &poste, Saisie &saisie)
{
    Retient_Choix(poste, saisie, Controle::Dip_A, cles::diplome_utilise);
    poste.ecran.Selectionne_Derniere();
    Efface_Champs(saisie);
}

} // namespace

bool A_Un_Log_Ouvert(Poste &poste, Saisie &saisie)
{
    if (poste.dossier.Existe(poste.etat.station.Log_Courant()))
        return true;
    poste.boites.Message(u"Selectionnez un diplome"_s);
    saisie.Donne_Focus(Controle::Dip_A);
    return false;
}

bool Montre_Un_Log(Poste &poste, Saisie &saisie)
{
    return !poste.ecran.Liste_QSO().empty() || A_Un_Log_Ouvert(poste, saisie);
}

bool Accepte_Touche_Dip(Poste &poste)
{
    if (poste.etat.station.indicatif != indicatif_absent)
        return true;
    poste.boites.Message(Message_Premiere_Installation());
    return false;
}

void Ouvre_Diplome(Poste &poste, Saisie &saisie)
{
    Met_Dip_En_Forme(saisie);
    const std::optional<Diplome> diplome = saisie.Dip_A();
    if (!diplome) {
        poste.boites.Message(u"Selectionnez un diplome"_s);
        return;
    }
    const std::optional<Diplome> precedent = std::exchange(poste.etat.station.diplome, diplome);
    if (!Habille(poste, saisie, *diplome)) {
        poste.etat.station.diplome = precedent;
        saisie.Ecrit(Controle::Dip_A, Code(precedent).toString());
        return;
    }
    Efface_Champs(saisie);
    Retablit_Ou_Dit(poste, poste.etat.station.indicatif, diplome);
    Charge_Log(poste, diplome);
    poste.etat.station.diplome = diplome;
    poste.ecrans.Suit_Le_Log();
    saisie.Ecrit(Controle::Type_Ref, Type_Ref(diplome).toString());
    saisie.Active(Controle::Bande_A, true);
    saisie.Donne_Focus(Controle::Bande_A);
    Repart_De_Zero(poste, saisie);
}

void Suit_L_Annee(const Poste &poste, Saisie &saisie)
{
    const std::optional<Diplome> ouvert = poste.etat.station.diplome;
    // A start shows the log of a challenge before its frame is dressed: there is then no year to follow.
    if (Est_Challenge(ouvert) && saisie.Texte(Controle::Frame3).startsWith(Notice_De(*ouvert).habillage.frame3))
        Nomme_L_Annee(poste, saisie, *ouvert);
}

void Touche_Dip(Poste &poste, Saisie &saisie)
{
    Met_Dip_En_Forme(saisie);
    Repart_De_Zero(poste, saisie);
    // The focus goes back to where the operator is typing: the next letter of the code would land in the band.
    saisie.Donne_Focus(Controle::Dip_A);
    saisie.Curseur_A_La_Fin(Controle::Dip_A);
}
