#include "saisie/Ouverture_Diplome.h"

#include "log/Catalogue.h"
#include "log/Charge_Log.h"
#include "log/Cles.h"
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
#include "saisie/Vue_Saisie.h"

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

void Ecrit_Habillage(Vue_Saisie &vue, const Habillage &habillage)
{
    vue.Ecrit(Controle::Frame3, habillage.frame3.toString());
    vue.Ecrit(Controle::Detail, habillage.detail.toString());
    if (habillage.detail_1)
        vue.Ecrit(Controle::Detail_1, habillage.detail_1->toString());
    if (habillage.nom_l)
        vue.Ecrit(Controle::Nom_L, habillage.nom_l->toString());
    vue.Ecrit(Controle::Label1, habillage.label1.toString());
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

bool Habille_Challenge(Poste &poste, Vue_Saisie &vue, const Challenge &challenge, const Habillage &habillage)
{
    if (!Choisit_Annee_Challenge(poste, challenge))
        return false;
    Ecrit_Habillage(vue, habillage);
    vue.Ecrit(Controle::Frame3, habillage.frame3 + *poste.etat.station.Annee(challenge.diplome));
    if (poste.reglages.Lit_Trelune(u"Setup"_s, cles::chemin_repertoire.toString(), u"Absent"_s) != u"Absent")
        vue.Ecrit(Controle::Detail_1, u"Mise a jour via Trelune"_s);
    poste.boites.Message(challenge.rappel.toString());
    return true;
}

bool Habille(Poste &poste, Vue_Saisie &vue, Diplome diplome)
{
    const Habillage &habillage = Notice_De(diplome).habillage;
    for (const Challenge &challenge : challenges)
        if (challenge.diplome == diplome)
            return Habille_Challenge(poste, vue, challenge, habillage);
    if (diplome == Diplome::FFF)
        Previent_Liste_FFF(poste);
    Ecrit_Habillage(vue, habillage);
    return true;
}

/// Dip_A shows a code in its own form, whatever its case was typed.
void Met_Dip_En_Forme(Vue_Saisie &vue)
{
    if (vue.Texte(Controle::Dip_A) != vue.Dip_A())
        vue.Ecrit(Controle::Dip_A, vue.Dip_A());
}

void Repart_De_Zero(Poste &poste, Vue_Saisie &vue)
{
    Retient_Choix(poste, vue, Controle::Dip_A, cles::diplome_utilise);
    vue.Selectionne_Derniere();
    vue.Efface_Saisie();
}

} // namespace

bool A_Un_Log_Ouvert(Poste &poste, Vue_Saisie &vue)
{
    if (poste.dossier.Existe(poste.etat.station.Log_Courant()))
        return true;
    poste.boites.Message(u"Selectionnez un diplome"_s);
    vue.Donne_Focus(Controle::Dip_A);
    return false;
}

bool Montre_Un_Log(Poste &poste, Vue_Saisie &vue)
{
    return !vue.Liste_QSO().empty() || A_Un_Log_Ouvert(poste, vue);
}

bool Accepte_Touche_Dip(Poste &poste)
{
    if (poste.etat.station.indicatif != indicatif_absent)
        return true;
    poste.boites.Message(Message_Premiere_Installation());
    return false;
}

void Ouvre_Diplome(Poste &poste, Vue_Saisie &vue)
{
    Met_Dip_En_Forme(vue);
    const std::optional<Diplome> diplome = Diplome_De(vue.Dip_A());
    if (!diplome) {
        poste.boites.Message(u"Selectionnez un diplome"_s);
        return;
    }
    const std::optional<Diplome> precedent = std::exchange(poste.etat.station.diplome, diplome);
    if (!Habille(poste, vue, *diplome)) {
        poste.etat.station.diplome = precedent;
        vue.Ecrit(Controle::Dip_A, Code(precedent).toString());
        return;
    }
    vue.Efface_Saisie();
    Retablit_Ou_Dit(poste, poste.etat.station.indicatif, diplome);
    Charge_Log(poste, diplome);
    poste.etat.station.diplome = diplome;
    poste.ecrans.Suit_Le_Log();
    vue.Ecrit(Controle::Type_Ref, Type_Ref(diplome).toString());
    vue.Active(Controle::Bande_A, true);
    vue.Donne_Focus(Controle::Bande_A);
    Repart_De_Zero(poste, vue);
}

void Touche_Dip(Poste &poste, Vue_Saisie &vue)
{
    Met_Dip_En_Forme(vue);
    Repart_De_Zero(poste, vue);
    // The focus goes back to where the operator is typing: the next letter of the code would land in the band.
    vue.Donne_Focus(Controle::Dip_A);
    vue.Curseur_A_La_Fin(Controle::Dip_A);
}
