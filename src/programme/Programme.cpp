#include "programme/Programme.h"

#include "listes/Fichiers_De_Depart.h"
#include "programme/Demarrage.h"
#include "programme/Inscriptions.h"
#include "saisie/Ouverture_Diplome.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

Programme::Programme(const QString &repertoire, const Horloge &horloge)
    : dossier_(repertoire),
      vues_web_(Vues_Web_Du_Programme()),
      ecran_({dossier_, reglages_, horloge, boites_, registre_, imprimante_, telechargement_, *vues_web_}, etat_)
{
    Inscrit(registre_, ecran_.Le_Poste(), ecran_.La_Saisie());
    registre_.Previent([this] { Suit_L_Annee(ecran_.Le_Poste(), ecran_.La_Saisie()); });
    ecran_.Installe_Menus(registre_);
}

bool Programme::Est_Neuf()
{
    return Station_Retenue(ecran_.Le_Poste()) == indicatif_absent;
}

void Programme::Installe()
{
    Depose_Fichiers_De_Depart(dossier_);
}

void Programme::Ouvre()
{
    Demarre(ecran_.Le_Poste(), ecran_.La_Saisie(), [this] { ecran_.Ouvre(); });
}

void Programme::Propose(const QString &fichier_adif)
{
    const QString nom = QDir::toNativeSeparators(fichier_adif);
    if (Est_Neuf())
        return boites_.Message(u"Entrez d'abord votre indicatif, puis importez %1"_s.arg(nom));
    if (!QFileInfo(fichier_adif).isFile())
        return boites_.Message(u"Le fichier %1 n'existe pas"_s.arg(nom));
    etat_.fichier_adif = fichier_adif;
    registre_.Execute(u"Import_ADIF"_s);
    // After a no the next import is the operator's own.
    etat_.fichier_adif.clear();
}
