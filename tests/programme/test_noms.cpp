#include "programme/Programme_Essai.h"

#include "consultation/Detail_Tour.h"
#include "consultation/Pages_Web.h"
#include "consultation/ecrans/Detail_Activite.h"
#include "diplomes/Affiche_Option.h"
#include "diplomes/Charge_Fiche.h"
#include "diplomes/Ecran_Du_Diplome.h"
#include "diplomes/tables/Tables.h"
#include "outils/Import_ADIF.h"
#include "plateforme/Commandes.h"
#include "saisie/Boutons_Reference.h"
#include "saisie/Menu_Principal.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace diplomes;
using conduite::Trouve;

namespace {

class Commandes_Fausses : public Commandes {
public:
    void Execute(const QString &nom) override { executees.push_back(nom); }
    [[nodiscard]] bool Connait_Commande(const QString &) const override { return true; }

    std::vector<QString> executees;
};

/// The names that buttons, menus, sheets and choices ask for, against the real register.
class Noms_Demandes : public Programme_Essai {
protected:
    Noms_Demandes() { programme.emplace(fichiers.Chemin(), horloge); }

    void Sont_Des_Ecrans(std::size_t au_moins)
    {
        EXPECT_GE(demandeur.ecrans.montres.size(), au_moins);
        for (const QString &nom : demandeur.ecrans.montres)
            EXPECT_TRUE(programme->Les_Ecrans().Connait(nom)) << nom.toStdString();
    }

    /// Asks in the program's place.
    Poste_Essai demandeur;
    Commandes_Fausses commandes;
};

} // namespace

TEST_F(Noms_Demandes, par_le_menu)
{
    for (const Entree_Menu &entree : Menu_Principal()) {
        const QString cible = entree.cible.toString();
        if (cible.isEmpty())
            continue;
        const bool commande = entree.genre == Genre_Entree::Commande || entree.genre == Genre_Entree::Barre;
        EXPECT_TRUE(commande ? programme->Les_Ecrans().Connait_Commande(cible) : programme->Les_Ecrans().Connait(cible))
            << cible.toStdString();
    }
}

TEST_F(Noms_Demandes, par_mnu_diplomes_pour_chaque_diplome)
{
    for (const Diplome diplome : tous_les_diplomes)
        demandeur.ecrans.montres.push_back(Ecran_Du_Diplome(diplome));
    Sont_Des_Ecrans(21);
}

TEST_F(Noms_Demandes, par_les_boutons_detail_de_chaque_diplome)
{
    demandeur.ecran.ligne_selectionnee = u"un QSO"_s;
    for (const QStringView code : codes_diplome) {
        demandeur.Ouvre(code.toString());
        Presse_Detail(demandeur.poste, commandes);
        Presse_Detail_1(demandeur.poste, commandes);
    }
    Sont_Des_Ecrans(9);
    EXPECT_EQ(commandes.executees.size(), 6U);
    for (const QString &nom : commandes.executees)
        EXPECT_TRUE(programme->Les_Ecrans().Connait_Commande(nom)) << nom.toStdString();
}

TEST_F(Noms_Demandes, par_les_boutons_de_chaque_fiche)
{
    for (const Fiche_Diplome *fiche : Fiches())
        for (const Niveau_Diplome &niveau : fiche->niveaux)
            Presse_Bouton(demandeur.poste, *fiche, niveau.bouton);
    Sont_Des_Ecrans(Fiches().size());
}

TEST_F(Noms_Demandes, par_les_options_de_chaque_choix)
{
    for (const Choix_Diplome *choix : Choix_De_Diplomes())
        for (const Groupe_Options &groupe : choix->groupes)
            for (const Option_Diplome &option : groupe.options)
                Affiche_Option(demandeur.poste, option);
    Sont_Des_Ecrans(Choix_De_Diplomes().size());
}

TEST_F(Noms_Demandes, par_les_ecrans_de_consultation_et_l_import)
{
    demandeur.fichiers.Pose(u"Liste_Ouvrages.csv"_s,
                            "Rev;;;;;;;;;;;;;;;;;;;\r\n;a;b;45;c;d;e;f;g;h;i;j;k;l;m;n;o;p;site;\r\n");
    Detail_Activite detail(demandeur.poste);
    Trouve<QPushButton>(detail, u"Situer"_s)->click();
    Trouve<QPushButton>(detail, u"Ouvre_Lien"_s)->click();
    Voir_Site(demandeur.poste, {});
    Liste_Des_Iles(demandeur.poste);
    demandeur.boites.reponses = {true};
    Demande_Import(demandeur.poste);
    Sont_Des_Ecrans(5);
}

