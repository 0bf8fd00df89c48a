#include "Operations.h"

#include "faux/QSO_Essai.h"
#include "listes/Fichiers_De_Depart.h"
#include "log/Charge_Log.h"
#include "log/Chemin_Log.h"
#include "log/Cles.h"
#include "log/Ecritures_Log.h"
#include "log/Reglages_Station.h"
#include "outils/Supprime_Doubles.h"
#include "outils/Trie_Log.h"
#include "plateforme/disque/Fichier_Sur.h"
#include "programme/Demarrage.h"
#include "programme/Repertoire.h"
#include "saisie/Changement_Station.h"
#include "saisie/Liste_Prenom.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray Log(std::initializer_list<Champs_QSO> qsos)
{
    QByteArray octets;
    for (const Champs_QSO &qso : qsos)
        octets += QSO(qso).toLatin1() + "\r\n";
    return octets;
}

const QByteArray quatre_qsos = Log({{.dpt = u"77"_s, .ref = u"77002"_s, .date = u"02/01/26"_s, .heure = u"10:00"_s},
                                    {.dpt = u"77"_s, .ref = u"77001"_s, .date = u"01/01/26"_s, .heure = u"09:00"_s},
                                    {.dpt = u"77"_s, .ref = u"77002"_s, .date = u"02/01/26"_s, .heure = u"10:00"_s},
                                    {.dpt = u"21"_s, .ref = u"21001"_s, .date = u"03/01/26"_s, .heure = u"11:00"_s}});

/// A station that was used: its settings, a log of four QSOs for each award, a first-name list.
void Station(const Terrain &terrain)
{
    terrain.Pose(u"reglages/Vorlain/Vorlain.conf"_s,
                 "[Setup%20]\nIndicatif%20Station=F9ZZY\n\n[Setup%20F9ZZY]\nChemin%20Sauvegarde=/nulle part\n"
                 "Date_Sauvegarde=15/11/2026\nDiplome%20Utilise=6\nAnnee%20Challenge%20DFCF=2026\n"
                 "Annee%20Challenge%20DMF=2026\nbande%20Utilisee=4\nMode%20Utilise=0\n");
    for (const Diplome diplome : tous_les_diplomes)
        terrain.Pose(u"donnees/"_s + Chemin_Log(u"F9ZZY", diplome),
                     diplome == Diplome::DFCF ? quatre_qsos : QByteArray());
    terrain.Pose(u"donnees/Liste_Prenom.txt"_s, "F1AAA        77 JEAN\r\n");
    terrain.Pose(u"donnees/F2OLD_DFCF.log"_s, quatre_qsos);
}

void Rien(const Terrain &) {}

/// The program as the operator has it before the operation, on the log of DFCF.
Position &Ouvert(Seance &seance)
{
    Position &programme = seance.Le_Programme();
    programme.etat.station.diplome = Diplome::DFCF;
    programme.saisie.Choisit(Controle::Dip_A, 6);
    Charge_Log(programme.poste, Diplome::DFCF);
    programme.ecran.Selectionne_Derniere();
    return programme;
}

Position &Pret(Seance &seance)
{
    Position &programme = Ouvert(seance);
    seance.Arme();
    return programme;
}

const QString nouveau = QSO({.dpt = u"77"_s, .ref = u"77003"_s, .date = u"02/01/26"_s, .heure = u"12:00"_s});
const QString premier = QSO({.dpt = u"77"_s, .ref = u"77002"_s, .date = u"02/01/26"_s, .heure = u"10:00"_s});

void Ajout(Seance &seance)
{
    Ajoute_Ligne(Pret(seance).poste, nouveau, Diplome::DFCF);
}

void Remplacement(Seance &seance)
{
    Remplace_Ligne(Pret(seance).poste, nouveau, premier);
}

void Suppression(Seance &seance)
{
    Supprime_Ligne(Pret(seance).poste, premier, Diplome::DFCF);
}

void Insertion(Seance &seance)
{
    Insere_Ligne(Pret(seance).poste, nouveau);
}

void Prenom(Seance &seance)
{
    Maj_Prenom(Pret(seance).dossier, u"F1BBB        21 PAUL");
}

void Reglage(Seance &seance)
{
    Ecrit_Station(Pret(seance).poste, cles::bande_utilisee, u"7"_s);
}

void Nouvelle_Station(Seance &seance)
{
    Position &programme = Pret(seance);
    Change_Station(programme.poste, programme.saisie, u"F1NEW"_s);
}

void Station_Connue(Seance &seance)
{
    Position &programme = Pret(seance);
    Change_Station(programme.poste, programme.saisie, u"F2OLD"_s);
}

void Demarrage(Seance &seance)
{
    seance.Arme();
    Demarre_Le_Programme(seance);
}

void Tri(Seance &seance)
{
    Trie_Log(Pret(seance).poste);
}

void Doubles(Seance &seance)
{
    Supprime_Doubles(Pret(seance).poste);
}

// clang-format off
const std::vector<Operation> operations = {
    {.nom = "ajout",              .prepare = Station, .agit = Ajout},
    {.nom = "remplacement",       .prepare = Station, .agit = Remplacement},
    {.nom = "suppression",        .prepare = Station, .agit = Suppression},
    {.nom = "insertion",          .prepare = Station, .agit = Insertion},
    {.nom = "prenom",             .prepare = Station, .agit = Prenom},
    {.nom = "reglage",            .prepare = Station, .agit = Reglage},
    {.nom = "premier_demarrage",  .prepare = Rien,    .agit = Demarrage, .passe_outre = true, .a_neuf = true},
    {.nom = "demarrage",          .prepare = Station, .agit = Demarrage, .passe_outre = true},
    {.nom = "nouvelle_station",   .prepare = Station, .agit = Nouvelle_Station, .passe_outre = true},
    {.nom = "station_connue",     .prepare = Station, .agit = Station_Connue, .passe_outre = true},
    {.nom = "tri",                .prepare = Station, .agit = Tri},
    {.nom = "doubles",            .prepare = Station, .agit = Doubles},
};
// clang-format on

} // namespace

std::span<const Operation> Operations()
{
    return operations;
}

void Demarre_Le_Programme(Seance &seance)
{
    const QString donnees = seance.Le_Terrain().Donnees();
    const bool absent = !Existe_Fichier(donnees);
    const Verrou verrou = Prend_Repertoire(donnees);
    if (const QString message = Message_Verrou(verrou, donnees); !message.isEmpty())
        seance.Dit(message);
    if (verrou.L_Etat() == Verrou::Etat::Occupe)
        throw std::runtime_error("already open");
    Position &programme = seance.Le_Programme();
    if (absent || Station_Retenue(programme.poste) == indicatif_absent)
        Depose_Fichiers_De_Depart(programme.dossier);
    Demarre(programme.poste, programme.saisie, [] {});
}
