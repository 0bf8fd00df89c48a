#pragma once

#include "faux/Donnees_Essai.h"
#include "faux/Impression.h"

#include <gtest/gtest.h>

/// Compares bytes with the golden file of that name. VORLAIN_RENOUVELLE=1 in the environment writes the files anew.
inline void Compare_Attendu(const QString &nom, const QByteArray &octets)
{
    if (qEnvironmentVariableIntValue("VORLAIN_RENOUVELLE") == 1) {
        QFile fichier(QStringLiteral(DONNEES_ESSAI "/attendus/") + nom);
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        ASSERT_EQ(fichier.write(octets), octets.size());
        return;
    }
    EXPECT_EQ(Attendu(nom), octets) << nom.toStdString();
}
