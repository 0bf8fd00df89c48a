#include "diplomes/ADIF_Canal.h"

#include "log/Champ.h"
#include "log/Chemin_Log.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"

#include <map>

using namespace Qt::StringLiterals;

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

QStringView Bande_ADIF(QStringView bande)
{
    constexpr std::array<std::pair<QStringView, QStringView>, 6> connues = {{{u"3.5 Mhz", u"80m"},
                                                                             {u"7.0 Mhz", u"40m"},
                                                                             {u"14 Mhz", u"20m"},
                                                                             {u"21 Mhz", u"15m"},
                                                                             {u"28 Mhz", u"10m"},
                                                                             {u"144 Mhz", u"2m"}}};
    for (const auto &[connue, nom] : connues)
        if (connue == bande)
            return nom;
    return {};
}

QString Date_ADIF(QStringView date)
{
    return u"20" + Lit(date, {7, 2}) + Lit(date, {4, 2}) + Lit(date, {1, 2});
}

QString Heure_ADIF(QStringView heure)
{
    return Lit(heure, {1, 2}).toString() + heure.right(2);
}

QString Entete(const QString &indicatif)
{
    const std::array<QString, 6> lignes = {
        u"Vorlain_DOHF"_s, QString(), u"Exportation du log de la station "_s + indicatif + u" au format ADIF",
        QString(),         QString(), u"<eoh>"_s};
    QString entete;
    for (const QString &ligne : lignes)
        entete += ligne + fin_de_ligne;
    return entete;
}

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
    QString enregistrement;
    const auto pose = [&](QStringView etiquette, QStringView texte) {
        const QStringView valeur = Rogne(texte);
        enregistrement += u'<' + etiquette + u':' + QString::number(valeur.size()) + u'>' + valeur + u' ';
    };
    pose(u"call", Lit(ligne_log, lu::Ind));
    pose(u"name", Lit(ligne_log, lu::Prenom));
    pose(u"band", Bande_ADIF(Lit_Rogne(ligne_log, lu::Bande)));
    pose(u"mode", Lit(ligne_log, lu::Mode));
    pose(u"qso_date", Date_ADIF(Lit(ligne_log, lu::Date)));
    pose(u"time_on", Heure_ADIF(Lit(ligne_log, lu::Heure)));
    pose(u"rst_rcvd", Lit(ligne_log, lu::RSTR));
    pose(u"rst_sent", Lit(ligne_log, lu::RSTE));
    const QString commentaire = Lit_Rogne(ligne_log, lu::Ref).toString() + u' ' + Lit_Rogne(ligne_log, lu::Nom);
    pose(u"comment", commentaire);
    return enregistrement + u"<eor>";
}

void ADIF_Challenge(Poste &poste, const Etat_Challenge &etat, QStringView palier)
{
    const QString &indicatif = poste.etat.indicatif;
    const QString nom = indicatif + u" Diplome " + etat.entete + u' ' + palier + u".adi";
    const Lignes_Texte lignes = poste.dossier.Lit_Lignes(Chemin_Log(poste.etat, u"DOHF"));
    const std::map<QStringView, QStringView> premieres = Premieres_Lignes(lignes);
    QString texte = Entete(indicatif);
    for (const QString &rang : etat.rangs)
        if (const auto place = premieres.find(Lit_Rogne(rang, ref_du_rang)); place != premieres.end())
            texte += Ligne_ADIF_Canal(place->second) + fin_de_ligne;
    poste.dossier.Remplace(nom, texte, u"Temporaire_Liste.txt"_s);
    poste.boites.Message(u"Le fichier a été enregistré sous le nom : "_s + nom);
}
