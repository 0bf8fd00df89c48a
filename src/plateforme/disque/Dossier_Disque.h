#pragma once

#include "plateforme/Dossier.h"

/// The files on the disk. The only place of the program where bytes are read and written.
class Dossier_Disque : public Dossier {
public:
    explicit Dossier_Disque(QString repertoire);

    [[nodiscard]] QString Repertoire_Appli() const override { return repertoire_; }
    [[nodiscard]] bool Existe(const QString &nom) const override;
    [[nodiscard]] QString Lit(const QString &nom) const override;
    [[nodiscard]] QByteArray Octets(const QString &nom) const override;
    void Remplace(const QString &nom, QStringView texte, const QString &temporaire) override;
    void Remplace_Octets(const QString &nom, QByteArrayView octets, const QString &temporaire) override;
    void Ajoute(const QString &nom, QStringView ligne) override;
    void Cree_Si_Absent(const QString &nom) override;
    void Supprime(const QString &nom) override;
    void Copie(const QString &source, const QString &cible) override;
    [[nodiscard]] std::vector<Fichier_Present> Fichiers(const QString &repertoire) const override;
    Issue_Copie Garde(const QString &source, const QString &cible, Avenir avenir) override;
    void Separe(const QString &copie) override;

private:
    [[nodiscard]] QString Chemin(const QString &nom) const;

    QString repertoire_;
};
