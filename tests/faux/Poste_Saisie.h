#pragma once

#include "faux/Poste_Essai.h"
#include "log/Catalogue.h"
#include "saisie/Ecran_Du_Log.h"
#include "saisie/QSO_Courant.h"
#include "saisie/Repos.h"
#include "saisie/Saisie.h"

#include <gtest/gtest.h>

/// A position with the entry in it, at rest: the station F9ZZY, 14 Mhz in SSB, an empty first-name list.
struct Poste_Saisie : Poste_Essai {
    Saisie saisie;
    Ecran_Du_Log ecran_du_log{saisie};
    Poste poste{static_cast<const Ports &>(Poste_Essai::poste), etat, ecran_du_log};

    Poste_Saisie()
    {
        saisie.Se_Montre([this](Controle controle, Aspect aspect) {
            // A real control that is disabled does not take the focus.
            EXPECT_TRUE(aspect != Aspect::Focus || saisie.Est_Actif(controle)) << Nom(controle).toStdString();
        });
        fichiers.Pose(QStringLiteral("Liste_Prenom.txt"), "");
        saisie.Choisit(Controle::Bande_A, 4);
        saisie.Choisit(Controle::Mode_A, 0);
        reglages.vorlain[{QStringLiteral("Setup F9ZZY"), QStringLiteral("bande Utilisee")}] = QStringLiteral("4");
        reglages.vorlain[{QStringLiteral("Setup F9ZZY"), QStringLiteral("Mode Utilise")}] = QStringLiteral("0");
        Efface_Tout(saisie);
    }

    /// The award that is open, with its log shown and the entry at the band, without the screen's dressing.
    void Ouvre_Log(const QString &code, const QByteArray &octets = {})
    {
        fichiers.Pose(QStringLiteral("F9ZZY_") + code + QStringLiteral(".log"), octets);
        etat.station.diplome = Diplome_De(code);
        saisie.Ecrit(Controle::Dip_A, code);
        Efface_Champs(saisie);
        ecran_du_log.Remplit_Liste(dossier.Lit_Lignes(QStringLiteral("F9ZZY_") + code + QStringLiteral(".log")));
    }
    /// The messages since the last call.
    std::vector<QString> Messages() { return std::exchange(boites.messages, {}); }
};
