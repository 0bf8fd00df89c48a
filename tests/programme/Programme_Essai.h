#pragma once

#include "faux/Conduite.h"
#include "faux/Horloge_Fixe.h"
#include "faux/Impression.h"
#include "faux/Poste_Essai.h"
#include "log/Catalogue.h"
#include "programme/Programme.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <gtest/gtest.h>

#include <optional>

/// The whole real program, on a folder and with settings of the test's own. Only the clock is a fake.
class Programme_Essai : public ::testing::Test {
protected:
    Programme_Essai()
    {
        qputenv("XDG_CONFIG_HOME", reglages_.Chemin().toUtf8());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, reglages_.Chemin());
    }

    /// A station with its backup folder and an empty log for each award, as a program that ran before leaves it.
    void Installe_Station(const QString &diplome)
    {
        Regle(QStringLiteral("Setup "), QStringLiteral("Indicatif Station"), QStringLiteral("F9ZZY"));
        Regle(section, QStringLiteral("Chemin Sauvegarde"), QStringLiteral("/nulle part"));
        Regle(section, QStringLiteral("Date_Sauvegarde"), QStringLiteral("15/11/2026"));
        Regle(section, QStringLiteral("Diplome Utilise"), QString::number(Rang(diplome)));
        for (const QStringView code : codes_diplome)
            if (!fichiers.Existe(QStringLiteral("F9ZZY_") + code + QStringLiteral(".log")))
                fichiers.Pose(QStringLiteral("F9ZZY_") + code + QStringLiteral(".log"), {});
    }

    void Regle(const QString &section_, const QString &cle, const QString &valeur)
    {
        Reglages_Qt().Ecrit(section_, cle, valeur);
    }
    [[nodiscard]] QString Reglage(const QString &section_, const QString &cle) const
    {
        return Reglages_Qt().Lit(section_, cle, QStringLiteral("(absent)"));
    }

    /// Starts the program; gives the texts of the message boxes of the start-up.
    std::vector<QString> Ouvre()
    {
        programme.emplace(fichiers.Chemin(), horloge);
        return conduite::Repond({}, [this] {
            programme->Installe();
            programme->Ouvre();
        });
    }

    Main &Ecran() { return programme->Ecran(); }
    template <typename Widget = QWidget>
    Widget &Controle_Nomme(const QString &nom)
    {
        return *conduite::Trouve<Widget>(Ecran(), nom);
    }
    /// What a control of the main screen shows.
    QString Texte(Controle controle)
    {
        const QWidget &widget = Controle_Nomme(Nom(controle));
        for (const char *texte : {"text", "currentText", "title"})
            if (widget.property(texte).isValid())
                return widget.property(texte).toString();
        return {};
    }
    bool Est_Actif(Controle controle) { return Controle_Nomme(Nom(controle)).isEnabled(); }
    /// Types in a field and leaves it with Enter.
    void Saisit(const QString &nom, const QString &texte)
    {
        conduite::Tape(Controle_Nomme(nom), texte);
        conduite::Entree(Controle_Nomme(nom));
    }
    std::vector<QString> QSO_Affiches()
    {
        return conduite::Rangees(Controle_Nomme<QAbstractItemView>(QStringLiteral("Liste_QSO")));
    }

    static int Rang(const QString &code)
    {
        return static_cast<int>(std::find(codes_diplome.begin(), codes_diplome.end(), code) - codes_diplome.begin());
    }

    const QString section = QStringLiteral("Setup F9ZZY");
    Dossier_Temporaire fichiers;
    Horloge_Fixe horloge;
    std::optional<Programme> programme;

private:
    Dossier_Temporaire reglages_;
};
