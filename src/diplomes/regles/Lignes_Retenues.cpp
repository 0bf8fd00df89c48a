#include "diplomes/regles/Lignes_Retenues.h"

#include "diplomes/regles/Bandes.h"
#include "log/Etat_Commun.h"
#include "log/Ligne_Log.h"

namespace diplomes {

namespace col = colonnes_log;

namespace {

bool Confirme_En(QStringView ligne_log, QStringView mode)
{
    return Est_Confirme(ligne_log) && Lit_Rogne(ligne_log, col::Mode) == mode;
}

} // namespace

bool Toute_Ligne(QStringView, const Etat_Commun &)
{
    return true;
}

bool Confirme(QStringView ligne_log, const Etat_Commun &)
{
    return Est_Confirme(ligne_log);
}

bool Confirme_HF(QStringView ligne_log, const Etat_Commun &)
{
    return Est_Confirme(ligne_log) && Est_Bande_HF(Lit_Rogne(ligne_log, col::Bande));
}

bool Confirme_144(QStringView ligne_log, const Etat_Commun &)
{
    return Est_Confirme(ligne_log) && Lit_Rogne(ligne_log, col::Bande) == u"144 Mhz";
}

bool Contacte(QStringView ligne_log, const Etat_Commun &)
{
    const QStringView qsl = Lit(ligne_log, col::QSL);
    return qsl == qsl_tenue || qsl == u" ";
}

bool Confirme_SSB(QStringView ligne_log, const Etat_Commun &)
{
    return Confirme_En(ligne_log, u"SSB");
}

bool Confirme_CW(QStringView ligne_log, const Etat_Commun &)
{
    return Confirme_En(ligne_log, u"CW");
}

bool Confirme_SSB_Ou_CW(QStringView ligne_log, const Etat_Commun &etat)
{
    return Confirme_SSB(ligne_log, etat) || Confirme_CW(ligne_log, etat);
}

bool Confirme_DIGI(QStringView ligne_log, const Etat_Commun &)
{
    return Confirme_En(ligne_log, u"DIGI");
}

bool Confirme_Mode_Liste(QStringView ligne_log, const Etat_Commun &etat)
{
    return etat.mode_liste == u"MIX" ? Est_Confirme(ligne_log) : Confirme_En(ligne_log, etat.mode_liste);
}

bool Confirme_Categorie(QStringView ligne_log, const Etat_Commun &etat)
{
    constexpr Champ lettres{col::Ref.colonne + 2, 2};
    return Est_Confirme(ligne_log) && (etat.code_categorie == u"MI" || Lit(ligne_log, lettres) == etat.code_categorie);
}

} // namespace diplomes
