#include "outils/Lignes_ADIF.h"

#include "log/Ligne_Log.h"
#include "outils/Bande_ADIF.h"
#include "outils/Champs_ADIF.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

namespace col = colonnes_log;

/// What becomes of the value of one tag. `lit` gets a value that is not empty; an empty result counts as absent.
struct Regle_Champ {
    Etiquette etiquette;
    QString Champs_QSO::*champ;
    QString (*lit)(QStringView valeur);
    QStringView absent;
    QStringView message; ///< shown when absent; empty for none
};

template <qsizetype largeur>
QString Coupe(QStringView valeur)
{
    return valeur.left(largeur).toString();
}

QString Entiere(QStringView valeur)
{
    return valeur.toString();
}

QString Derriere_Le_Tiret(QStringView valeur)
{
    return valeur.sliced(valeur.indexOf(u'-') + 1).toString();
}

/// AAAAMMJJ as JJ/MM/AA.
QString Date_Du_Log(QStringView valeur)
{
    return valeur.last(qMin(qsizetype{2}, valeur.size())) + u'/' + Lit(valeur, {5, 2}) + u'/' + Lit(valeur, {3, 2});
}

QString Heure_Du_Log(QStringView valeur)
{
    return Lit(valeur, {1, 2}) + u':' + Lit(valeur, {3, 2});
}

QString Qsl_Du_Log(QStringView valeur)
{
    return valeur == u"Y" ? qsl_tenue.toString() : u" "_s;
}

// clang-format off
constexpr std::array<Regle_Champ, nombre_etiquettes> regles = {{
    {Etiquette::CALL,     &Champs_QSO::ind,    Coupe<12>,         u"FXXXX",      u"Indicatif absent, remplacé par FXXXX"},
    {Etiquette::STATE,    &Champs_QSO::dpt,    Entiere,           u"  ",         u""},
    {Etiquette::NAME,     &Champs_QSO::prenom, Coupe<15>,         u"",           u""},
    {Etiquette::SIG,      &Champs_QSO::ref,    Derriere_Le_Tiret, u"          ", u""},
    {Etiquette::QSO_DATE, &Champs_QSO::date,   Date_Du_Log,       u"01/01/2000", u"Date absente, remplacée par 01/01/2000"},
    {Etiquette::TIME_ON,  &Champs_QSO::heure,  Heure_Du_Log,      u"00:00",      u"Heure absente, remplacée par 00:00"},
    {Etiquette::MODE,     &Champs_QSO::mode,   Coupe<3>,          u"XXX",        u""},
    {Etiquette::BAND,     &Champs_QSO::bande,  Bande_De_Cle,      u"1.8 Mhz",    u"Bande absente, remplacée par 1.8 Mhz"},
    {Etiquette::FREQ,     &Champs_QSO::bande,  Bande_De_Frequence, u"1.8 Mhz",   u"Bande absente, remplacée par 1.8 Mhz"},
    {Etiquette::RST_RCVD, &Champs_QSO::rstr,   Coupe<3>,          u"XX",         u""},
    {Etiquette::RST_SENT, &Champs_QSO::rste,   Coupe<3>,          u"XX",         u""},
    {Etiquette::SIG_INFO, &Champs_QSO::nom,    Coupe<30>,         u"",           u""},
    {Etiquette::QSL_RCVD, &Champs_QSO::qsl,    Qsl_Du_Log,        u" ",          u""},
}};
// clang-format on

Erreur_Execution Trop_Long(QStringView champ, QStringView valeur)
{
    return {Cause::Format_ADIF,
            u"dans le fichier ADIF, « %1 » est trop long pour le champ %2 du log"_s.arg(valeur.left(60), champ)};
}

/// The failure of a field that its columns and the blanks behind them cannot hold; the others are short by
/// construction.
std::optional<Erreur_Execution> Depassement(const Champs_QSO &champs)
{
    constexpr qsizetype dpt_et_blancs = 5;
    if (champs.dpt.size() > dpt_et_blancs)
        return Trop_Long(u"Dpt", champs.dpt);
    if (champs.ref.size() > col::Ref.largeur)
        return Trop_Long(u"Ref", champs.ref);
    // Only the date that replaces an absent one is so long. It stands so: an import stops at a QSO without date.
    if (champs.date.size() > col::Date.largeur + 1)
        return Trop_Long(u"Date", champs.date);
    return std::nullopt;
}

/// A department of three to five characters runs into the three blanks behind it.
QString Compose(Champs_QSO champs)
{
    const QString dpt = std::exchange(champs.dpt, QString());
    QString ligne = Compose_Ligne_Log(champs);
    return ligne.replace(col::Dpt.colonne - 1, dpt.size(), dpt);
}

} // namespace

Lignes_ADIF::Lignes_ADIF(std::optional<Diplome> diplome, const Choix_Import &choix)
    : diplome_(diplome),
      multi_(choix.multi)
{
}

Lecture_ADIF Lignes_ADIF::Lit(QStringView enregistrement)
{
    const Champs_ADIF lus(enregistrement);
    Lecture_ADIF lecture;
    Champs_QSO champs;
    // FREQ is asked for only where BAND is not there at all.
    const Etiquette ecartee = lus.Contient(Etiquette::BAND) ? Etiquette::FREQ : Etiquette::BAND;
    for (const Regle_Champ &regle : regles) {
        if (regle.etiquette == ecartee)
            continue;
        const std::optional<QStringView> valeur = lus.Valeur(regle.etiquette);
        if (!valeur) {
            lecture.echec = Champs_ADIF::Sans_Fin(regle.etiquette);
            return lecture;
        }
        QString &champ = champs.*regle.champ;
        if (!valeur->isEmpty())
            champ = regle.lit(*valeur);
        if (champ.isEmpty()) {
            champ = regle.absent.toString();
            if (!regle.message.isEmpty())
                lecture.messages.push_back(regle.message);
        }
    }
    Retient_Le_Prefixe(*lus.Valeur(Etiquette::SIG));
    lecture.echec = Depassement(champs);
    if (!lecture.echec && Est_Retenu(champs.dpt, champs.ref))
        lecture.ligne = Compose(std::move(champs));
    return lecture;
}

void Lignes_ADIF::Retient_Le_Prefixe(QStringView sig)
{
    const qsizetype tiret = sig.indexOf(u'-');
    if (tiret >= 0)
        prefixe_ = sig.first(tiret).toString();
}

bool Lignes_ADIF::Est_Retenu(QStringView dpt, QStringView ref) const
{
    // Six blanks, where an absent reference has ten: such a record goes into the log. It stands so.
    if (ref == u"      " || (diplome_ != Diplome::FFF && dpt == u"  "))
        return false;
    return !multi_ || prefixe_ == Code(diplome_);
}
