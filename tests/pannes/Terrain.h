#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <map>

/// Every file below the folders of a run, by its path from their root; a folder ends with "/".
using Releve = std::map<QString, QByteArray>;

/// The folders of one run of the program: data, settings, backup. In memory where the machine has such a place, since
/// each of thousands of runs syncs.
class Terrain {
public:
    Terrain();

    [[nodiscard]] QString Donnees() const { return base_.filePath(QStringLiteral("donnees")); }
    [[nodiscard]] QString Reglages() const { return base_.filePath(QStringLiteral("reglages")); }
    [[nodiscard]] QString Sauvegarde() const { return base_.filePath(QStringLiteral("sauvegarde")); }
    /// As Plan_De_Panne takes them.
    [[nodiscard]] QByteArray Surveilles() const;

    void Pose(const QString &chemin, const QByteArray &octets) const;
    [[nodiscard]] Releve Lit() const;
    /// Brings every file back to that state.
    void Remet(const Releve &releve) const;

private:
    QTemporaryDir base_;
};
