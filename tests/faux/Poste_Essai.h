#pragma once

#include "faux/Boites_Fausses.h"
#include "faux/Ecran_Faux.h"
#include "faux/Ecrans_Faux.h"
#include "faux/Horloge_Fixe.h"
#include "faux/Imprimante_Fausse.h"
#include "faux/Reglages_Memoire.h"
#include "faux/Telechargement_Faux.h"
#include "faux/Vues_Web_Fausses.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/disque/Dossier_Disque.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

/// Bytes of files in a folder of a test, past the program's own reading and writing.
class Dossier_Temporaire {
public:
    [[nodiscard]] QString Chemin(const QString &nom) const { return dossier_.filePath(nom); }
    [[nodiscard]] QString Chemin() const { return dossier_.path(); }
    [[nodiscard]] bool Existe(const QString &nom) const { return QFile::exists(Chemin(nom)); }

    void Pose(const QString &nom, const QByteArray &octets) const
    {
        QFile fichier(Chemin(nom));
        if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
            throw std::runtime_error("test file not written");
    }
    [[nodiscard]] QByteArray Octets(const QString &nom) const
    {
        QFile fichier(Chemin(nom));
        if (!fichier.open(QIODevice::ReadOnly))
            throw std::runtime_error("test file not there: " + nom.toStdString());
        return fichier.readAll();
    }
    /// The names of the files, sorted.
    [[nodiscard]] QStringList Fichiers() const { return QDir(Chemin()).entryList(QDir::Files, QDir::Name); }

private:
    QTemporaryDir dossier_;
};

/// An operating position of a test: real files in a folder of its own, everything else recorded. The station is F9ZZY.
struct Poste_Essai {
    Dossier_Temporaire fichiers;
    Dossier_Disque dossier{fichiers.Chemin()};
    Reglages_Memoire reglages;
    Horloge_Fixe horloge;
    Boites_Fausses boites;
    Ecrans_Faux ecrans;
    Imprimante_Fausse imprimante;
    Telechargement_Faux telechargement;
    Vues_Web_Fausses vues_web;
    Etat_Commun etat;
    Ecran_Faux ecran;
    Poste poste{{dossier, reglages, horloge, boites, ecrans, imprimante, telechargement, vues_web}, etat, ecran};

    Poste_Essai()
    {
        etat.station.indicatif = QStringLiteral("F9ZZY");
        ecran.i_station = etat.station.indicatif;
    }
    /// The award that is open, and that Dip_A shows.
    void Ouvre(const QString &code)
    {
        etat.station.diplome = Diplome_De(code);
        ecran.dip_a = code;
    }
};
