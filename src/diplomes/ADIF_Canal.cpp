#include "diplomes/ADIF_Canal.h"

#include "adif/Bandes_En_Metres.h"
#include "adif/Enregistrement_ADIF.h"
#include "diplomes/ADIF_Ouvrages.h"
#include "diplomes/Lit_Sources.h"
#include "diplomes/regles/Canal.h"
#include "log/Champ.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

#include <map>

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

/// The columns as the record reads them.
namespace lu {
constexpr Champ Ind{1, 12};
constexpr Champ Prenom{19, 15};
constexpr Champ Ref{35, 5};
constexpr Champ Date{41, 8};
constexpr Champ Heure{50, 5};
constexpr Champ Mode{56, 3};
constexpr Champ Bande{60, 7};
constexpr Champ RSTR{68, 3};
constexpr Champ RSTE{72, 3};
constexpr Champ Nom{76, 30};
} // namespace lu

/// The reference in a row of the board, as far as it is compared.
constexpr Champ ref_du_rang{8, 5};

/// The first line of each reference.
std::map<QStringView, QStringView> Premieres_Lignes(const Lignes_Texte &lignes)
{
    std::map<QStringView, QStringView> premieres;
    for (const QStringView ligne : lignes)
        premieres.try_emplace(Lit_Rogne(ligne, lu::Ref), ligne);
    return premieres;
}

} // namespace

QString Ligne_ADIF_Canal(QStringView ligne_log)
{
    const auto champ = [&](Champ colonnes) { return Lit_Rogne(ligne_log, colonnes); };
    Enregistrement_ADIF enregistrement;
    enregistrement.Pose(u"call", champ(lu::Ind));
    enregistrement.Pose(u"name", champ(lu::Prenom));
    enregistrement.Pose(u"band", Metres(bandes_d_un_diplome, champ(lu::Bande)));
    enregistrement.Pose(u"mode", champ(lu::Mode));
    enregistrement.Pose(u"qso_date", Rogne(Date_ADIF(Lit(ligne_log, lu::Date))));
    enregistrement.Pose(u"time_on", Rogne(Heure_ADIF(Lit(ligne_log, lu::Heure))));
    enregistrement.Pose(u"rst_rcvd", champ(lu::RSTR));
    enregistrement.Pose(u"rst_sent", champ(lu::RSTE));
    enregistrement.Pose(u"comment", Rogne(QString(champ(lu::Ref) + u' ' + champ(lu::Nom))));
    return enregistrement.Termine();
}

void ADIF_Challenge(Poste &poste, const Etat_Challenge &etat, QStringView palier)
{
    const QString nom = poste.etat.station.indicatif + u" Diplome " + etat.entete + u' ' + palier + u".adi";
    const Lignes_Texte lignes = Lit_Sources(poste, sources_du_canal).log;
    const std::map<QStringView, QStringView> premieres = Premieres_Lignes(lignes);
    QString texte = Entete_De_Diplome(poste.etat, sources_du_canal.diplome);
    for (const QString &rang : etat.rangs)
        if (const auto place = premieres.find(Lit_Rogne(rang, ref_du_rang)); place != premieres.end())
            texte += Ligne_ADIF_Canal(place->second) + fin_de_ligne;
    poste.dossier.Remplace(nom, texte, u"Temporaire_Liste.txt"_s);
    poste.boites.Message(u"Le fichier a été enregistré sous le nom : "_s + nom);
}

} // namespace diplomes
