#include "diplomes/ecrans/Scores_DYLF.h"

#include "diplomes/Charge_Scores_DYLF.h"
#include "ecrans/Nomme.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace diplomes {

namespace {

QLabel *Nombre(const QString &nom, int valeur)
{
    return Nomme(new QLabel, nom, QString::number(valeur));
}

void Ajoute_Entete(QGridLayout *grille)
{
    grille->addWidget(Nomme(new QLabel, u"Label_Nb"_s, u"Nb"_s), 0, 1, Qt::AlignRight);
    grille->addWidget(Nomme(new QLabel, u"Label_Pt"_s, u"Points"_s), 0, 2, Qt::AlignRight);
}

void Ajoute_Rangee(QGridLayout *grille, QLabel *libelle, QLabel *nombre, QLabel *points)
{
    const int rang = grille->rowCount();
    grille->addWidget(libelle, rang, 0);
    grille->addWidget(nombre, rang, 1, Qt::AlignRight);
    grille->addWidget(points, rang, 2, Qt::AlignRight);
}

} // namespace

Scores_DYLF::Scores_DYLF(const Poste &poste) : Ecran(u"Scores_DYLF"_s, u"Scores DYLF"_s)
{
    const auto scores = Charge_Scores_DYLF(poste);
    auto *cadre = new QGroupBox(u"Scores par bandes et Modes"_s);
    auto *grille = new QGridLayout(cadre);
    grille->setHorizontalSpacing(3 * fontMetrics().height());
    Ajoute_Entete(grille);
    for (std::size_t i = 0; i < scores.size(); ++i) {
        const QString numero = QString::number(i + 1);
        Ajoute_Rangee(grille, Nomme(new QLabel, u"Label_"_s + numero, libelles_des_scores[i].toString()),
                      Nombre(u"Nb"_s + numero, scores[i].nombre), Nombre(u"Pt"_s + numero, scores[i].points));
    }
    grille->setRowMinimumHeight(grille->rowCount(), fontMetrics().height() / 2);
    const Score total = Total(scores);
    Ajoute_Rangee(grille, Nomme(new QLabel, u"Label_Tot"_s, u"Total"_s), Nombre(u"Tot_Nb"_s, total.nombre),
                  Nombre(u"Tot_Pt"_s, total.points));
    (new QVBoxLayout(this))->addWidget(cadre);
}

} // namespace diplomes
