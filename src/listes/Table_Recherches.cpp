#include "listes/Table_Recherches.h"

#include "listes/Champs_Des_Listes.h"
#include "log/Champ.h"

using namespace Qt::StringLiterals;

namespace {

using Cle = std::optional<QString>;
using Derniere = std::optional<Fiche_Liste>;
using Forme = Lecture::Forme;

constexpr qsizetype largeur_nom = 30;

QString Sans_Tirets(QStringView texte)
{
    return texte.toString().remove(u'-');
}

/// The number at the start of a text, in digits without leading zeros, so that "1", "01" and "001" are one key. A text
/// that begins with no digit has no number.
Cle Nombre(QStringView texte)
{
    texte = Rogne(texte);
    qsizetype fin = 0;
    while (fin < texte.size() && texte[fin] >= u'0' && texte[fin] <= u'9')
        ++fin;
    if (fin == 0)
        return std::nullopt;
    qsizetype debut = 0;
    while (debut < fin - 1 && texte[debut] == u'0')
        ++debut;
    return texte.sliced(debut, fin - debut).toString();
}

Cle Telle_Quelle(QStringView ref)
{
    return ref.toString();
}

Cle Rognee(QStringView ref)
{
    return Rogne(ref).toString();
}

Reference_Trouvee Rien(const Derniere &, QStringView)
{
    return {};
}

Cle Cle_DFCF(const Fiche_Liste &fiche)
{
    return Sans_Tirets(fiche[champs_dfcf::Ref]);
}

Cle Cle_DFCF_Rognee(const Fiche_Liste &fiche)
{
    return Rognee(Sans_Tirets(fiche[champs_dfcf::Ref]));
}

QString Nom_De_Chateau(const Fiche_Liste &fiche)
{
    return u"C." + fiche[champs_dfcf::Nom];
}

QString Nom_D_Edifice(const Fiche_Liste &fiche, QStringView ref)
{
    const QStringView prefixe = ref.endsWith(u'B') ? u"B. " : u"C. ";
    const QString nom = prefixe + fiche[champs_dcf::Nom] + u" à " + fiche[champs_dcf::Ville];
    if (nom.size() <= largeur_nom)
        return nom;
    return prefixe + u"de " + fiche[champs_dcf::Ville];
}

Cle Cle_FFF(const Fiche_Liste &fiche)
{
    const QStringView ref = fiche[champs_fff::Ref];
    if (!ref.startsWith(u"FFF-"))
        return std::nullopt;
    return ref.sliced(4).toString();
}

/// Whatever the prefix is: the refresh of names takes sites of other countries too.
Cle Cle_FFF_Sans_Prefixe(const Fiche_Liste &fiche)
{
    const QStringView ref = fiche[champs_fff::Ref];
    const qsizetype tiret = ref.indexOf(u'-');
    if (tiret < 0)
        return std::nullopt;
    return Rognee(ref.sliced(tiret + 1));
}

bool Est_Etoile(QStringView texte)
{
    return texte == u"*";
}

Cle Cle_DPLF(const Fiche_Liste &fiche)
{
    return Nombre(fiche[lignes_dplf::Numero]);
}

Reference_Trouvee Phare(const Fiche_Liste &fiche, QStringView)
{
    const QStringView dpt = Rogne(fiche[lignes_dplf::Dpt]);
    return {.nom = u"P. " + fiche[lignes_dplf::Nom], .dpt = dpt.size() == 1 ? u'0' + dpt : dpt.toString()};
}

Cle Cle_TDC(const Fiche_Liste &fiche)
{
    return fiche[champs_tdc::Dpt] + u'-' + fiche[champs_tdc::Poste].toString().rightJustified(3, u'0');
}

Cle Cle_TDC_Courte(const Fiche_Liste &fiche)
{
    return fiche[champs_tdc::Dpt] + u'-' + fiche[champs_tdc::Poste];
}

Reference_Trouvee Tour(const Fiche_Liste &fiche, QStringView)
{
    return {.nom = fiche[champs_tdc::Nom].toString(), .dpt = fiche[champs_tdc::Dpt].toString()};
}

Reference_Trouvee Ligne_De_Tour(const Fiche_Liste &fiche, QStringView)
{
    return {.nom = fiche[champs_tdc::Ligne].toString()};
}

// A scan for a tower puts each line it reads into the outputs before it compares: an unknown one leaves the last.
template <Reference_Trouvee (*sorties)(const Fiche_Liste &, QStringView)>
Reference_Trouvee De_La_Derniere(const Derniere &derniere, QStringView ref)
{
    return derniere ? sorties(*derniere, ref) : Reference_Trouvee{};
}

Cle Cle_Ouvrage(const Fiche_Liste &fiche)
{
    return Sans_Tirets(fiche[champs_ouvrages::Ref]);
}

Cle Cle_PC(const Fiche_Liste &fiche)
{
    return Sans_Tirets(fiche[champs_pc::Ref]).right(5);
}

} // namespace

