#include "outils/Import_ADIF.h"

#include "log/Charge_Log.h"
#include "log/Ecran_Principal.h"
#include "log/Etat_Commun.h"
#include "log/Garde_Copie.h"
#include "log/Log_De_Cote.h"
#include "log/Poste.h"
#include "outils/Enregistrements_ADIF.h"
#include "outils/Mise_De_Cote.h"
#include "outils/Nom_Log_ADIF.h"
#include "outils/Reecrit_Log.h"
#include "outils/Supprime_Doubles.h"
#include "outils/Trie_Log.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Ecrans.h"
#include "plateforme/Windows_1252.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Why a file is refused before a record was read; nullopt if it is not.
std::optional<QString> Refus_Nom(const QString &chemin, QStringView code, const Choix_Import &choix)
{
    if (!choix.multi && !chemin.contains(code))
        return u"Attention le nom du fichier ne comporte pas le nom du diplome "_s + code;
    return std::nullopt;
}

std::optional<QString> Refus_Contenu(const Lignes_Texte &lignes)
{
    if (!A_Des_References(lignes))
        return u"Attention le fichier ne contient pas d'information 'SIG'"_s;
    return std::nullopt;
}

void Refuse(Poste &poste, const QString &message)
{
    poste.boites.Message(message);
    Remet_Le_Log(poste);
    Charge_Log(poste, poste.etat.station.diplome);
}

/// What a file gave: the lines for the log, CR LF between them, and the failure that ended it, if any.
struct Bilan {
    QString lignes;
    std::optional<Erreur_Execution> echec;
};

Bilan Lit_Fichier_ADIF(Poste &poste, const Lignes_Texte &lignes, const Choix_Import &choix, Ecran_Import &ecran)
{
    Bilan bilan;
    Enregistrements_ADIF enregistrements(lignes);
    Lignes_ADIF convertit(poste.etat.station.diplome, choix);
    ecran.Avance(0, lignes.size());
    while (const std::optional<QStringView> enregistrement = enregistrements.Suivant()) {
        Lecture_ADIF lecture = convertit.Lit(*enregistrement);
        for (const QStringView message : lecture.messages)
            poste.boites.Message(message.toString());
        if (lecture.echec) {
            bilan.echec = std::move(lecture.echec);
            return bilan;
        }
        if (lecture.ligne)
            bilan.lignes += (bilan.lignes.isEmpty() ? QStringView() : fin_de_ligne) + *lecture.ligne;
        ecran.Avance(enregistrements.Lues(), lignes.size());
    }
    return bilan;
}

/// The log as it is, empty if it is absent, with the lines behind it.
QString Texte_Avec(const Dossier &dossier, const QString &log, const QString &lignes)
{
    QString texte = dossier.Existe(log) ? dossier.Lit(log) : QString();
    if (lignes.isEmpty())
        return texte;
    if (!texte.isEmpty() && !texte.endsWith(u'\n'))
        texte += fin_de_ligne;
    return texte + lignes + fin_de_ligne;
}

/// Whether the log of the import is put in order before it is written. That of Ch_DMF is not the one that is shown,
/// and a .bak that is not there, as for Ch_DFCF, ends the import with its lines as they came.
bool Se_Met_En_Ordre(const Poste &poste, const Choix_Import &choix, const QString &nom)
{
    return nom + u".log" == poste.etat.station.Log_Courant() && (choix.ajout || poste.dossier.Existe(nom + u".bak"));
}

/// Written whole or not at all, once: a .bak is known by having no log beside it. The log as it was, which may be that
/// .bak, is kept; false if that failed and the operator gave up.
bool Ecrit(Poste &poste, const QString &nom, QStringView texte)
{
    const QString log = nom + u".log";
    return Remplace_En_Gardant(
        poste, Outil::Import, log, [&] { poste.dossier.Remplace(log, texte, u"Temporaire.txt"_s); },
        poste.dossier.Existe(log) ? log : nom + u".bak");
}

