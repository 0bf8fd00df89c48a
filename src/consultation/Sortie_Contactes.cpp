#include "consultation/Contactes.h"

#include "log/Moment.h"
#include "log/Poste.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Imprimante.h"

using namespace Qt::StringLiterals;

namespace {

// clang-format off
constexpr QStringView colonnes = u"  Num   Ref       Indicatif     Dpt   Prenom         Date     QTR   Mode  QRG    RstR RstE         Nom de l'activité       QSL";
constexpr QStringView devant_titre = u"                                  ";
// clang-format on

/// Title, heading and rows, as they stand on paper and in the file.
std::vector<QString> Corps(const Contactes &contactes)
{
    std::vector<QString> lignes{devant_titre + contactes.indicatif + u" activations " + Code(contactes.diplome) +
                                    u" contactées au " + Date_De_Reglage(contactes.date),
                                {},
                                colonnes.toString(),
                                {}};
    lignes.insert(lignes.end(), contactes.lignes.begin(), contactes.lignes.end());
    return lignes;
}

QString Banniere(const Contactes &contactes, qsizetype blancs)
{
    return QString(blancs, u' ') + u"Vorlain " + QString::number(contactes.date.year());
}

} // namespace

void Enregistre_Contactes(Poste &poste, const Contactes &contactes)
{
    const QString nom = contactes.indicatif + u"_activations_" + Code(contactes.diplome) + u'_' +
                        Date_De_Fichier(contactes.date) + u".txt";
    std::vector<QString> lignes = Corps(contactes);
    lignes.insert(lignes.end(), {QString(), Banniere(contactes, 24)});
    QString texte;
    for (const QString &ligne : lignes)
        texte += ligne + fin_de_ligne;
    poste.dossier.Remplace(nom, texte, u"Temporaire_Activations.txt"_s);
    poste.boites.Message(u"Le log a été enregistré sous le nom : " + nom);
}

void Imprime_Contactes(Poste &poste, const Contactes &contactes)
{
    std::vector<QString> lignes = Corps(contactes);
    lignes.insert(lignes.end(), {QString(), QString(), Banniere(contactes, 21)});
    if (const auto empechement = poste.imprimante.Imprime(Titre_Contactes(contactes.diplome), lignes))
        poste.boites.Message(*empechement);
}
