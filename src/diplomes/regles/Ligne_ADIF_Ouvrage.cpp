#include "diplomes/regles/Ligne_ADIF_Ouvrage.h"

#include "adif/Bandes_En_Metres.h"
#include "adif/Enregistrement_ADIF.h"
#include "log/Ligne_Log.h"

namespace diplomes {

namespace col = colonnes_log;

QString Ligne_ADIF_Ouvrage(QStringView ligne_log)
{
    // Two columns more than the department has: the separator is read with it.
    constexpr Champ dpt_et_blancs{col::Dpt.colonne, 4};
    const auto champ = [&](Champ lu) { return Lit_Rogne(ligne_log, lu); };
    const QStringView ref = champ(col::Ref);
    Enregistrement_ADIF enregistrement;
    enregistrement.Pose(u"call", champ(col::Ind));
    enregistrement.Pose(u"state", champ(dpt_et_blancs));
    enregistrement.Pose(u"sig", ref);
    enregistrement.Pose(u"name", champ(col::Prenom));
    enregistrement.Pose(u"band", Metres(bandes_d_un_diplome, champ(col::Bande)));
    enregistrement.Pose(u"mode", champ(col::Mode));
    enregistrement.Pose(u"qso_date", Rogne(Date_ADIF(Lit(ligne_log, col::Date))));
    enregistrement.Pose(u"time_on", Rogne(Heure_ADIF(Lit(ligne_log, col::Heure))));
    enregistrement.Pose(u"rst_rcvd", champ(col::RSTR));
    enregistrement.Pose(u"rst_sent", champ(col::RSTE));
    // The length of the reference and not the reference: it stands so.
    enregistrement.Pose(u"sig_info", Rogne(QString(QString::number(ref.size()) + u' ' + champ(col::Nom))));
    return enregistrement.Termine();
}

} // namespace diplomes