TEST_F(Noms_Demandes, chaque_fiche_chaque_liste_et_chaque_choix_est_inscrit_sous_le_nom_de_sa_table)
{
    for (const Fiche_Diplome *fiche : Fiches())
        demandeur.ecrans.montres.push_back(fiche->ecran.toString());
    for (const Liste_Diplome *liste : Listes())
        demandeur.ecrans.montres.push_back(liste->ecran.toString());
    for (const Choix_Diplome *choix : Choix_De_Diplomes())
        demandeur.ecrans.montres.push_back(choix->ecran.toString());
    Sont_Des_Ecrans(40);
}

namespace {

class Programme_Ouvert : public Programme_Essai {
protected:
    Programme_Ouvert()
    {
        Installe_Station(QStringLiteral("DFCF"));
        Ouvre();
    }
    QWidget &Montre(const QString &nom)
    {
        conduite::Repond({}, [&] { programme->Les_Ecrans().Montre(nom); });
        return *conduite::Fenetre(nom);
    }
};

} // namespace

TEST_F(Programme_Ouvert, chaque_annee_de_challenge_est_celle_de_son_challenge)
{
    for (const QString &genre : {u"DFCF"_s, u"DMF"_s}) {
        QString demande;
        conduite::Pendant_Modal(
            u"Select_Annee"_s, [&] { Controle_Nomme<QAction>(QString(u"Mnu_Année_Ch_"_s + genre)).trigger(); },
            [&](QWidget &annee) {
                demande = Trouve<QLabel>(annee, u"L_Activ"_s)->text();
                EXPECT_EQ(annee.windowModality(), Qt::ApplicationModal);
                annee.close();
            });
        EXPECT_EQ(demande, genre);
    }
}

TEST_F(Programme_Ouvert, les_textes_de_l_ecran_station)
{
    const QWidget &station = Montre(u"Station"_s);
    EXPECT_EQ(station.windowTitle(), u"Selection Indicaif"_s);
    EXPECT_EQ(Trouve<QLabel>(station, u"Label2"_s)->text(), u"Indicatif de la Station"_s);
    EXPECT_EQ(Trouve<QLabel>(station, u"Label3"_s)->text(), u"Indicatif"_s);
    EXPECT_EQ(Trouve<QLabel>(station, u"Label5"_s)->text(), u"!!! Pour la saisie la '/' est remplacée par le '_'"_s);
    EXPECT_EQ(Trouve<QPushButton>(station, u"Validation"_s)->text(), u"Validez"_s);
}

TEST_F(Programme_Ouvert, la_legende_mene_a_son_champ_qui_porte_son_nom)
{
    struct Legende {
        QString ecran, legende, champ;
    };
    for (const auto &[ecran, legende, champ] : std::vector<Legende>{
             {u"Station"_s, u"Label3"_s, u"New_Indicatif"_s},
             {u"Select_Annee"_s, u"Label3"_s, u"New_Annee"_s},
             {u"Sauvegarde_Log"_s, u"Label1"_s, u"Le_Chemin"_s},
             {u"Cluster"_s, u"Label3"_s, u"Bande_CL"_s},
             {u"Aff_Contacte"_s, u"Label1"_s, u"Bande_A"_s},
             {u"Affiche_Toutes_Activites"_s, u"Label1"_s, u"Indicatif"_s},
             {u"Detail_Activite"_s, u"L_Reference_I"_s, u"Reference_I"_s},
             {u"Multi_QSL"_s, u"L_Diplome"_s, u"Diplome"_s},
             {u"Multi_QSL"_s, u"L_Liste_QSO"_s, u"Indicatif"_s},
         }) {
        const QWidget &fenetre = Montre(ecran);
        auto *controle = Trouve(fenetre, champ);
        SCOPED_TRACE(champ.toStdString());
        EXPECT_EQ(Trouve<QLabel>(fenetre, legende)->buddy(), controle);
        EXPECT_FALSE(controle->accessibleName().isEmpty());
    }
}

TEST_F(Programme_Ouvert, la_legende_de_l_ecran_principal_mene_a_son_champ)
{
    std::vector<std::pair<QString, QString>> paires = {{u"Label1"_s, u"Ref_A"_s}};
    for (const QString &nom : {u"Dip"_s, u"Bande"_s, u"Ind"_s, u"Prenom"_s, u"Dpt"_s, u"Date"_s, u"Heure"_s, u"Mode"_s,
                               u"RSTR"_s, u"RSTE"_s, u"Nom"_s})
        paires.emplace_back(nom + u"_L", nom + u"_A");
    for (const auto &[legende, champ] : paires)
        EXPECT_EQ(Trouve<QLabel>(Ecran(), legende)->buddy(), &Controle_Nomme(champ)) << champ.toStdString();
}
