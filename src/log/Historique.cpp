#include "log/Historique.h"

namespace {

// clang-format off
constexpr QStringView lignes[] = {
    u"V1.0.0   le 15/09/2014 création",
    u"V1.1.0   le 26/02/2015 Ajouté diplome DYLF et mise à jour liste DCF",
    u"V1.1.1   le 05/02/2015 Ajouté diplome DDFM",
    u"V1.1.2   le 14/02/2015 Ajouté diplome DPF",
    u"V1.1.3   le 01/05/2015 Ajouté gestion des QSL",
    u"V1.1.4   le 04/05/2015 Ajouté gestion du diplome TDC",
    u"V1.1.5   le 04/05/2015 Ajouté Basiliques et Collégiales à DCF",
    u"V1.1.6   le 01/10/2015 Ajouté Liste des activités contactées d'un activeur",
    u"V1.1.7   le 13/10/2015 Ajouté détail des références FFF",
    u"V1.1.8   le 04/11/2015 Ajouté Sauvegarde des logs",
    u"V1.1.9   le 18/12/2015 Ajouté liste des Phares",
    u"V1.2.0   le 25/03/2016 Nouveau format FFF a 4 nombres",
    u"V1.2.1   le 22/04/2016 Ajout mise a jour des references DPLF",
    u"V1.2.2   le 22/01/2017 Ajout diplome Patrimoine Culturel",
    u"V1.2.3   le 24/03/2017 Ajout diplome Challenge DFCF",
    u"V1.2.4   le 24/03/2017 Ajout diplome Challenge DMF",
    u"V1.2.5   le 21/11/2017 Maj Challenges DFCF et DMF via Vorlain_Trelune",
};
// clang-format on

} // namespace

const QStringView version_vorlain = u"V" VORLAIN_VERSION;

QString Historique()
{
    QString texte;
    for (const QStringView ligne : lignes)
        texte.append(u'\n').append(ligne);
    return texte;
}
