#include "outils/ADIF_SP.h"

#include "adif/Bandes_En_Metres.h"
#include "adif/Enregistrement_ADIF.h"
#include "log/Ligne_Log.h"

namespace col = colonnes_log;

QString ADIF_SP(QStringView ligne_log)
{
    const auto valeur = [&](Champ champ) { return Lit_Rogne(ligne_log, champ); };
    Enregistrement_ADIF enregistrement;
    enregistrement.Pose(u"CALL", valeur(col::Ind));
    enregistrement.Pose(u"STATE", valeur(col::Dpt));
    enregistrement.Pose(u"NAME", valeur(col::Prenom));
    enregistrement.Pose(u"SIG", valeur(col::Ref));
    enregistrement.Pose(u"QSO_DATE", Date_ADIF(valeur(col::Date)));
    enregistrement.Pose(u"TIME_ON", Heure_ADIF(valeur(col::Heure)));
    enregistrement.Pose(u"MODE", valeur(col::Mode));
    enregistrement.Pose(u"Band", Metres(bandes_d_un_log, valeur(col::Bande)));
    enregistrement.Pose(u"RST_RCVD", valeur(col::RSTR));
    enregistrement.Pose(u"RST_SENT", valeur(col::RSTE));
    enregistrement.Pose(u"SIG_INFO", valeur(col::Nom));
    enregistrement.Pose(u"QSL_RCVD", Est_Confirme(ligne_log) ? u"Y" : u"N");
    return enregistrement.Termine();
}