/// The log is as it was before the import.
void Renonce(Poste &poste, const Choix_Import &choix)
{
    if (!choix.ajout)
        Remet_Le_Log(poste);
    Charge_Log(poste, poste.etat.station.diplome);
}

void Acheve_Import(Poste &poste, const Choix_Import &choix, Ecran_Import &ecran, const QString &lignes)
{
    const QString nom = Nom_Log_ADIF(poste.etat);
    const bool en_ordre = Se_Met_En_Ordre(poste, choix, nom);
    Log_Compose log{.texte = Texte_Avec(poste.dossier, nom + u".log", lignes)};
    if (en_ordre)
        log = Compose_Log(poste, log.texte, {Texte_Sans_Doubles, Texte_Trie});
    if (!Ecrit(poste, nom, log.texte))
        return Renonce(poste, choix);
    if (!choix.ajout)
        Oublie_Le_Bak(poste);
    ecran.Ferme();
    if (!en_ordre)
        return Reecrit_Log(poste, Outil::Import, {Texte_Sans_Doubles, Texte_Trie});
    Montre_Log(poste, log);
    poste.ecran.Selectionne_Derniere();
}

/// The lines before the record that ended the import stay.
[[noreturn]] void Echoue(Poste &poste, const Bilan &bilan)
{
    const QString nom = Nom_Log_ADIF(poste.etat);
    if (!bilan.lignes.isEmpty())
        Ecrit(poste, nom, Texte_Avec(poste.dossier, nom + u".log", bilan.lignes));
    throw *bilan.echec;
}

} // namespace

void Demande_Import(Poste &poste)
{
    // clang-format off
    const bool oui = poste.boites.Question(
        u"Attention les champs suivants doivent etre renseignés :\n"
        u"\n"
        u"<STATE> Département (2 caractères)\n"
        u"<SIG> Réference de l'activité (4 à 6 caractères) pour un fichier ADIF d'un seul diplome Ex: 93013\n"
        u"Le nom du fichier ADIF doit comporter le nom du diplome Ex: F9ZZY_DFCF.adi\n"
        u"ou\n"
        u"<SIG> Réference de l'activité (8 à 11 caractères) pour un fichier ADIF Multi diplome Ex: DMF-93013\n"
        u"<SIG_INFO> Nom de la réference activée (30 caractères maxi)\n"
        u"\n"
        u"Continuer ?\n"_s);
    // clang-format on
    if (oui)
        poste.ecrans.Montre(u"ADIF"_s);
}

void Importe(Poste &poste, const Choix_Import &choix, Ecran_Import &ecran)
{
    Retablit_Log(poste, poste.etat.station.indicatif, poste.etat.station.diplome);
    if (!choix.ajout)
        Met_Le_Log_De_Cote(poste);
    Import_ADIF(poste, choix, ecran);
}

void Import_ADIF(Poste &poste, const Choix_Import &choix, Ecran_Import &ecran)
{
    const std::optional<QString> choisi = ecran.Choisit_Fichier();
    if (!choisi)
        return Retablit_Log(poste, poste.etat.station.indicatif, poste.etat.station.diplome);
    const QString &chemin = *choisi;
    if (chemin.isEmpty()) {
        poste.boites.Message(u"selectionnez un fichier ou quitter"_s);
        Remet_Le_Log(poste);
        return;
    }
    if (const std::optional<QString> refus = Refus_Nom(chemin, Code(poste.etat.station.diplome), choix))
        return Refuse(poste, *refus);
    const Lignes_Texte lignes(Majuscules_1252(poste.dossier.Lit(chemin)));
    if (const std::optional<QString> refus = Refus_Contenu(lignes))
        return Refuse(poste, *refus);

    const Bilan bilan = Lit_Fichier_ADIF(poste, lignes, choix, ecran);
    if (bilan.echec)
        Echoue(poste, bilan);
    Acheve_Import(poste, choix, ecran, bilan.lignes);
}
