#include "log/Catalogue.h"
#include "log/Notice.h"
#include "log/Par_Diplome.h"

namespace {

constexpr std::nullopt_t inchange = std::nullopt;

// clang-format off
constexpr Par_Diplome<Notice> notices = {{
    {Diplome::Ch_DFCF, {
        .code = u"Ch_DFCF",
        // Detail_1 is set only where the sibling program is there.
        .habillage = {.frame3 = u"Challenge DFCF année ", .detail = u"Mise a jour via Vorlain", .detail_1 = inchange, .label1 = u"Référence (X)", .type_ref = u"DFCF"},
        .ref = Regle_Ref{.minimum = 6, .maximum = 6, .refus_longueur = u"6 caractères pour la référence ex: 77001R", .dpt = Source_Dpt::Deux_Premiers, .nom = Nom_Recherche{}, .prefixe = u"C. "},
        .detail = {.commande = u"Fusion_Activite_DFCF", .sans_qso = true},
        .reglement = {Diplome::DFCF, u"/coupes.html"},
        .source = Diplome::DFCF,
    }},
    {Diplome::Ch_DMF, {
        .code = u"Ch_DMF",
        // Detail_1 is set only where the sibling program is there.
        .habillage = {.frame3 = u"Challenge DMF année ", .detail = u"Mise a jour via Vorlain", .detail_1 = inchange, .label1 = u"Référence (X)", .type_ref = u"DMF"},
        .ref = Regle_Ref{.minimum = 6, .maximum = 6, .refus_longueur = u"6 caractères pour la référence ex: 77001R", .dpt = Source_Dpt::Inchange, .prefixe = u"M. "},
        // Ch_DMF is not spared the question for a QSO as Ch_DFCF is.
        .detail = {.commande = u"Fusion_Activite_DMF"},
        .reglement = {Diplome::DMF, u"/reglements/challenge-dmf"},
        .source = Diplome::DMF,
    }},
    {Diplome::DAF, {
        .code = u"DAF",
        .habillage = {.frame3 = u"Diplome des Abbayes et Monastères de France", .type_ref = u"DAF"},
        // The message says 7 and the rule is 6.
        .ref = Regle_Ref{.minimum = 6, .maximum = 6, .refus_longueur = u"7 caractères pour la référence ex: 31001A", .dpt = Source_Dpt::Deux_Premiers, .prefixe = u"A. "},
        .reglement = {Diplome::DAF, u"/"},
    }},
    {Diplome::DCF, {
        .code = u"DCF",
        .habillage = {.frame3 = u"Diplome des Catédrales Basiliques et Collégiales de France", .detail = u"Liste des DCF", .label1 = u"\nRéférence", .type_ref = u"DCF -"},
        .ref = Regle_Ref{.minimum = 0, .maximum = 4, .refus_longueur = u"4 caractères maxi pour le numéro ex: 001 Cathédrale 001B Basislic 001C Collégiale", .dpt = Source_Dpt::Recherche, .nom = Nom_Recherche{.coupe = 50}},
        .detail = {.ecran = u"Liste_References"},
        // The blank belongs to the address.
        .reglement = {Diplome::DCF, u"/ "},
    }},
    {Diplome::DCPF, {
        .code = u"DCPF",
        .habillage = {.frame3 = u"Diplome des Colombiers et Pigeonniers de France", .type_ref = u"DCPF"},
        .ref = Regle_Ref{.minimum = 0, .maximum = 7, .refus_longueur = u"7 caractères maxi pour la référence ex: 81PT001", .dpt = Source_Dpt::Inchange, .prefixe = u"P. "},
        .reglement = {Diplome::DCPF, u"/"},
    }},
    {Diplome::DDFM, {
        .code = u"DDFM",
        .habillage = {.frame3 = u"Diplome des Départements Français de Métropole", .detail = u"Recherche Dpt", .nom_l = u"Ville", .type_ref = u""},
        .ref = {},
        .detail = {.commande = u"Collecte_DDFM"},
        .reglement = {Diplome::DDFM, u"/"},
        .ajoute = true,
    }},
    {Diplome::DFCF, {
        .code = u"DFCF",
        // The label over the name stays as it was, so it can still read "Ville".
        .habillage = {.frame3 = u"Diplome des Forts et Chateaux de France", .detail = u"Detail référence", .nom_l = inchange, .type_ref = u"DFCF"},
        .ref = Regle_Ref{.minimum = 5, .maximum = 5, .refus_longueur = u"5 caractères pour la référence ex: 77001", .dpt = Source_Dpt::Deux_Premiers, .nom = Nom_Recherche{}, .prefixe = u"C. "},
        .detail = {.ecran = u"Detail_DFCF"},
        .reglement = {Diplome::DFCF, u"/reglement.html"},
    }},
    {Diplome::DFF, {
        .code = u"DFF",
        .habillage = {.frame3 = u"Diplome des Fontaines de France", .type_ref = u"DFF"},
        // The one award whose prefix overwrites a stored name.
        .ref = Regle_Ref{.minimum = 0, .maximum = 7, .refus_longueur = u"7 caractères maxi pour la référence ex: 31FP001", .dpt = Source_Dpt::Deux_Premiers, .prefixe = u"F. ", .prefixe_en_edition = true},
        .reglement = {Diplome::DFF, u""},
        .ajoute = true,
    }},
    {Diplome::DIFI, {
        .code = u"DIFI",
        .habillage = {.frame3 = u"Diplome des Iles Françaises Interieur", .type_ref = u"DIFI"},
        .ref = Regle_Ref{.minimum = 6, .maximum = 6, .refus_longueur = u"6 caractères pour la référence ex: 44008R", .dpt = Source_Dpt::Deux_Premiers, .prefixe = u"I. "},
        .reglement = {Diplome::DIFI, u"/activites-nature/difi/"},
    }},
    {Diplome::DIFM, {
        .code = u"DIFM",
        .habillage = {.frame3 = u"Diplome des Iles Françaises de Métropole", .detail = u"Liste des Iles", .type_ref = u"DIFM"},
        .ref = Regle_Ref{.minimum = 5, .maximum = 5, .refus_longueur = u"5 caractères pour la référence ex: AT071", .dpt = Source_Dpt::Inchange, .prefixe = u"I. "},
        .detail = {.commande = u"Liste_Des_Iles"},
        .reglement = {Diplome::DIFM, u"/index.php?Itemid=305"},
    }},
    {Diplome::DLF, {
        .code = u"DLF",
        .habillage = {.frame3 = u"Diplome des Lavoirs de France", .type_ref = u"DLF"},
        .ref = Regle_Ref{.minimum = 5, .maximum = 5, .refus_longueur = u"5 caractères pour la référence ex: 77001", .dpt = Source_Dpt::Deux_Premiers, .prefixe = u"L. "},
        .reglement = {Diplome::DLF, u"/DLF/DLF.html"},
    }},
    {Diplome::DMF, {
        .code = u"DMF",
        .habillage = {.frame3 = u"Diplome des Moulins de France", .type_ref = u"DMF"},
        .ref = Regle_Ref{.minimum = 5, .maximum = 5, .refus_longueur = u"5 caractères pour la référence ex: 77001", .dpt = Source_Dpt::Deux_Premiers, .prefixe = u"M. "},
        .reglement = {Diplome::DMF, u"/reglements/dmf"},
    }},
    {Diplome::DOHF, {
        .code = u"DOHF",
        .habillage = {.frame3 = u"Diplome des Ouvrages Hydrauliques Français", .detail = u"Détail ouvrage", .type_ref = u"DOHF"},
        .ref = Regle_Ref{.minimum = 7, .maximum = 7, .refus_longueur = u"7 caractères pour la référence ex: 45EC102", .dpt = Source_Dpt::Recherche, .nom = Nom_Recherche{.coupe = 30}},
        .detail = {.ecran = u"Detail_Activite"},
        .reglement = {Diplome::DOHF, u"/site/dohfhydro/reglement"},
    }},
    {Diplome::DPF, {
        .code = u"DPF",
        .habillage = {.frame3 = u"Diplome des Provinces Françaises", .detail = u"Liste Provinces", .nom_l = u"Ville", .type_ref = u""},
        .ref = {},
        .detail = {.ecran = u"Detail_DPF"},
        // It shares the page of DDFM on purpose.
        .reglement = {Diplome::DDFM, u"/"},
        .ajoute = true,
    }},
    {Diplome::DPLF, {
        .code = u"DPLF",
        .habillage = {.frame3 = u"Diplome des Phares du Littoral Français", .detail = u"Liste des DPLF", .type_ref = u"DPLF"},
        .ref = Regle_Ref{.minimum = 0, .maximum = 5, .refus_longueur = u"5 caractères maxi pour la référence ex: PB001", .dpt = Source_Dpt::Recherche, .nom = Nom_Recherche{.en_capitales = false}},
        .detail = {.ecran = u"Liste_References"},
        .reglement = {Diplome::DPLF, u"/reglement-f.htm"},
    }},
    {Diplome::DVFF, {
        .code = u"DVFF",
        // The label over the name stays as it was, so it can still read "Ville".
        .habillage = {.frame3 = u"Diplome des Voies Ferrées de France", .nom_l = inchange, .type_ref = u"DVFF"},
        .ref = Regle_Ref{.minimum = 0, .maximum = 9, .refus_longueur = u"9 caractères maxi pour la référence ex: GA18001", .dpt = Source_Dpt::Derriere_Lettres, .prefixe = u"G. "},
        .reglement = {Diplome::DVFF, u"/?page_id=17"},
        .ajoute = true,
    }},
    {Diplome::DYLF, {
        .code = u"DYLF",
        .habillage = {.frame3 = u"Diplome des YL de France", .detail = u"Scores", .nom_l = u"Ville", .type_ref = u""},
        .ref = {},
        .detail = {.ecran = u"Scores_DYLF"},
        .reglement = {Diplome::DYLF, u"/yls/fr/diplome-yl-france-2015"},
        .ajoute = true,
    }},
    {Diplome::FFF, {
        .code = u"FFF",
        .habillage = {.frame3 = u"Diplome France Flora Fauna", .detail = u"Détail FFF", .type_ref = u"FFF -"},
        .ref = Regle_Ref{.minimum = 4, .maximum = 4, .refus_longueur = u"4 caractères maxi pour la référence ex: 0051", .dpt = Source_Dpt::Inchange, .nom = Nom_Recherche{}},
        .detail = {.ecran = u"Detail_FFF"},
        .reglement = {Diplome::FFF, u"/diplomes-fff/diplomes-fff/"},
        .dpt_libre = true,
    }},
    {Diplome::PC, {
        .code = u"PC",
        .habillage = {.frame3 = u"Diplome du Patrimoine Culturel", .detail = u"Detail Patrimoine", .type_ref = u"PC"},
        .ref = Regle_Ref{.minimum = 5, .maximum = 5, .refus_longueur = u"5 caractères pour la référence ex: 93001", .dpt = Source_Dpt::Deux_Premiers, .nom = Nom_Recherche{.coupe = 30}},
        .detail = {.ecran = u"Detail_PC"},
        .reglement = {Diplome::PC, u"/index.php?mod=reglement"},
        .ajoute = true,
    }},
    {Diplome::TDC, {
        .code = u"TDC",
        .habillage = {.frame3 = u"Diplome des Tours De Chappe", .detail = u"Détail Tour", .type_ref = u"TDC"},
        .ref = Regle_Ref{.minimum = 6, .maximum = 6, .refus_longueur = u"6 caractères pour la référence ex: 11-008", .dpt = Source_Dpt::Recherche, .nom = Nom_Recherche{}},
        .detail = {.ecran = u"Detail_TDC"},
        .reglement = {Diplome::TDC, u"/"},
    }},
    {Diplome::WLF, {
        .code = u"WLF",
        .habillage = {.frame3 = u"Diplome des Lacs de France", .type_ref = u"WL-F"},
        .ref = Regle_Ref{.minimum = 3, .maximum = 3, .refus_longueur = u"3 caractères pour la référence ex: 151", .dpt = Source_Dpt::Vide, .prefixe = u"L. "},
        .reglement = {Diplome::WLF, u"/autres-programmes/les-lacs/"},
        .ajoute = true,
    }},
}};
// clang-format on

} // namespace

constinit const std::array<QStringView, nombre_diplomes> codes_diplome = [] {
    std::array<QStringView, nombre_diplomes> tous;
    for (const Diplome diplome : tous_les_diplomes)
        tous[static_cast<std::size_t>(diplome)] = notices[diplome].code;
    return tous;
}();

const Notice &Notice_De(Diplome diplome)
{
    return notices[diplome];
}

QStringView Code(Diplome diplome)
{
    return Notice_De(diplome).code;
}

QStringView Code(std::optional<Diplome> diplome)
{
    return diplome ? Code(*diplome) : QStringView();
}

std::optional<Diplome> Diplome_De(QStringView code)
{
    for (const Diplome diplome : tous_les_diplomes)
        if (Code(diplome).compare(code, Qt::CaseInsensitive) == 0)
            return diplome;
    return std::nullopt;
}
