#include "programme/Application.h"
#include "programme_au_hasard/Vie.h"

#include <gtest/gtest.h>

// The test starts this very program again for each life of the operator's one, so that an end by a failure is the real
// one: report, then exit status 1.
int main(int nombre, char **arguments)
{
    QCoreApplication::setOrganizationName(QStringLiteral("Vorlain"));
    QCoreApplication::setApplicationName(QStringLiteral("Vorlain"));
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (nombre == 6 && QByteArrayView(arguments[1]) == "--vie") {
        const Application application(nombre, arguments);
        return Vie(QString::fromLocal8Bit(arguments[2]), QString::fromLocal8Bit(arguments[3]),
                   QByteArray(arguments[4]).toUInt(), QByteArray(arguments[5]).toInt())
            .Passe();
    }
    ::testing::InitGoogleTest(&nombre, arguments);
    const QCoreApplication application(nombre, arguments);
    return RUN_ALL_TESTS();
}
