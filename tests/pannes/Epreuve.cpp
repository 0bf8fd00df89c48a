#include "Epreuve.h"

#include "plateforme/Erreur_Execution.h"

#include <QElapsedTimer>
#include <QRegularExpression>

#include <algorithm>
#include <poll.h>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar entre_messages(0x1E);
constexpr int patience_ms = 10'000;
constexpr int demarrage_ms = 2'000;

void Rapporte(int tube, char fin, const QStringList &textes)
{
    const QByteArray octets = fin + textes.join(entre_messages).toUtf8();
    (void)!::write(tube, octets.constData(), static_cast<std::size_t>(octets.size()));
}

/// In the child. The failure stands before the messages.
void Joue_Dans_Le_Fils(int tube, const Terrain &terrain, Geste geste, const Plan_De_Panne &plan)
{
    Seance seance(terrain, plan);
    char fin = 'A';
    QString erreur;
    try {
        geste(seance);
    } catch (const Erreur_Execution &echec) {
        fin = 'E';
        erreur = echec.Texte();
    } catch (const std::exception &echec) {
        fin = 'P';
        erreur = QString::fromUtf8(echec.what());
    }
    Arme_Pannes(std::make_unique<Plan_De_Panne>().get());
    Rapporte(tube, fin, QStringList(erreur) + seance.Messages());
}

QByteArray Recoit(int tube, pid_t fils)
{
    QByteArray octets;
    QElapsedTimer duree;
    duree.start();
    for (;;) {
        pollfd attente{tube, POLLIN, 0};
        const auto reste = static_cast<int>(patience_ms - duree.elapsed());
        if (reste <= 0 || ::poll(&attente, 1, reste) == 0) {
            ::kill(fils, SIGKILL);
            return {};
        }
        char morceau[4096];
        const ssize_t lus = ::read(tube, morceau, sizeof morceau);
        if (lus <= 0)
            return octets;
        octets.append(morceau, lus);
    }
}

QByteArray Journal(int fd)
{
    QByteArray octets(::lseek(fd, 0, SEEK_END), Qt::Uninitialized);
    (void)!::pread(fd, octets.data(), static_cast<std::size_t>(octets.size()), 0);
    ::close(fd);
    return octets;
}

void Comprend(Compte_Rendu &rendu, const QByteArray &rapport, int etat)
{
    using enum Compte_Rendu::Fin;
    if (WIFSIGNALED(etat))
        rendu.fin = WTERMSIG(etat) == SIGKILL && rapport.isEmpty() ? Tuee : Perdue;
    else if (!rapport.isEmpty())
        rendu.fin = rapport[0] == 'A' ? Achevee : rapport[0] == 'E' ? Erreur : Perdue;
    rendu.messages = QString::fromUtf8(rapport.mid(1)).split(entre_messages);
    rendu.erreur = rendu.messages.takeFirst();
}

/// The states of the files that nobody loses a QSO by.
struct Attentes {
    Releve avant;
    Releve apres;
    std::vector<Releve> admis; ///< before, after, and the steps between
    QStringList messages;      ///< of a run without a failure
};

bool Est_Un_Reste(const QString &nom)
{
    static const QRegularExpression reste(u"(/Temporaire[^/]*|\\.tmp[^/]*|\\.conf\\..+|\\.lock)$"_s);
    return reste.match(nom).hasMatch();
}

/// A folder and the lock hold no QSO.
bool Est_Sans_Contenu(const QString &nom)
{
    return nom.endsWith(u'/') || nom.endsWith(u".vorlain.lock"_s);
}

constexpr QStringView magasin = u"reglages/Vorlain/Vorlain.conf";

/// An operation stores one setting after the other: what counts is each of them.
Releve Detaille(const Releve &releve)
{
    Releve detail = releve;
    const auto place = releve.find(magasin.toString());
    if (place == releve.end())
        return detail;
    const Contenu_Reglages contenu = Decode_Reglages(place->second);
    for (auto cle = contenu.begin(); cle != contenu.end(); ++cle)
        detail[magasin + u" : " + cle.key()] = cle.value().toUtf8();
    detail.erase(magasin.toString());
    return detail;
}

std::optional<QByteArray> Contenu(const Releve &releve, const QString &nom)
{
    const auto place = releve.find(nom);
    return place == releve.end() ? std::nullopt : std::optional(place->second);
}

/// Whether `present` is what a cut left of `apres`, behind all of `avant`.
bool Est_Coupe(const QByteArray &present, const std::optional<QByteArray> &avant,
               const std::optional<QByteArray> &apres)
{
    return avant && apres && present.startsWith(*avant) && apres->startsWith(present);
}

