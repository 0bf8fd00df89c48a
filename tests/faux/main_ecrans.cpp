#include "faux/Vues_Web_Fausses.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <QWidget>

#include <gtest/gtest.h>

#include <cstdlib>

// Tests with widgets run on the offscreen platform, in French, whatever the desktop of the machine is.
int main(int nombre, char **arguments)
{
    ::testing::InitGoogleTest(&nombre, arguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(nombre, arguments);
    QTranslator francais;
    if (francais.load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&francais);
    Vues_Web_Fausses::controle_vide = [](QWidget *parent) { return new QWidget(parent); };
    return RUN_ALL_TESTS();
}
