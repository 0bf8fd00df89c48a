#pragma once

#include "faux/Poste_Essai.h"

/// Real files, and a record of how often each one is read and written.
class Dossier_Compte : public Dossier_Disque {
public:
    using Dossier_Disque::Dossier_Disque;

    [[nodiscard]] QString Lit(const QString &nom) const override
    {
        lus.push_back(nom);
        return Dossier_Disque::Lit(nom);
    }
    void Remplace_Octets(const QString &nom, QByteArrayView octets, const QString &temporaire) override
    {
        ecrits.push_back(nom);
        Dossier_Disque::Remplace_Octets(nom, octets, temporaire);
    }
    void Ajoute(const QString &nom, QStringView ligne) override
    {
        ecrits.push_back(nom);
        Dossier_Disque::Ajoute(nom, ligne);
    }

    mutable QStringList lus;
    QStringList ecrits;
};

/// The operating position of a test whose reads and writes are counted.
struct Poste_Compte : Poste_Essai {
    Dossier_Compte compte{fichiers.Chemin()};
    Poste compteur{{compte, reglages, horloge, boites, ecrans, imprimante, telechargement, vues_web}, etat, ecran};
};
