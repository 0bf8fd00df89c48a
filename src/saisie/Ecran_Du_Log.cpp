#include "saisie/Ecran_Du_Log.h"

#include "log/Ligne_Affichage.h"
#include "saisie/QSO_Courant.h"
#include "saisie/Repos.h"
#include "saisie/Saisie.h"

#include <utility>

void Ecran_Du_Log::Remplit_Liste(Lignes_Texte lignes)
{
    lignes_ = std::move(lignes);
    rang_.reset();
    vue_.liste();
}

void Ecran_Du_Log::Selectionne_Derniere()
{
    if (!lignes_.empty())
        Selectionne_QSO(lignes_.size() - 1);
}

void Ecran_Du_Log::Selectionne_QSO(std::size_t rang)
{
    if (rang >= lignes_.size())
        return;
    rang_ = rang;
    vue_.selection(rang);
    Clic_Liste(saisie_, QSO_Selectionne());
}

QString Ecran_Du_Log::QSO_Selectionne() const
{
    return rang_ ? Ligne_Affichage(*rang_ + 1, lignes_[*rang_]) : QString();
}

QString Ecran_Du_Log::Ligne_Selectionnee() const
{
    return saisie_.ligne_selectionnee;
}

void Ecran_Du_Log::Active_Ind_A()
{
    saisie_.Active(Controle::Ind_A, true);
}

std::optional<Diplome> Ecran_Du_Log::Dip_A() const
{
    return saisie_.Dip_A();
}

void Ecran_Du_Log::Va_A_Dip_A()
{
    saisie_.Donne_Focus(Controle::Dip_A);
}

QString Ecran_Du_Log::Ref_A() const
{
    return saisie_.Texte(Controle::Ref_A);
}

QString Ecran_Du_Log::I_Station() const
{
    return saisie_.Texte(Controle::I_Station);
}

void Ecran_Du_Log::Efface_Saisie()
{
    Efface_Champs(saisie_);
}
