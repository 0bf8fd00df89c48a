#include "listes/Lecteur_Liste.h"

#include "log/Ligne_Liste.h"

#include <span>
#include <utility>

Lecteur_Liste::Lecteur_Liste(const Lecture &lecture, Lignes_Texte lignes)
    : lecture_(lecture),
      lignes_(std::move(lignes)),
      rang_(lecture.lignes_passees)
{
}

std::optional<Fiche_Liste> Lecteur_Liste::Suivante()
{
    if (lecture_.vides_ignorees)
        Saute_Vides();
    if (lecture_.finit_au_vide && Commence_Par_Un_Vide())
        rang_ = lignes_.size();
    if (rang_ >= lignes_.size())
        return std::nullopt;
    Fiche_Liste fiche;
    const bool entiere = Coupe(fiche);
    if ((lecture_.finit_avant && lecture_.finit_avant(fiche)) || !entiere) {
        rang_ = lignes_.size();
        return std::nullopt;
    }
    rang_ = lecture_.finit_apres && lecture_.finit_apres(fiche) ? lignes_.size() : rang_ + Pas();
    return fiche;
}

/// False for a record that the end of the file cut off.
bool Lecteur_Liste::Coupe(Fiche_Liste &fiche) const
{
    if (lecture_.forme == Lecture::Forme::Points_Virgules) {
        Decoupe_Liste(lignes_[rang_], std::span(fiche.champs).first(lecture_.separateurs));
        return true;
    }
    const std::size_t presentes = std::min(Pas(), lignes_.size() - rang_);
    for (std::size_t ligne = 0; ligne < presentes; ++ligne)
        fiche.champs[ligne] = lignes_[rang_ + ligne];
    // The fifth line says nothing that a look-up gives, so the last record may lack it.
    return presentes >= Pas() - 1;
}

bool Lecteur_Liste::Commence_Par_Un_Vide() const
{
    return rang_ < lignes_.size() && (lignes_[rang_].isEmpty() || lignes_[rang_].startsWith(u';'));
}

void Lecteur_Liste::Saute_Vides()
{
    while (rang_ < lignes_.size() && lignes_[rang_].isEmpty())
        ++rang_;
}

std::size_t Lecteur_Liste::Pas() const
{
    return lecture_.forme == Lecture::Forme::Cinq_Lignes ? 5 : 1;
}
