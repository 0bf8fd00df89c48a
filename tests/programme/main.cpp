#include "programme/Application.h"

#include <gtest/gtest.h>

// The program's own application class, so that an unhandled failure ends as it does for the operator.
int main(int nombre, char **arguments)
{
    ::testing::InitGoogleTest(&nombre, arguments);
    ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setOrganizationName(QStringLiteral("Vorlain"));
    QCoreApplication::setApplicationName(QStringLiteral("Vorlain"));
    const Application application(nombre, arguments);
    return RUN_ALL_TESTS();
}
