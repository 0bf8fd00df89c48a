#include "programme/Demarrage.h"

#include "log/Catalogue.h"
#include "log/Charge_Log.h"
#include "log/Cles.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Historique.h"
#include "log/Log_De_Cote.h"
#include "log/Moment.h"
#include "log/Notice.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "outils/Sauve_Logs.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Ecrans.h"
#include "plateforme/Horloge.h"
#include "plateforme/Tolere.h"
#include "saisie/Choix_Retenu.h"
#include "saisie/Liste_Prenom.h"
#include "saisie/Options.h"
#include "saisie/Refus.h"
#include "saisie/Repos.h"
#include "saisie/Saisie.h"

using namespace Qt::StringLiterals;

namespace {

/// The logs are saved when this many days have passed since the last time.
constexpr qint64 jours_entre_sauvegardes = 8;

bool Est_Premiere_Installation(const Poste &poste)
{
    return poste.etat.station.indicatif == indicatif_absent;
}

void Reprend_Station(Poste &poste, Saisie &saisie)
{
    poste.etat.station.indicatif = Station_Retenue(poste);
    // As stored: only a change of station turns "_" back to "/".
    saisie.Ecrit(Controle::I_Station, poste.etat.station.indicatif);
    Reprend_Bande_Et_Mode(poste, saisie);
    Reprend_Choix(poste, saisie, Controle::Dip_A, cles::diplome_utilise);
    Lit_Annees_Challenge(poste);
}

/// True if the operator has no folder for the backups yet; the screen that sets it is then open.
bool Demande_Repertoire_Sauvegarde(Poste &poste)
{
    if (Lit_Station(poste, cles::chemin_sauvegarde, cles::chemin_sauvegarde_absent) != cles::chemin_sauvegarde_absent)
        return false;
    poste.boites.Message(u"Configurez le répértoire de sauvegarde hebdomadaire de vos log"_s);
    poste.ecrans.Montre(u"Sauvegarde_Log"_s);
    return true;
}

void Sauve_Et_Date(Poste &poste, QDate aujourdhui)
{
    Tolere([&] { Sauve_Logs(poste); });
    Tolere([&] { Ecrit_Station(poste, cles::date_sauvegarde, Date_De_Reglage(aujourdhui)); });
}

void Sauve_Si_Besoin(Poste &poste)
{
    const QDate aujourdhui = poste.horloge.Locale().date();
    const QString derniere = Lit_Station(poste, cles::date_sauvegarde, cles::date_sauvegarde_absente);
    if (derniere == cles::date_sauvegarde_absente) {
        Sauve_Et_Date(poste, aujourdhui);
        return;
    }
    const std::optional<QDate> date = Lit_Date_De_Reglage(derniere);
    if (!date || date->daysTo(aujourdhui) < jours_entre_sauvegardes)
        return;
    Sauve_Et_Date(poste, aujourdhui);
    poste.boites.Message(u"Les logs de Vorlain ont été sauvegardés le "_s + Date_De_Reglage(aujourdhui) +
                         u"\ndans le répertoire " +
                         Lit_Station(poste, cles::chemin_sauvegarde, cles::chemin_sauvegarde_absent));
}

void Retient_Repertoire(Poste &poste)
{
    Tolere([&] { Ecrit_General(poste, cles::chemin_repertoire, poste.dossier.Repertoire_Appli()); });
}

void Montre_Le_Log(Poste &poste, Saisie &saisie)
{
    if (!Est_Premiere_Installation(poste))
        Tolere([&] { Charge_Log(poste, saisie.Dip_A()); });
    poste.ecran.Selectionne_Derniere();
}

/// Carries a station's folder over versions that added awards.
void Cree_Logs_Manquants(Poste &poste)
{
    for (const Diplome diplome : tous_les_diplomes)
        if (Notice_De(diplome).ajoute)
            Tolere([&] { Cree_Log_Absent(poste.dossier, poste.etat.station.indicatif, diplome); });
    Tolere([&] { poste.dossier.Cree_Si_Absent(u"Liste_PC.csv"_s); });
    Tolere([&] { poste.dossier.Cree_Si_Absent(fichier_prenoms.toString()); });
}

void Installe_Textes(Poste &poste, Saisie &saisie)
{
    poste.etat.historique = Historique();
    poste.etat.version = version_vorlain.toString();
    saisie.Ecrit(Controle::Main, u"   Vorlain  Revision "_s + poste.etat.version);
    Tolere([&] { Ecrit_General(poste, cles::revision, poste.etat.version); });
}

} // namespace

QString Station_Retenue(const Poste &poste)
{
    return Lit_General(poste, cles::indicatif_station, indicatif_absent);
}

void Demarre(Poste &poste, Saisie &saisie, const std::function<void()> &montre)
{
    saisie.Choisit(Controle::Dip_A, 0);
    Reprend_Station(poste, saisie);
    // Before the backup and before an empty log takes the place of one that stands aside.
    Retablit_Station(poste, poste.etat.station.indicatif);
    const bool sans_sauvegarde = Demande_Repertoire_Sauvegarde(poste);
    Sauve_Si_Besoin(poste);
    Reprend_Separateur(poste, saisie);
    saisie.Ecrit(Controle::Type_Ref, Type_Ref(saisie.Dip_A()).toString());
    Retient_Repertoire(poste);
    if (Est_Premiere_Installation(poste))
        poste.boites.Message(Message_Premiere_Installation());
    saisie.qso_affiche = false;
    montre();
    Montre_Le_Log(poste, saisie);
    Retient_Repertoire(poste);
    poste.etat.station.diplome = saisie.Dip_A();
    saisie.prenom_nouveau = false;
    Cree_Logs_Manquants(poste);
    Installe_Textes(poste, saisie);
    Efface_Tout(saisie);
    // The operator was told to set the folder: the main screen must not hide where.
    if (sans_sauvegarde)
        poste.ecrans.Montre(u"Sauvegarde_Log"_s);
}
