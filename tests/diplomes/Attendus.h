#pragma once

#include "faux/Impression.h"

#include <QFile>

#include <gtest/gtest.h>

/// Compares bytes with the golden file of that name. VORLAIN_RENOUVELLE=1 in the environment writes the files anew.
inline void Compare_Attendu(const QString &nom, const QByteArray &octets)
{
    QFile fichier(QStringLiteral(DONNEES_ESSAI "/attendus/") + nom);
    if (qEnvironmentVariableIntValue("VORLAIN_RENOUVELLE") == 1) {
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        ASSERT_EQ(fichier.write(octets), octets.size());
        return;
    }
    ASSERT_TRUE(fichier.open(QIODevice::ReadOnly)) << "no golden file " << nom.toStdString();
    EXPECT_EQ(fichier.readAll(), octets) << nom.toStdString();
}
