#include "programme_au_hasard/Fichiers_De_Vie.h"

#include "programme_au_hasard/Diplomes.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QString stations[] = {u"F9ZZY"_s, u"F2OLD"_s};

void Ecrit(const QString &chemin, const QString &texte)
{
    QFile fichier(chemin);
    const QByteArray octets = texte.toLatin1();
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        throw std::runtime_error("not written: " + chemin.toStdString());
}

template <std::size_t N>
QString Une(const std::array<QStringView, N> &choix, Hasard &hasard)
{
    return choix[static_cast<std::size_t>(hasard.Rang(N))].toString();
}

QString Nombre(int valeur)
{
    return QString::number(valeur).rightJustified(2, u'0');
}

QString Date(Hasard &hasard)
{
    return Nombre(1 + hasard.Rang(28)) + u'/' + Nombre(1 + hasard.Rang(12)) + u'/' + Nombre(24 + hasard.Rang(3));
}

QString Ligne(const QString &ind, const QString &ref, Hasard &hasard)
{
    static constexpr std::array<QStringView, 4> departements = {u"77", u"89", u"2A", u"05"};
    static constexpr std::array<QStringView, 3> bandes = {u"14 Mhz", u"3.5 Mhz", u"7.0 Mhz"};
    return ind.leftJustified(13) + Une(departements, hasard) + u"   " + u"JEAN"_s.leftJustified(16) +
           ref.leftJustified(10) + Date(hasard) + u' ' + Nombre(hasard.Rang(24)) + u":30 SSB " +
           Une(bandes, hasard).leftJustified(8) + u"59  59  " + u"VAUX"_s.leftJustified(31) +
           (hasard.Sur_Cent(40) ? u'*' : u' ') + u"\r\n";
}

/// The form that a reference had before the program rewrote it; empty where there was none.
QString Ancienne_Ref(QStringView code)
{
    if (code == u"TDC")
        return u"11008"_s;
    if (code == u"DCPF")
        return u"CA0012"_s;
    if (code == u"FFF")
        return u"051"_s;
    return code == u"DOHF" ? u"EC102"_s : QString();
}

void Pose_Un_Log(const QString &dossier, const QString &station, const Diplome_Vu &diplome, Hasard &hasard)
{
    // Each log has correspondents of its own: a line that strays is known by them.
    const QString ind = station.sliced(0, 2) + diplome.code.toString().remove(u'_').left(6);
    QString texte;
    for (int rang = 2 + hasard.Rang(4); rang > 0; --rang)
        texte += Ligne(ind + QString::number(rang), Une(diplome.refs, hasard), hasard);
    if (const QString ancienne = Ancienne_Ref(diplome.code); !ancienne.isEmpty())
        texte += Ligne(ind, ancienne, hasard);
    const bool challenge = diplome.code.startsWith(u"Ch_");
    const QString debut = dossier + u'/' + station + u'_' + diplome.code;
    Ecrit(debut + u".log", challenge ? QString() : texte);
    if (challenge && station == stations[0])
        Ecrit(debut + u"_2025.log", texte);
}

void Pose_Trelune(const QString &dossier, const QString &station, Hasard &hasard)
{
    QString texte;
    for (const QStringView site : {u"77001", u"89001", u"63087", u"77009"}) {
        QString ligne(200, u' ');
        const auto pose = [&](qsizetype colonne, const QString &champ) {
            ligne.replace(colonne - 1, champ.size(), champ);
        };
        const bool chateau = hasard.Sur_Cent(50);
        pose(1, Date(hasard));
        pose(11, u"F1TRE"_s);
        pose(23, u"10:20"_s);
        pose(37, site.first(2).toString());
        pose(50, u"14 Mhz"_s);
        pose(60, u"SSB"_s);
        pose(69, u"59 "_s);
        pose(79, u"59 "_s);
        pose(chateau ? 94 : 93, site.toString());
        pose(165, chateau ? u" 1"_s : u" 2"_s);
        pose(169, u"M. BOIS"_s);
        texte += ligne + u"\r\n";
    }
    Ecrit(dossier + u'/' + station + u".log", texte);
}

} // namespace

void Pose_Les_Stations(const QString &dossier, Hasard &hasard)
{
    const QString trelune = dossier + u"/trelune"_s;
    QDir().mkpath(trelune);
    QSettings reglages(u"Vorlain"_s, u"Vorlain"_s);
    reglages.setValue(u"Setup /Indicatif Station"_s, stations[0]);
    reglages.setValue(u"Setup F9ZZY/Annee Challenge DFCF"_s, u"2025"_s);
    for (const QString &station : stations) {
        reglages.setValue(u"Setup "_s + station + u"/Chemin Sauvegarde", u"/nulle part"_s);
        reglages.setValue(u"Setup "_s + station + u"/Date_Sauvegarde", u"15/11/2026"_s);
        for (const Diplome_Vu &diplome : diplomes)
            Pose_Un_Log(dossier, station, diplome, hasard);
        Pose_Trelune(trelune, station, hasard);
    }
    QSettings(u"Trelune"_s, u"Trelune"_s).setValue(u"Setup/Chemin Repertoire"_s, trelune);
}

QString Pose_Un_ADIF(const QString &dossier, const QString &code, Hasard &hasard)
{
    const bool multi = hasard.Sur_Cent(30);
    const Diplome_Vu &autre = diplomes[static_cast<std::size_t>(hasard.Rang(diplomes.size()))];
    QString texte = u"Un fichier\r\n<EOH>\r\n"_s;
    for (const Diplome_Vu &diplome : diplomes)
        for (int rang = diplome.code == code ? 1 + hasard.Rang(4) : 0; rang > 0; --rang) {
            const QString ref = (multi ? code + u'-' : QString()) + Une(diplome.refs, hasard).remove(u'-');
            texte += u"<CALL:5>F1ADI <STATE:2>77 <SIG:%1>%2 <QSO_DATE:8>2025%3%4 <TIME_ON:4>1020 <MODE:3>SSB "
                     u"<BAND:3>20M <EOR>\r\n"_s.arg(ref.size())
                         .arg(ref, Nombre(1 + hasard.Rang(12)), Nombre(1 + hasard.Rang(28)));
        }
    if (hasard.Sur_Cent(5))
        texte.remove(u"<SIG:"_s);
    const QString nom = hasard.Sur_Cent(85) ? code : autre.code.toString();
    QDir().mkpath(dossier + u"/adif");
    const QString chemin = dossier + u"/adif/recu_" + nom + u".adi";
    Ecrit(chemin, texte);
    return chemin;
}
