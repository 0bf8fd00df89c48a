#include "outils/Enregistrements_ADIF.h"

#include <algorithm>

namespace {

constexpr QStringView fin_d_enregistrement = u"<EOR>";

std::size_t Rang_Qui_Contient(const Lignes_Texte &lignes, QStringView texte)
{
    const auto place =
        std::find_if(lignes.begin(), lignes.end(), [&](QStringView ligne) { return ligne.contains(texte); });
    return static_cast<std::size_t>(place - lignes.begin());
}

} // namespace

bool A_Des_References(const Lignes_Texte &lignes)
{
    return Rang_Qui_Contient(lignes, u"<SIG:") < lignes.size();
}

Enregistrements_ADIF::Enregistrements_ADIF(const Lignes_Texte &lignes)
    : lignes_(lignes),
      lues_(std::min(Rang_Qui_Contient(lignes, u"<EOH>") + 1, lignes.size()))
{
}

std::optional<QStringView> Enregistrements_ADIF::Suivant()
{
    tampon_.resize(0);
    bool complet = false;
    while (!complet && lues_ < lignes_.size()) {
        // The mark may run over two lines; what was searched before is not searched again.
        const qsizetype depuis = std::max(qsizetype{0}, tampon_.size() - (fin_d_enregistrement.size() - 1));
        tampon_ += lignes_[lues_++];
        complet = QStringView(tampon_).indexOf(fin_d_enregistrement, depuis) >= 0;
    }
    if (tampon_.isEmpty())
        return std::nullopt;
    return QStringView(tampon_);
}
