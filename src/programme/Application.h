#pragma once

#include <QApplication>

/// The Qt application of the program: the one place where an unhandled failure ends.
class Application : public QApplication {
    Q_OBJECT

public:
    Application(int &nombre, char **arguments);

    bool notify(QObject *objet, QEvent *evenement) override;
};

/// Shows "Erreur d'exécution : " and the cause, and ends the process with status 1. Nothing unwinds: an outer handler
/// behind a modal screen must not go on and write.
class Erreur_Execution;
[[noreturn]] void Termine_Sur(const Erreur_Execution &erreur);
