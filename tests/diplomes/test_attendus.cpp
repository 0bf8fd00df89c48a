#include "Fiche_Essai.h"
#include "diplomes/Affiche_Option.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/Charge_Liste.h"
#include "diplomes/Sorties_Liste.h"
#include "diplomes/tables/Tables.h"
#include "faux/Attendus.h"
#include "plateforme/Tolere.h"

using namespace diplomes;

// One golden file an award: the sheet of a log, then for each of its buttons the list, the saved file and the page.

namespace {

/// Confirmed and other lines over departments, bands, modes and letters, enough for the lower tiers.
Lignes_Essai Log_De_Demonstration()
{
    const QStringList bandes_logees = {u"14 Mhz"_s, u"144 Mhz"_s, u"7.0 Mhz"_s, u"18 Mhz"_s};
    const QStringList modes_loges = {u"SSB"_s, u"CW"_s, u"PSK"_s};
    const QStringList lettres = {u"CA"_s, u"PT"_s, u"PA"_s};
    Lignes_Essai lignes;
    for (int i = 0; i < 14; ++i) {
        const QString dpt = QString::number(1 + i * 7 % 12).rightJustified(2, u'0');
        lignes.push_back(QSO({.ind = u"F%1ÉTÉ/P"_s.arg(i % 10),
                              .dpt = dpt,
                              .prenom = u"JOËL"_s,
                              .ref = dpt + lettres[i % 3] + QString::number(100 + i) + u"XYZ"_s,
                              .date = u"%1/10/2%2"_s.arg(10 + i % 20).arg(i % 10),
                              .heure = u"0%1:30"_s.arg(i % 10),
                              .mode = modes_loges[i % 3],
                              .bande = bandes_logees[i % 4],
                              .nom = u"FORÊT DU N° %1"_s.arg(i),
                              .qsl = i % 6 == 5 ? u" "_s : u"*"_s}));
    }
    return lignes;
}

class Recit {
public:
    void Ligne(const QString &texte) { texte_ += texte + fin_de_ligne; }
    void Texte(const QString &texte) { texte_ += texte; }
    void Lignes(const QString &titre, const std::vector<QString> &lignes)
    {
        Ligne(u"--- "_s + titre);
        for (const QString &ligne : lignes)
            Ligne(ligne);
    }
    void Fiche(const Etat_Fiche &etat)
    {
        Ligne(u"=== "_s + etat.titre + u" | "_s + etat.entete);
        for (const Etat_Niveau &niveau : etat.niveaux) {
            Ligne((niveau.etat.teinte == Teinte::Atteint ? u"vert  "_s : u"rouge "_s) + niveau.etat.nom + u' ' +
                  niveau.etat.texte);
            for (const Etiquette &etiquette : niveau.detail)
                Ligne(u"      "_s + etiquette.nom + u" ["_s + etiquette.texte + u']');
            Ligne(u"      "_s + niveau.bouton.nom + (niveau.bouton.actif ? u" actif"_s : u" inactif"_s));
        }
    }
    [[nodiscard]] QByteArray Octets() const { return Encode_1252(texte_); }

private:
    QString texte_;
};

class Award {
public:
    Award(const Fiche_Diplome &fiche, const Liste_Diplome &liste) : fiche_(fiche), liste_(liste)
    {
        essai_.fichiers.Pose(u"F9ZZY_%1.log"_s.arg(Code(fiche.sources.diplome)), En_Octets(Log_De_Demonstration()));
    }
    void Choisit(const Option_Diplome &option) { Affiche_Option(essai_.poste, option); }
    void Raconte()
    {
        recit_.Fiche(Charge_Fiche(essai_.poste, fiche_));
        for (const Niveau_Diplome &niveau : fiche_.niveaux)
            if (niveau.choix) {
                Presse_Bouton(essai_.poste, fiche_, niveau.bouton);
                Raconte_Liste(niveau.bouton.toString());
            }
    }
    [[nodiscard]] QByteArray Recit_Entier() const { return recit_.Octets(); }

private:
    void Raconte_Liste(const QString &bouton)
    {
        const Etat_Liste liste = Charge_Liste(essai_.poste, liste_);
        recit_.Ligne(u"=== "_s + bouton);
        for (const QString &texte : {liste.titre, liste.entete, liste.colonnes, liste.compte})
            recit_.Ligne(texte);
        Imprime_Liste(essai_.poste, liste_, liste);
        recit_.Lignes(u"page"_s, essai_.imprimante.documents.back());
        if (!Tolere([&] { Enregistre_Liste(essai_.poste, liste_, liste); })) {
            recit_.Ligne(u"--- no file"_s);
            return;
        }
        const QString nom = essai_.boites.messages.back().section(u" : "_s, 1);
        recit_.Ligne(u"--- "_s + nom);
        recit_.Texte(essai_.dossier.Lit(nom));
    }

    const Fiche_Diplome &fiche_;
    const Liste_Diplome &liste_;
    Poste_Essai essai_;
    Recit recit_;
};

void Compare(const Fiche_Diplome &fiche, const Liste_Diplome &liste, const Choix_Diplome *choix = nullptr)
{
    Award award(fiche, liste);
    if (!choix)
        award.Raconte();
    else
        for (const Groupe_Options &groupe : choix->groupes)
            for (const Option_Diplome &option : groupe.options) {
                award.Choisit(option);
                award.Raconte();
            }
    Compare_Attendu(Code(fiche.sources.diplome).toString() + u".txt"_s, award.Recit_Entier());
}

} // namespace

// clang-format off
TEST(Attendus, DCF) { Compare(fiche_dcf, liste_dcf); }
TEST(Attendus, DFCF) { Compare(fiche_dfcf, liste_dfcf); }
TEST(Attendus, DMF) { Compare(fiche_dmf, liste_dmf); }
TEST(Attendus, DLF) { Compare(fiche_dlf, liste_dlf); }
TEST(Attendus, DIFM) { Compare(fiche_difm, liste_difm); }
TEST(Attendus, FFF) { Compare(fiche_fff, liste_fff); }
TEST(Attendus, WLF) { Compare(fiche_wlf, liste_wlf); }
TEST(Attendus, PC) { Compare(fiche_pc, liste_pc); }
TEST(Attendus, DCPF) { Compare(fiche_dcpf, liste_dcpf, &choix_dcpf); }
TEST(Attendus, DFF) { Compare(fiche_dff, liste_dff, &choix_dff); }
TEST(Attendus, DIFI) { Compare(fiche_difi, liste_difi); }
TEST(Attendus, DPLF) { Compare(fiche_dplf, liste_dplf); }
TEST(Attendus, DAF) { Compare(fiche_daf, liste_daf, &choix_daf); }
// clang-format on
