#pragma once

#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "faux/QSO_Essai.h"
#include "plateforme/Lignes_Texte.h"

#include <random>
#include <vector>

/// The bytes of a file beside the tests: "donnees/..." or "attendus/...".
inline QByteArray Octets_Essai(const QString &nom)
{
    QFile fichier(QStringLiteral(DONNEES_ESSAI "/") + nom);
    if (!fichier.open(QIODevice::ReadOnly))
        throw std::runtime_error("test data not there: " + nom.toStdString());
    return fichier.readAll();
}

/// A log text from its lines.
inline QString Texte_Log(const std::vector<QString> &lignes)
{
    QString texte;
    for (const QString &ligne : lignes)
        texte += ligne + fin_de_ligne;
    return texte;
}

inline std::vector<QString> En_Lignes(const QString &texte)
{
    const Lignes_Texte lignes(texte);
    std::vector<QString> resultat;
    for (const QStringView ligne : lignes)
        resultat.push_back(ligne.toString());
    return resultat;
}

/// Random but well-formed logs, with repeats of references, minutes and stations; the same for one seed.
class Logs_Au_Hasard {
public:
    explicit Logs_Au_Hasard(unsigned graine) : hasard_(graine) {}

    int Nombre(int maximum) { return std::uniform_int_distribution<int>(0, maximum)(hasard_); }

    QString Deux_Chiffres(int maximum) { return QString::number(Nombre(maximum)).rightJustified(2, u'0'); }

    QString Ligne()
    {
        using namespace Qt::StringLiterals;
        Champs_QSO champs;
        champs.ind = u"F"_s + QString::number(Nombre(9)) + (Nombre(1) ? u"AB"_s : u"ab"_s);
        champs.dpt = Deux_Chiffres(95);
        champs.prenom = Nombre(2) ? u"JEAN"_s : u""_s;
        champs.ref = Nombre(9) ? champs.dpt + u"00" + QString::number(Nombre(3)) : u""_s;
        champs.date = Deux_Chiffres(28) + u'/' + Deux_Chiffres(12) + u'/' + Deux_Chiffres(99);
        champs.heure = Deux_Chiffres(23) + u':' + Deux_Chiffres(59);
        champs.nom = Nombre(1) ? u"C. DE VAUX"_s : u"m. é"_s;
        champs.qsl = Nombre(1) ? u"*"_s : u" "_s;
        return QSO(champs);
    }

    std::vector<QString> Log(int maximum)
    {
        std::vector<QString> lignes(static_cast<std::size_t>(Nombre(maximum)));
        for (QString &ligne : lignes)
            ligne = !lignes.front().isEmpty() && Nombre(9) == 0 ? lignes.front() : Ligne();
        return lignes;
    }

private:
    std::mt19937 hasard_;
};
