#include "Lecture_Rapide.h"

#include "outils/Enregistrements_ADIF.h"
#include "outils/Lignes_ADIF.h"
#include "plateforme/Windows_1252.h"

namespace rapide {

lente::Essai Importe(const std::string &octets, const std::string &code, bool multi)
{
    lente::Essai essai;
    const Lignes_Texte lignes(Majuscules_1252(Decode_1252(QByteArrayView(octets.data(), qsizetype(octets.size())))));
    Enregistrements_ADIF enregistrements(lignes);
    Lignes_ADIF convertit(Diplome_De(QString::fromStdString(code)), {.multi = multi});
    while (const auto enregistrement = enregistrements.Suivant()) {
        const Lecture_ADIF lecture = convertit.Lit(*enregistrement);
        for (const QStringView message : lecture.messages)
            essai.messages.push_back(message.toString().toStdString());
        if (lecture.echec) {
            essai.echec = true;
            break;
        }
        if (lecture.ligne)
            essai.lignes.push_back(Encode_1252(*lecture.ligne).toStdString());
    }
    return essai;
}

} // namespace rapide