enum class Permis { Rien, Restes, Coupure };

/// Nothing, or the file that is neither as before nor as after.
std::string Perte(const Releve &entier, const std::vector<Releve> &admis_entiers, Permis permis)
{
    const Releve present = Detaille(entier);
    std::vector<Releve> admis;
    Releve tous = present;
    for (const Releve &releve : admis_entiers) {
        admis.push_back(Detaille(releve));
        tous.insert(admis.back().begin(), admis.back().end());
    }
    for (const auto &[nom, octets] : tous) {
        if (Est_Sans_Contenu(nom) || (permis != Permis::Rien && Est_Un_Reste(nom)))
            continue;
        const auto contenu = Contenu(present, nom);
        if (permis == Permis::Coupure && contenu && admis.size() > 1 &&
            Est_Coupe(*contenu, Contenu(admis[0], nom), Contenu(admis[1], nom)))
            continue;
        if (std::none_of(admis.begin(), admis.end(), [&](const Releve &r) { return Contenu(r, nom) == contenu; }))
            return nom.toStdString() + (contenu ? " holds \"" + contenu->left(200).toStdString() + '"' : " is gone");
    }
    return {};
}

bool Est_Plein(const Plan_De_Panne &plan)
{
    return plan.genre == Genre_Panne::Echoue && (plan.erreur == ENOSPC || plan.erreur == EDQUOT);
}

bool Doit_Passer(const Plan_De_Panne &plan)
{
    return plan.genre == Genre_Panne::Court || (plan.genre == Genre_Panne::Echoue && plan.erreur == EINTR);
}

/// Nothing, or what the operator was not told.
std::string Silence(const Operation &operation, const Plan_De_Panne &plan, const Attentes &attentes,
                    const Releve &present, const Compte_Rendu &rendu)
{
    using enum Compte_Rendu::Fin;
    if (rendu.fin == Perdue)
        return "ended in disorder: " + rendu.erreur.toStdString();
    if (rendu.fin == Tuee)
        return plan.genre == Genre_Panne::Tue || plan.genre == Genre_Panne::Coupe ? "" : "hangs";
    const std::string autre = Perte(present, {attentes.apres}, Permis::Restes);
    if (Doit_Passer(plan))
        return rendu.fin == Erreur ? "gave up: " + rendu.erreur.toStdString() : autre;
    if (rendu.fin == Erreur && Est_Plein(plan) && !rendu.erreur.contains(u"plein"))
        return "a full disk is told as: " + rendu.erreur.toStdString();
    if (rendu.fin == Erreur && !rendu.erreur.contains(u'/'))
        return "no file is named: " + rendu.erreur.toStdString();
    const bool dit = rendu.fin == Erreur || rendu.messages != attentes.messages;
    return dit || operation.passe_outre || autre.empty() ? "" : "nothing was told, and " + autre;
}

std::string Nom_De_Panne(const Plan_De_Panne &plan)
{
    static constexpr const char *genres[] = {"none", "killed", "cut", "short", "error"};
    std::string nom = genres[static_cast<int>(plan.genre)];
    if (plan.genre == Genre_Panne::Echoue)
        nom = strerrorname_np(plan.erreur) + std::string(plan.suite ? " from there on" : "");
    return nom;
}

std::vector<Plan_De_Panne> Pannes()
{
    std::vector<Plan_De_Panne> pannes = {
        {.genre = Genre_Panne::Tue}, {.genre = Genre_Panne::Coupe}, {.genre = Genre_Panne::Court}};
    for (const int erreur : {EINTR, ENOSPC, EDQUOT, EIO, EACCES, EMFILE})
        pannes.push_back({.genre = Genre_Panne::Echoue, .erreur = erreur});
    for (const int erreur : {ENOSPC, EDQUOT, EIO, EACCES, EMFILE})
        pannes.push_back({.genre = Genre_Panne::Echoue, .erreur = erreur, .suite = true});
    return pannes;
}

std::vector<Plan_De_Panne> Plans(const QList<QByteArray> &appels, int part)
{
    std::vector<Plan_De_Panne> plans;
    for (const Plan_De_Panne &panne : Pannes())
        for (qsizetype i = 0; i < appels.size(); ++i)
            if (Concerne(panne, static_cast<Genre_Appel>(appels[i][0]))) {
                plans.push_back(panne);
                plans.back().point = i + 1;
            }
    std::mt19937 hasard(20261121);
    std::shuffle(plans.begin(), plans.end(), hasard);
    plans.resize((plans.size() * static_cast<std::size_t>(part) + 19) / 20);
    return plans;
}

constexpr const char *trop_lent = "starts again after ";

