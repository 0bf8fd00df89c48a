#include "faux/Impression.h"
#include "plateforme/Erreur_Execution.h"
#include "plateforme/Windows_1252.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Windows_1252, chaque_octet_revient_comme_il_etait)
{
    QByteArray octets;
    for (int i = 0; i < 256; ++i)
        octets += static_cast<char>(i);
    const QString texte = Decode_1252(octets);
    EXPECT_EQ(texte.size(), 256);
    EXPECT_EQ(Encode_1252(texte), octets);
}

TEST(Windows_1252, les_lettres_francaises_et_l_euro_ont_leur_octet)
{
    EXPECT_EQ(Encode_1252(u"é°Œ€"), QByteArray("\xE9\xB0\x8C\x80"));
    EXPECT_EQ(Decode_1252("\x9C\x92\xE0"), u"œ’à"_s);
}

TEST(Windows_1252, un_caractere_hors_de_la_table_n_entre_pas_dans_un_fichier)
{
    EXPECT_FALSE(Est_Dans_1252(QChar(0x0394)));
    EXPECT_THROW(Encode_1252(u"tour Δ"), Erreur_Execution);
}

TEST(Windows_1252, les_capitales_gardent_une_lettre_pour_une_lettre)
{
    EXPECT_EQ(Majuscules_1252(u"chateau de l'été à Œuf-œuf, šžÿ ß ÷"), u"CHATEAU DE L'ÉTÉ À ŒUF-ŒUF, ŠŽŸ ß ÷"_s);
}

TEST(Windows_1252, un_octet_haut_est_lu_a_toute_place)
{
    for (int blancs = 0; blancs < 20; ++blancs) {
        const QByteArray octets = QByteArray(blancs, 'x') + "\x80\x81" + QByteArray(blancs, 'y') + "\x9C";
        const QString texte = QString(blancs, u'x') + u"€\x81" + QString(blancs, u'y') + u"œ";
        EXPECT_EQ(Decode_1252(octets), texte);
        EXPECT_EQ(Encode_1252(texte), octets);
    }
    EXPECT_EQ(Decode_1252({}), QString());
}
