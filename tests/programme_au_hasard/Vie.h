#pragma once

#include "faux/Horloge_Fixe.h"
#include "programme/Programme.h"
#include "programme_au_hasard/Geste.h"
#include "programme_au_hasard/Repondeur.h"

#include <QFile>

/// How a life of the program ends, as its exit status.
enum class Fin { Au_Bout = 0, Erreur = 1, Fautive = 3 };

/// One run of the whole program: gestures at random until they are made, the operator quits or the program ends by a
/// failure. After each one the logs on the disk and the texts on the screen are looked at.
class Vie {
public:
    /// `gestes` is how many to make at most; each one is written to `journal` before it is made.
    Vie(QString dossier, QString journal, std::uint32_t graine, int gestes);

    /// Runs the program; gives the exit status.
    int Passe();

private:
    void Commence();
    void Fait_Un_Geste();
    void Regarde_Apres();
    /// Ends the process at once: what was found is the last line of the journal.
    [[noreturn]] void Accuse(const QString &faute);
    void Note(const QString &ligne);

    void Verifie_Les_Logs();
    void Verifie_La_Ligne(const QString &log, const Photo &apres);
    void Verifie_L_Ecran(const Photo &apres);
    void Verifie_Les_Noms();
    [[nodiscard]] bool Est_Nomme(const QString &log);
    [[nodiscard]] bool Est_Une_Creation(const QString &log, const Photo &apres) const;
    [[nodiscard]] QStringList Combos();

    QString dossier_;
    Hasard hasard_;
    int restants_;
    QFile journal_;
    Horloge_Fixe horloge_;
    std::optional<Programme> programme_;
    Repondeur repondeur_;
    std::optional<Operateur> operateur_;
    QString au_depart_; ///< the award that the start loaded

    Geste geste_;
    Photo avant_;
    Ecran_Vu vu_;
    QStringList combos_;
};
