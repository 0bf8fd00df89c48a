#include "Epreuve.h"

#include "faux/Impression.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What a run asks of the disk that must be in order: writes, syncs, closes of what was written, renames.
QStringList Ordre(Geste geste, const QString &log = u"F9ZZY_DFCF.log"_s, const QByteArray &octets = "un\r\n")
{
    const Terrain terrain;
    if (!log.isEmpty())
        terrain.Pose(u"donnees/"_s + log, octets);
    else
        terrain.Remet({{u"donnees/"_s, {}}});
    QStringList ordre;
    for (const QByteArray &appel : Joue(terrain, geste).appels)
        if (QByteArray("wsm").contains(appel[0])) {
            const QString texte = QString::fromUtf8(appel.mid(1));
            // The end of a temporary's name differs from run to run.
            const QString fichier = texte.section(u'/', -1).section(u".txt."_s, 0, 0).section(u".tmp."_s, 0, 0);
            ordre += texte.section(u' ', 0, 0) + u' ' + fichier;
        }
    return ordre;
}

void Remplace(Seance &seance)
{
    Position &programme = seance.Le_Programme();
    seance.Arme();
    programme.dossier.Remplace(u"F9ZZY_DFCF.log"_s, u"deux\r\n", u"Temporaire.txt"_s);
}

void Ajoute(Seance &seance)
{
    Position &programme = seance.Le_Programme();
    seance.Arme();
    programme.dossier.Ajoute(u"F9ZZY_DFCF.log"_s, u"deux");
}

void Cree(Seance &seance)
{
    Position &programme = seance.Le_Programme();
    seance.Arme();
    programme.dossier.Cree_Si_Absent(u"F9ZZY_DFCF.log"_s);
}

void Regle(Seance &seance)
{
    Position &programme = seance.Le_Programme();
    seance.Arme();
    programme.reglages.Ecrit(u"Setup "_s, u"Revision"_s, u"V1.2.5c"_s);
}

} // namespace

TEST(Ordre_Des_Appels, un_remplacement_est_sur_le_disque_avant_de_prendre_le_nom_et_le_nom_aussi)
{
    EXPECT_EQ(Ordre(Remplace),
              (QStringList{u"write Temporaire"_s, u"fsync Temporaire"_s, u"rename Temporaire"_s, u"fsync donnees"_s}));
}

TEST(Ordre_Des_Appels, un_ajout_est_sur_le_disque_avant_qu_il_soit_dit)
{
    EXPECT_EQ(Ordre(Ajoute), (QStringList{u"write F9ZZY_DFCF.log"_s, u"fsync F9ZZY_DFCF.log"_s}));
}

TEST(Ordre_Des_Appels, un_log_qui_nait_par_un_ajout_a_son_nom_sur_le_disque)
{
    EXPECT_EQ(Ordre(Ajoute, {}),
              (QStringList{u"write F9ZZY_DFCF.log"_s, u"fsync F9ZZY_DFCF.log"_s, u"fsync donnees"_s}));
}

TEST(Ordre_Des_Appels, un_log_vide_a_son_nom_sur_le_disque)
{
    EXPECT_EQ(Ordre(Cree, {}), QStringList{u"fsync donnees"_s});
    EXPECT_EQ(Ordre(Cree), QStringList());
}

TEST(Ordre_Des_Appels, un_reglage_est_sur_le_disque_quand_il_est_dit)
{
    EXPECT_EQ(
        Ordre(Regle).mid(Ordre(Regle).indexOf(u"write Vorlain.conf"_s)),
        (QStringList{u"write Vorlain.conf"_s, u"fsync Vorlain.conf"_s, u"rename Vorlain.conf"_s, u"fsync Vorlain"_s}));
}
