#include "log/Garde_Copie.h"

#include "log/Charge_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Horloge.h"
#include "plateforme/Tolere.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

std::vector<Copie> Toutes_Les_Copies(const Dossier &dossier)
{
    std::vector<Copie> copies;
    for (const Fichier_Present &fichier : dossier.Fichiers(repertoire_copies.toString()))
        if (std::optional<Copie> copie = Copie_Nommee(fichier.nom)) {
            copie->taille = fichier.taille;
            copies.push_back(*std::move(copie));
        }
    return copies;
}

/// What a folder that cannot be read holds is not needed to keep one copy more.
std::vector<Copie> Copies_Connues(const Poste &poste, const QString &nom)
{
    std::vector<Copie> copies;
    Tolere([&] { copies = Copies_De(poste.dossier, nom); });
    return copies;
}

bool A_Sa_Copie_Du_Jour(const std::vector<Copie> &copies, const QDateTime &maintenant)
{
    return std::any_of(copies.begin(), copies.end(), [&](const Copie &copie) {
        return Est_Quotidien(copie.outil) && copie.moment.date() == maintenant.date();
    });
}

/// The first number that no copy of that second has, whatever its tool: the numbers are the order of the copies.
int Numero_Libre(const std::vector<Copie> &copies, const QDateTime &moment)
{
    int numero = 1;
    for (const Copie &copie : copies)
        if (copie.moment == moment)
            numero = qMax(numero, copie.numero + 1);
    return numero;
}

void Elague(const Poste &poste)
{
    Tolere([&] {
        for (const Copie &copie : Copies_En_Trop(Toutes_Les_Copies(poste.dossier), poste.horloge.Utc()))
            Tolere([&] { poste.dossier.Supprime(Fichier_De_Copie(copie)); });
    });
}

/// A copy that is wanted of a file.
struct Demande {
    Outil outil;
    QString nom;
    QString source;
    Avenir avenir;
};

/// Gives the file of the copy; nullopt where none is needed.
std::optional<QString> Copie_Faite(const Poste &poste, const Demande &demande)
{
    const QDateTime maintenant = poste.horloge.Utc();
    const std::vector<Copie> copies = Copies_Connues(poste, demande.nom);
    if (Est_Quotidien(demande.outil) && A_Sa_Copie_Du_Jour(copies, maintenant))
        return std::nullopt;
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(maintenant.toSecsSinceEpoch(), Qt::UTC);
    Copie copie{.nom = demande.nom, .moment = moment, .outil = demande.outil, .numero = Numero_Libre(copies, moment)};
    for (;; ++copie.numero) {
        const Issue_Copie issue = poste.dossier.Garde(demande.source, Fichier_De_Copie(copie), demande.avenir);
        if (issue == Issue_Copie::Sans_Objet)
            return std::nullopt;
        if (issue == Issue_Copie::Faite)
            break;
    }
    Elague(poste);
    return Fichier_De_Copie(copie);
}

bool Continue_Sans_Copie(Poste &poste, const Demande &demande, const Erreur_Execution &echec)
{
    // A QSO is not held up by a full disk: its own line may still find room, and tells if it does not.
    if (demande.avenir == Avenir::Modifie && demande.outil == Outil::Saisie && echec.La_Cause() == Cause::Disque_Plein)
        return true;
    return poste.boites.Question(
        u"La copie de sécurité de %1 n'a pas pu être faite :\n%2\n\nContinuer sans copie ?"_s.arg(demande.nom,
                                                                                                  echec.Texte()));
}

/// Gives false for the operator's no; `copie` is what was kept, if anything.
bool Garde(Poste &poste, const Demande &demande, std::optional<QString> &copie)
{
    const std::optional<Erreur_Execution> echec = Echec_De([&] { copie = Copie_Faite(poste, demande); });
    return !echec || Continue_Sans_Copie(poste, demande, *echec);
}

} // namespace

bool Garde_Copie(Poste &poste, Outil outil, const QString &nom)
{
    std::optional<QString> copie;
    return Garde(poste, {.outil = outil, .nom = nom, .source = nom, .avenir = Avenir::Modifie}, copie);
}

bool Remplace_En_Gardant(Poste &poste, Outil outil, const QString &nom, const std::function<void()> &remplacement,
                         const QString &source)
{
    const Demande demande{
        .outil = outil, .nom = nom, .source = source.isEmpty() ? nom : source, .avenir = Avenir::Remplace};
    std::optional<QString> copie;
    if (!Garde(poste, demande, copie))
        return false;
    if (const std::optional<Erreur_Execution> echec = Echec_De(remplacement)) {
        if (copie)
            Tolere([&] { poste.dossier.Separe(*copie); });
        throw *echec;
    }
    return true;
}

std::vector<Copie> Copies_De(const Dossier &dossier, const QString &nom)
{
    std::vector<Copie> copies = Toutes_Les_Copies(dossier);
    std::erase_if(copies, [&](const Copie &copie) { return copie.nom != nom; });
    Trie_Les_Copies(copies);
    return copies;
}

bool Revient_A_La_Copie(Poste &poste, const Copie &copie)
{
    // Read first: the copy that is kept of the present log may push this one out.
    const QByteArray octets = poste.dossier.Octets(Fichier_De_Copie(copie));
    if (!Remplace_En_Gardant(poste, Outil::Retour, copie.nom,
                             [&] { poste.dossier.Remplace_Octets(copie.nom, octets, u"Temporaire.txt"_s); }))
        return false;
    Charge_Log(poste, poste.etat.station.diplome);
    poste.ecran.Selectionne_Derniere();
    return true;
}
