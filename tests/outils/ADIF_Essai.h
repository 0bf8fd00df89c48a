#pragma once

#include "Log_Essai.h"
#include "outils/Import_ADIF.h"

#include <functional>

/// A record of an ADIF file for tests: what is not written has a valid value. "-" leaves a tag out.
struct Enregistrement_Essai {
    QString call = QStringLiteral("F5ABC");
    QString state = QStringLiteral("77");
    QString name = QStringLiteral("JEAN");
    QString sig = QStringLiteral("77001");
    QString qso_date = QStringLiteral("20150926");
    QString time_on = QStringLiteral("1405");
    QString mode = QStringLiteral("SSB");
    QString band = QStringLiteral("20M");
    QString freq = QStringLiteral("-");
    QString rst_rcvd = QStringLiteral("59");
    QString rst_sent = QStringLiteral("57");
    QString sig_info = QStringLiteral("C. DE VAUX");
    QString qsl_rcvd = QStringLiteral("Y");
};

inline QString ADIF(const Enregistrement_Essai &valeurs)
{
    QString texte;
    const auto pose = [&](const QString &etiquette, const QString &valeur) {
        if (valeur != u"-")
            texte += u'<' + etiquette + u':' + QString::number(valeur.size()) + u'>' + valeur + u' ';
    };
    pose(QStringLiteral("CALL"), valeurs.call);
    pose(QStringLiteral("STATE"), valeurs.state);
    pose(QStringLiteral("NAME"), valeurs.name);
    pose(QStringLiteral("SIG"), valeurs.sig);
    pose(QStringLiteral("QSO_DATE"), valeurs.qso_date);
    pose(QStringLiteral("TIME_ON"), valeurs.time_on);
    pose(QStringLiteral("MODE"), valeurs.mode);
    pose(QStringLiteral("BAND"), valeurs.band);
    pose(QStringLiteral("FREQ"), valeurs.freq);
    pose(QStringLiteral("RST_RCVD"), valeurs.rst_rcvd);
    pose(QStringLiteral("RST_SENT"), valeurs.rst_sent);
    pose(QStringLiteral("SIG_INFO"), valeurs.sig_info);
    pose(QStringLiteral("QSL_RCVD"), valeurs.qsl_rcvd);
    return texte + u"<EOR>";
}

/// The screen of the import, with the file that it gives.
struct Ecran_Import_Faux : Ecran_Import {
    std::function<void()> pendant_le_choix;
    QString chemin;
    bool ferme = false;
    std::size_t avances = 0;
    std::size_t total = 0;
    std::function<void()> a_la_fermeture = [] {};

    std::optional<QString> Choisit_Fichier() override
    {
        if (pendant_le_choix)
            pendant_le_choix();
        return chemin;
    }
    void Avance(std::size_t faites, std::size_t toutes) override
    {
        avances = faites;
        total = toutes;
    }
    void Ferme() override
    {
        ferme = true;
        a_la_fermeture();
    }
};
