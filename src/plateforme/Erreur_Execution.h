#pragma once

#include <QString>

#include <exception>

/// What made an operation impossible.
enum class Cause {
    Fichier_Introuvable,
    Fichier_Refuse, ///< not readable, not writable, a folder in the place of a file
    Disque_Plein,
    Caractere,    ///< a character that the Windows-1252 files cannot hold
    Type,         ///< a text that is no whole number where one is needed
    Indice,       ///< a number outside its table
    Format_Liste, ///< a list line with fewer separators than its reader needs
    Format_ADIF   ///< an ADIF record that cannot become a line of the log
};

/// The unhandled failure: ends the program with its report, unless a step is run through Tolere().
class Erreur_Execution : public std::exception {
public:
    Erreur_Execution(Cause cause, QString texte);

    [[nodiscard]] Cause La_Cause() const { return cause_; }
    /// The cause in French, with the file's name where a file is concerned; without the report's heading.
    [[nodiscard]] const QString &Texte() const { return texte_; }
    /// The text in UTF-8, for a handler that knows only std::exception.
    [[nodiscard]] const char *what() const noexcept override { return utf8_.constData(); }

private:
    Cause cause_;
    QString texte_;
    QByteArray utf8_;
};

/// "Erreur d'exécution : " and the text of the failure: what the one report shows.
QString Rapport(const Erreur_Execution &erreur);
