#include "diplomes/Sorties_Liste.h"

#include "diplomes/regles/Remplit_Liste.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Horloge.h"
#include "plateforme/Imprimante.h"

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

constexpr Gabarit_Sortie signature_de_fichier = u"                        Vorlain {AAAA}";
constexpr Gabarit_Sortie signature_de_page = u"                     Vorlain {AAAA}";

std::vector<QString> Lignes_De_Tete(const Sortie_De_Liste *sortie, const Valeurs &valeurs)
{
    if (!sortie)
        return std::vector<QString>(4);
    return {Compose(sortie->titre, valeurs), QString(), sortie->colonnes.toString(), QString()};
}

void Ajoute(std::vector<QString> &lignes, const std::vector<QString> &suite)
{
    lignes.insert(lignes.end(), suite.begin(), suite.end());
}

Valeurs Valeurs_De_Sortie(const Poste &poste, const Liste_Diplome &liste)
{
    Valeurs valeurs = Valeurs_De_Liste(liste, poste.etat);
    const QDate jour = poste.horloge.Locale().date();
    valeurs.Pose_Jour(jour, Date_Courte(jour));
    return valeurs;
}

QString Texte_De_Fichier(const std::vector<QString> &lignes)
{
    QString texte;
    for (const QString &ligne : lignes)
        texte += ligne + fin_de_ligne;
    return texte;
}

} // namespace

QString Numero_De_Rang(std::size_t nombre)
{
    return QString::number(nombre).rightJustified(5, u' ');
}

std::vector<QString> Lignes_De_Fichier(const Sortie_De_Liste *sortie, const Etat_Liste &etat, const Valeurs &valeurs)
{
    std::vector<QString> lignes = Lignes_De_Tete(sortie, valeurs);
    for (std::size_t i = 0; i < etat.rangs.size(); ++i)
        lignes.push_back(Numero_De_Rang(i + 1) + u' ' + etat.rangs[i]);
    Ajoute(lignes, etat.pied_enregistre);
    Ajoute(lignes, {QString(), Compose(signature_de_fichier, valeurs)});
    return lignes;
}

std::vector<QString> Lignes_De_Page(const Liste_Diplome &liste, const Sortie_De_Liste *sortie, const Etat_Liste &etat,
                                    const Valeurs &valeurs)
{
    std::vector<QString> lignes = Lignes_De_Tete(sortie, valeurs);
    const QString devant(liste.blancs_devant_numero, u' ');
    const QString derriere(liste.blancs_derriere_numero, u' ');
    for (std::size_t i = 0; i < etat.rangs.size(); ++i)
        lignes.push_back(devant + Numero_De_Rang(i + 1) + derriere + etat.rangs[i]);
    Ajoute(lignes, etat.pied_imprime);
    Ajoute(lignes, {QString(), QString(), Compose(signature_de_page, valeurs)});
    return lignes;
}

const Sortie_De_Liste *Sortie_Choisie(const Liste_Diplome &liste, std::span<const Sortie_De_Liste> sorties,
                                      const Valeurs &valeurs)
{
    const QString choisie = Compose(liste.selecteur, valeurs);
    for (const Sortie_De_Liste &sortie : sorties)
        if (!sortie.valeur || *sortie.valeur == choisie)
            return &sortie;
    return nullptr;
}

void Enregistre_Liste(Poste &poste, const Liste_Diplome &liste, const Etat_Liste &etat)
{
    const Valeurs valeurs = Valeurs_De_Sortie(poste, liste);
    const Sortie_De_Liste *sortie = Sortie_Choisie(liste, liste.fichiers, valeurs);
    // A tier without a row in the table has no name: the folder is then refused as a file.
    const QString nom = sortie ? Compose(sortie->fichier, valeurs) : QString();
    poste.dossier.Remplace(nom, Texte_De_Fichier(Lignes_De_Fichier(sortie, etat, valeurs)), u"Temporaire_Liste.txt"_s);
    poste.boites.Message(u"Fichier enregistré sous le nom : "_s + nom);
}

void Imprime_Liste(Poste &poste, const Liste_Diplome &liste, const Etat_Liste &etat)
{
    const Valeurs valeurs = Valeurs_De_Sortie(poste, liste);
    const Sortie_De_Liste *sortie = Sortie_Choisie(liste, liste.pages, valeurs);
    const auto refus = poste.imprimante.Imprime(etat.titre, Lignes_De_Page(liste, sortie, etat, valeurs));
    if (refus)
        poste.boites.Message(*refus);
}

} // namespace diplomes
