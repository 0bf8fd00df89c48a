#include "listes/Maj_Liste.h"

#include "listes/Download.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"
#include "log/Serveurs.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Tolere.h"

#include <array>

namespace {

QStringView Avant_Le_Separateur(QStringView ligne)
{
    const qsizetype fin = ligne.indexOf(u';');
    return fin < 0 ? ligne : ligne.first(fin);
}

QStringView Dix_Neuf_Caracteres(QStringView ligne)
{
    return ligne.first(qMin(qsizetype{19}, ligne.size()));
}

QStringView Ligne_Entiere(QStringView ligne)
{
    return ligne;
}

// clang-format off
constexpr std::array<Maj, 7> majs = {{
    {u"Mnu_Maj_DOHF", u"DOHF", u"/files/Liste_Ouvrages.csv", u"Liste_Ouvrages.csv", u"Revision_Liste_DOHF", u"Rev 000 01/01/12", Avant_Le_Separateur, u"La liste est à la derniere révision   (", u"La liste des sites à été mise à jour   "},
    {u"Mnu_Maj_TDC", u"Programme", u"/Vorlain_TDC/Liste_TDC.csv", u"Liste_TDC.csv", u"Revision_Liste_TDC", u"Rev 000 01/01/12", Avant_Le_Separateur, u"La liste est à la derniere révision   (", u"La liste des tours à été mise à jour "},
    {u"Mnu_Maj_WFF", u"Programme", u"/Vorlain_WFF/Liste_FFF.csv", u"Liste_FFF.csv", u"Revision_Liste_WFF", u"Rev 000 du 01/01/12", Dix_Neuf_Caracteres, u"La liste est à la derniere révision   (", u"La liste des sites à été mise à jour "},
    {u"Mnu_Maj_DFCF", u"Programme", u"/Vorlain_DFCF/Liste_DFCF.csv", u"Liste_DFCF.csv", u"Revision_Liste_DFCF", u"Rev 000 du 01/01/12", Dix_Neuf_Caracteres, u"La liste des Chateaux est à la derniere révision   (", u"La liste des Chateaux à été mise à jour "},
    {u"Mnu_Maj_DCF", u"Programme", u"/Vorlain_DCF/Liste_DCF.csv", u"Liste_DCF.csv", u"Revision_Liste_DCF", u"Rev 000 du 01/01/12", Dix_Neuf_Caracteres, u"La liste des Cathédrales est à la derniere révision   (", u"La liste des Cathédrales à été mise à jour "},
    {u"Mnu_Maj_DPLF", u"Programme", u"/Vorlain_DPLF/Liste_DPLF.txt", u"Liste_DPLF.txt", u"Revision_Liste_DPLF", u"Rev 000 du 01/01/12", Ligne_Entiere, u"La liste des Phares est à la derniere révision   (", u"La liste des Phares à été mise à jour "},
    {u"Mnu_Maj_PC", u"PC", u"/files/Liste_PC.csv", u"Liste_PC.csv", u"Revision_Liste_PC", u"Rev 000 01/01/12", Avant_Le_Separateur, u"La liste des Patrimoines est à la derniere révision   (", u"La liste des Patrimoines à été mise à jour   "},
}};
// clang-format on

QString Premiere_Ligne(const Dossier &dossier, QStringView fichier)
{
    QString ligne;
    Tolere([&] {
        const Lignes_Texte lignes = dossier.Lit_Lignes(fichier.toString());
        if (!lignes.empty())
            ligne = lignes[0].toString();
    });
    return ligne;
}

} // namespace

std::span<const Maj> Majs_Liste()
{
    return majs;
}

void Maj_Liste(Poste &poste, const Maj &maj)
{
    Tolere([&] {
        Download(poste, Adresse_Serveur(poste, maj.serveur, maj.chemin), maj.fichier.toString(), Sorte_Fichier::Liste);
    });
    const QString retenue = Lit_Station(poste, maj.cle, maj.defaut);
    const QString ligne = Premiere_Ligne(poste.dossier, maj.fichier);
    const QString revision = maj.revision(ligne).toString();
    // Revisions are not ordered: an older list is told as new.
    if (revision == retenue)
        poste.boites.Message(maj.identique + revision + u')');
    else
        poste.boites.Message(maj.differente + revision);
    Tolere([&] { Ecrit_Station(poste, maj.cle, revision); });
}