constinit const Recherche recherches::Cherche_DFCF{
    .lecture = {.fichier = u"Liste_DFCF.csv", .vides_ignorees = true, .separateurs = 5},
    .cle = Cle_DFCF_Rognee,
    .cle_cherchee = Rognee,
    .presente = [](const Fiche_Liste &fiche, QStringView) -> Reference_Trouvee {
        return {.nom = Nom_De_Chateau(fiche).left(largeur_nom)};
    },
    .absente = [](const Derniere &, QStringView) -> Reference_Trouvee { return {.nom = u"C."_s}; }};

constinit const Recherche recherches::Cherche_DCF{
    .lecture = {.fichier = u"Liste_DCF.csv", .separateurs = 4},
    .cle = [](const Fiche_Liste &fiche) -> Cle { return fiche[champs_dcf::Ref].toString(); },
    .cle_cherchee = [](QStringView ref) -> Cle { return u"DCF-" + ref; },
    .presente = [](const Fiche_Liste &fiche, QStringView ref) -> Reference_Trouvee {
        return {.nom = Nom_D_Edifice(fiche, ref), .dpt = fiche[champs_dcf::Dpt].toString()};
    },
    .absente = Rien};

constinit const Recherche recherches::Cherche_FFF{
    .lecture = {.fichier = u"Liste_FFF.csv", .lignes_passees = 3, .separateurs = 6, .finit_au_vide = true},
    .cle = Cle_FFF,
    .cle_cherchee = Telle_Quelle,
    .presente = [](const Fiche_Liste &fiche, QStringView) -> Reference_Trouvee {
        return {.nom = fiche[champs_fff::Nom].toString()};
    },
    .absente = Rien};

constinit const Recherche recherches::Cherche_DPLF{
    .lecture = {.fichier = u"Liste_DPLF.txt",
                .forme = Forme::Cinq_Lignes,
                .finit_avant = [](const Fiche_Liste &fiche) { return Est_Etoile(fiche[lignes_dplf::Nom]); }},
    .cle = Cle_DPLF,
    .cle_cherchee = [](QStringView ref) { return Nombre(ref.last(qMin(qsizetype{3}, ref.size()))); },
    .presente = Phare,
    .absente = Rien};

constinit const Recherche recherches::Cherche_TDC{
    .lecture = {.fichier = u"Liste_TDC.csv", .lignes_passees = 1, .vides_ignorees = true, .separateurs = 7},
    .cle = Cle_TDC,
    .cle_cherchee = Telle_Quelle,
    .presente = Tour,
    .absente = De_La_Derniere<Tour>};

// The post is compared unpadded, so the reference of a post below 100 never matches as it is logged.
constinit const Recherche recherches::Ligne_TDC{
    .lecture = {.fichier = u"Liste_TDC.csv", .lignes_passees = 1, .vides_ignorees = true, .separateurs = 7},
    .cle = Cle_TDC_Courte,
    .cle_cherchee = Telle_Quelle,
    .presente = Ligne_De_Tour,
    .absente = De_La_Derniere<Ligne_De_Tour>};