std::string Faute(const Operation &operation, const Terrain &terrain, const Plan_De_Panne &plan,
                  const Attentes &attentes, const Attentes &relance)
{
    terrain.Remet(attentes.avant);
    const Compte_Rendu rendu = Joue(terrain, operation.agit, plan);
    const Releve present = terrain.Lit();
    if (const std::string perte =
            Perte(present, attentes.admis, plan.genre == Genre_Panne::Coupe ? Permis::Coupure : Permis::Restes);
        !perte.empty())
        return perte;
    if (const std::string silence = Silence(operation, plan, attentes, present, rendu); !silence.empty())
        return silence;
    const Compte_Rendu suite = Joue(terrain, Demarre_Le_Programme);
    if (suite.fin != Compte_Rendu::Fin::Achevee)
        return "does not start again: " + suite.erreur.toStdString();
    if (suite.millisecondes > demarrage_ms)
        return trop_lent + std::to_string(suite.millisecondes) + " ms";
    const std::string perte =
        Perte(terrain.Lit(), operation.a_neuf ? std::vector{relance.apres} : relance.admis, Permis::Rien);
    return perte.empty() ? "" : "after the next start " + perte;
}

/// What the files are after `geste`, from `avant`.
Releve Apres(const Terrain &terrain, const Releve &avant, Geste geste)
{
    terrain.Remet(avant);
    const Compte_Rendu rendu = Joue(terrain, geste);
    if (rendu.fin != Compte_Rendu::Fin::Achevee)
        throw std::runtime_error("fails without a failure: " + rendu.erreur.toStdString());
    return terrain.Lit();
}

/// The same states after a start of the program.
Attentes Relance(const Terrain &terrain, const Attentes &attentes)
{
    Attentes relance;
    for (const Releve &admis : attentes.admis)
        relance.admis.push_back(Apres(terrain, admis, Demarre_Le_Programme));
    relance.apres = relance.admis[1];
    return relance;
}

} // namespace

Compte_Rendu Joue(const Terrain &terrain, Geste geste, Plan_De_Panne plan)
{
    int tube[2];
    if (::pipe(tube) != 0)
        throw std::runtime_error("no pipe");
    plan.journal = ::memfd_create("journal", MFD_CLOEXEC);
    QElapsedTimer duree;
    duree.start();
    const pid_t fils = ::fork();
    if (fils < 0)
        throw std::runtime_error("no child process");
    if (fils == 0) {
        ::close(tube[0]);
        Joue_Dans_Le_Fils(tube[1], terrain, geste, plan);
        ::_exit(0);
    }
    ::close(tube[1]);
    const QByteArray rapport = Recoit(tube[0], fils);
    int etat = 0;
    ::waitpid(fils, &etat, 0);
    ::close(tube[0]);
    Compte_Rendu rendu;
    rendu.millisecondes = duree.elapsed();
    Comprend(rendu, rapport, etat);
    rendu.appels = Journal(plan.journal).split('\n');
    rendu.appels.removeLast();
    return rendu;
}

Bilan Eprouve(const Operation &operation, int part)
{
    QElapsedTimer duree;
    duree.start();
    const Terrain terrain;
    operation.prepare(terrain);
    Attentes attentes;
    attentes.avant = terrain.Lit();
    if (!operation.a_neuf)
        for (int fois = 0; fois < 2; ++fois)
            attentes.avant = Apres(terrain, attentes.avant, Demarre_Le_Programme);
    terrain.Remet(attentes.avant);
    const Compte_Rendu nominal = Joue(terrain, operation.agit);
    if (nominal.fin != Compte_Rendu::Fin::Achevee)
        throw std::runtime_error("fails without a failure: " + nominal.erreur.toStdString());
    attentes.messages = nominal.messages;
    attentes.apres = terrain.Lit();
    attentes.admis = {attentes.avant, attentes.apres};
    for (const Geste etape : operation.etapes)
        attentes.admis.push_back(Apres(terrain, attentes.avant, etape));
    const Attentes relance = Relance(terrain, attentes);

    Bilan bilan;
    for (const Plan_De_Panne &plan : Plans(nominal.appels, part)) {
        std::string faute = Faute(operation, terrain, plan, attentes, relance);
        // Once may be the machine's fault.
        if (faute.starts_with(trop_lent))
            faute = Faute(operation, terrain, plan, attentes, relance);
        ++bilan.points;
        if (faute.empty())
            ++bilan.passes;
        else
            bilan.fautes.push_back(Nom_De_Panne(plan) + " at call " + std::to_string(plan.point) + ", " +
                                   nominal.appels[plan.point - 1].mid(1).toStdString() + ": " + faute);
    }
    bilan.millisecondes = duree.elapsed();
    return bilan;
}
