#include "programme_au_hasard/Vie.h"

#include "programme_au_hasard/Diplomes.h"

#include <QApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

/// The text in which a screen names its award.
QString Nom_Affiche(const QWidget &ecran)
{
    if (ecran.objectName() == u"ADIF")
        return ecran.findChild<QLabel *>(u"Label2"_s)->text();
    if (ecran.objectName() == u"Carte_Acti")
        return ecran.findChild<QLabel *>(u"Label1"_s)->text();
    return ecran.windowTitle();
}

QString Court(const QStringList &lignes)
{
    return lignes.join(u" / "_s).simplified().left(400);
}

} // namespace

bool Vie::Est_Nomme(const QString &log)
{
    const Ecran_Vu apres = Regarde(programme_->Ecran(), au_depart_);
    if (geste_.nommes.contains(log))
        return true;
    // An award that is opened, or met at a change of station, has its references of earlier times rewritten.
    if (geste_.ouvre_dip && log == Log_De(apres.station, apres.dip))
        return true;
    return apres.station != vu_.station && log == Log_De(apres.station, apres.diplome);
}

/// An empty log under a name that the operator typed, or that the start makes where it was missing.
bool Vie::Est_Une_Creation(const QString &log, const Photo &apres) const
{
    if (avant_.contains(log) || !apres.contains(log) || !apres.at(log).isEmpty())
        return false;
    if (geste_.recit == u"start")
        return log.startsWith(vu_.station + u'_');
    for (const QString &station : repondeur_.Stations())
        if (log.startsWith(station + u'_'))
            return true;
    for (const QString &annee : repondeur_.Annees())
        if (log == Nom_Du_Log(vu_.station, u"Ch_DFCF"_s, annee) || log == Nom_Du_Log(vu_.station, u"Ch_DMF"_s, annee))
            return true;
    return false;
}

/// No log changed that no screen named.
void Vie::Verifie_Les_Logs()
{
    const Photo apres = Photographie(dossier_);
    for (const QString &log : Differents(avant_, apres)) {
        Note(u"  changed "_s + log);
        if (Est_Une_Creation(log, apres))
            continue;
        if (!Est_Nomme(log))
            Accuse(u"%1 changed, but the screen named %2"_s.arg(
                log, QStringList(geste_.nommes.begin(), geste_.nommes.end()).join(u' ')));
        if (geste_.effet != Effet::Autre)
            Verifie_La_Ligne(log, apres);
    }
}

/// What a commit or a delete did: one QSO, with the call sign that stood in its field, of the list on screen.
void Vie::Verifie_La_Ligne(const QString &log, const Photo &apres)
{
    const QStringList venues = En_Plus(Lignes(apres, log), Lignes(avant_, log));
    const QStringList parties = En_Plus(Lignes(avant_, log), Lignes(apres, log));
    if (parties.size() > 1 || venues.size() > (geste_.effet == Effet::Range ? 1 : 0))
        Accuse(log + u": more than one QSO changed, gone: "_s + Court(parties) + u" come: " + Court(venues));
    for (const QString &venue : venues)
        if (venue.left(12).trimmed() != vu_.ind)
            Accuse(u"%1: the QSO of \"%2\" was stored as %3"_s.arg(log, vu_.ind, venue));
    const bool du_log_a_l_ecran = vu_.rangees == Rangees(avant_, log);
    if (!parties.isEmpty() && !du_log_a_l_ecran)
        Accuse(log + u": a QSO went that was not in the list on screen: "_s + Court(parties));
    const bool modifie = vu_.mode == u"Affichage QSO" || vu_.mode == u"Modification QSO";
    if (geste_.effet == Effet::Range && modifie && !du_log_a_l_ecran)
        Accuse(log + u": a QSO of the list on screen was stored in another log: "_s + Court(venues));
}

/// The list is that of the log whose award the screen names.
void Vie::Verifie_L_Ecran(const Photo &apres)
{
    const Ecran_Vu ecran = Regarde(programme_->Ecran(), au_depart_);
    const QString log = Log_De(ecran.station, ecran.diplome);
    if (ecran.dip == ecran.diplome && ecran.rangees != Rangees(apres, log))
        Accuse(u"the screen names %1, its list shows: %2"_s.arg(log, Court(ecran.rangees)));
}

/// The screens that work on the award in hand name it, those that follow it at any time.
void Vie::Verifie_Les_Noms()
{
    const QString diplome = Regarde(programme_->Ecran(), au_depart_).diplome;
    for (const QWidget *ecran : QApplication::topLevelWidgets()) {
        const QString nom = ecran->objectName();
        const bool suit = nom == u"ADIF" || nom == u"Recherche_Indicatif";
        if (!ecran->isVisible() || nom.isEmpty() || (!suit && nom != geste_.montre))
            continue;
        if (!Nom_Affiche(*ecran).split(u' ').contains(diplome))
            Accuse(u"%1 names \"%2\" while %3 is open"_s.arg(nom, Nom_Affiche(*ecran), diplome));
    }
}