// A work that is not in the list yet is still entered with a plausible department.
constinit const Recherche recherches::Cherche_Ouvrage{
    .lecture = {.fichier = u"Liste_Ouvrages.csv", .lignes_passees = 1, .separateurs = 6},
    .cle = Cle_Ouvrage,
    .cle_cherchee = Telle_Quelle,
    .presente = [](const Fiche_Liste &fiche, QStringView) -> Reference_Trouvee {
        return {.nom = fiche[champs_ouvrages::Nom].toString(), .dpt = fiche[champs_ouvrages::Dpt].toString()};
    },
    .absente = [](const Derniere &, QStringView ref) -> Reference_Trouvee {
        return {.nom = Lit(ref, {3, 2}).toString(), .dpt = Lit(ref, {1, 2}).toString()};
    }};

constinit const Recherche recherches::Cherche_PC{
    .lecture = {.fichier = u"Liste_PC.csv", .lignes_passees = 1, .vides_ignorees = true, .separateurs = 7},
    .cle = Cle_PC,
    .cle_cherchee = Telle_Quelle,
    .presente = [](const Fiche_Liste &fiche, QStringView) -> Reference_Trouvee {
        return {.nom = fiche[champs_pc::Nom].toString(), .dpt = fiche[champs_pc::Dpt].toString()};
    },
    .absente = Rien};

constinit const Recherche recherches::Nom_Ouvrage{
    .lecture = {.fichier = u"Liste_Ouvrages.csv", .lignes_passees = 1, .separateurs = 6, .finit_au_vide = true},
    .cle = Cle_Ouvrage,
    .cle_cherchee = Telle_Quelle,
    // The second output is the name too, not the department.
    .presente = [](const Fiche_Liste &fiche, QStringView) -> Reference_Trouvee {
        return {.nom = fiche[champs_ouvrages::Nom].toString(), .dpt = fiche[champs_ouvrages::Nom].toString()};
    },
    .absente = [](const Derniere &, QStringView) -> Reference_Trouvee { return {.nom = u""_s, .dpt = u"  "_s}; }};

constinit const Recherche recherches::Nom_DFCF{
    .lecture = {.fichier = u"Liste_DFCF.csv", .lignes_passees = 1, .vides_ignorees = true, .separateurs = 5},
    .cle = Cle_DFCF,
    .cle_cherchee = Telle_Quelle,
    .presente = [](const Fiche_Liste &fiche, QStringView) -> Reference_Trouvee {
        return {.nom = Nom_De_Chateau(fiche)};
    },
    .absente = [](const Derniere &, QStringView) -> Reference_Trouvee { return {.nom = u""_s}; }};

constinit const Recherche recherches::Nom_DPLF{
    .lecture = {.fichier = u"Liste_DPLF.txt",
                .forme = Forme::Cinq_Lignes,
                .finit_avant = [](const Fiche_Liste &fiche) { return Est_Etoile(fiche[lignes_dplf::Nom]); },
                .finit_apres = [](const Fiche_Liste &fiche) { return Est_Etoile(fiche[lignes_dplf::Fin]); }},
    .cle = Cle_DPLF,
    .cle_cherchee = [](QStringView ref) { return Nombre(ref.sliced(qMin(qsizetype{2}, ref.size()))); },
    .presente = Phare,
    .absente = Rien};

constinit const Recherche recherches::Nom_FFF{
    .lecture = {.fichier = u"Liste_FFF.csv", .lignes_passees = 1, .vides_ignorees = true, .separateurs = 6},
    .cle = Cle_FFF_Sans_Prefixe,
    .cle_cherchee = Rognee,
    .presente = [](const Fiche_Liste &fiche, QStringView) -> Reference_Trouvee {
        return {.nom = fiche[champs_fff::Nom].toString()};
    },
    .absente = [](const Derniere &, QStringView) -> Reference_Trouvee { return {.nom = QString(largeur_nom, u' ')}; }};
