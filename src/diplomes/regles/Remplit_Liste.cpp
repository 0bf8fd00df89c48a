#include "diplomes/regles/Remplit_Liste.h"

#include "diplomes/regles/Departements.h"
#include "log/Departement.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"
#include "log/Ordre.h"

#include <functional>

namespace diplomes {

namespace col = colonnes_log;

namespace {

/// Lets the lines of the tier through, one by one in the order of the log.
class Filtre {
public:
    Filtre(const Liste_Diplome &liste, const Etat_Commun &etat)
        : liste_(liste),
          etat_(etat),
          voulue_(Classe_Nommee(Compose(liste.classe_voulue, Valeurs(etat))))
    {
    }

    bool Retient(QStringView ligne)
    {
        // The class follows every line, also those that do not stand in the list.
        if (liste_.classe)
            classe_ = liste_.classe(Lit_Rogne(ligne, col::Bande), classe_);
        return classe_ == voulue_ && liste_.retient(ligne, etat_);
    }

private:
    const Liste_Diplome &liste_;
    const Etat_Commun &etat_;
    std::optional<Classe_Bande> voulue_;
    Classe_Bande classe_ = Classe_Bande::Aucune;
};

/// Room for a row of any award, so that it is allocated once.
constexpr qsizetype largeur_courante = 90;

using Par_Departement = std::array<QStringView, taille_departements>;

/// The department as a row shows it; `index` is called with its index where the list has a table of them.
QStringView Departement_Du_Rang(Departement departement, QStringView ligne,
                                const std::function<void(std::size_t)> &index)
{
    const QStringView dpt = Lit(ligne, col::Dpt);
    if (departement == Departement::Ignore)
        return dpt;
    const QStringView replie = departement == Departement::Brut ? dpt : Departement_Replie(dpt);
    index(Indice_Departement(replie));
    return departement == Departement::Replie ? replie : dpt;
}

std::vector<QString> Rangs_Excellence(const Forme_Rang &forme, const Par_Departement &dernieres)
{
    std::vector<QString> rangs;
    for (std::size_t i = 1; i < dernieres.size(); ++i)
        if (!dernieres[i].isNull())
            rangs.push_back(Compose_Rang(forme, dernieres[i]));
    return rangs;
}

/// The tier Excellence where the list has one and the shared texts ask for it.
const Excellence *Excellence_Voulue(const Liste_Diplome &liste, const Etat_Commun &etat)
{
    return etat.code_categorie == u"Excellence" ? liste.excellence : nullptr;
}

} // namespace

QString Compose_Rang(const Forme_Rang &forme, QStringView ligne_log, QStringView dpt)
{
    QString rang;
    rang.reserve(largeur_courante);
    rang.resize(forme.blancs_devant, u' ');
    for (const Colonne &colonne : forme.colonnes) {
        rang += colonne.champ.colonne == col::Dpt.colonne ? dpt : Lit(ligne_log, colonne.champ);
        rang.resize(rang.size() + colonne.blancs, u' ');
    }
    return rang;
}

QString Compose_Rang(const Forme_Rang &forme, QStringView ligne_log)
{
    return Compose_Rang(forme, ligne_log, Lit(ligne_log, col::Dpt));
}

Valeurs Valeurs_De_Liste(const Liste_Diplome &liste, const Etat_Commun &etat)
{
    Valeurs valeurs(etat);
    if (liste.valeurs)
        liste.valeurs(valeurs, etat);
    return valeurs;
}

Etat_Liste Textes_De_Liste(const Liste_Diplome &liste, const Etat_Commun &etat)
{
    const Valeurs valeurs = Valeurs_De_Liste(liste, etat);
    QStringView titre = liste.titre;
    const QString choisi = Compose(liste.selecteur_titre, valeurs);
    for (const Titre_De_Liste &possible : liste.titres)
        if (possible.valeur == choisi)
            titre = possible.titre;
    const Excellence *excellence = Excellence_Voulue(liste, etat);
    return {.titre = Compose(titre, valeurs),
            .entete = Compose(liste.entete, valeurs),
            .colonnes = (excellence ? excellence->colonnes : liste.colonnes).toString(),
            .compte = {},
            .rangs = {}};
}

QString Compte_De_Liste(const Liste_Diplome &liste, std::size_t nombre, const Etat_Commun &etat)
{
    Valeurs valeurs(etat);
    valeurs.Pose(u"c", QString::number(nombre));
    return Compose(liste.compte, valeurs);
}

Etat_Liste Remplit_Liste(const Liste_Diplome &liste, const Lignes_Texte &lignes, const Etat_Commun &etat)
{
    Etat_Liste resultat = Textes_De_Liste(liste, etat);
    const Excellence *excellence = Excellence_Voulue(liste, etat);
    Filtre filtre(liste, etat);
    Par_Departement dernieres;
    std::size_t compte = 0;
    for (const QStringView ligne : lignes) {
        if (!filtre.Retient(ligne))
            continue;
        ++compte;
        const QStringView dpt =
            Departement_Du_Rang(liste.departement, ligne, [&](std::size_t index) { dernieres[index] = ligne; });
        if (!excellence)
            resultat.rangs.push_back(Compose_Rang(liste.rang, ligne, dpt));
    }
    if (excellence)
        resultat.rangs = Rangs_Excellence(excellence->rang, dernieres);
    Trie_Sans_Casse(resultat.rangs);
    // Also for Excellence: the count of departments never stays on the screen.
    resultat.compte = Compte_De_Liste(liste, compte, etat);
    return resultat;
}

} // namespace diplomes
