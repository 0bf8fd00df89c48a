#include "diplomes/ecrans/Etiquettes.h"

#include "ecrans/Nomme.h"

#include <QLabel>

namespace diplomes {

namespace {

constexpr QColor rouge{255, 0, 0};
constexpr QColor vert{0, 128, 0};

QLabel *Texte(const QString &nom, const QString &texte)
{
    auto *label = Nomme(new QLabel, nom);
    label->setTextFormat(Qt::PlainText);
    label->setText(texte);
    return label;
}

void Teinte_Texte(QLabel *label, const QColor &couleur)
{
    QPalette palette = label->palette();
    for (const QPalette::ColorGroup groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        palette.setColor(groupe, QPalette::WindowText, couleur);
    label->setPalette(palette);
}

} // namespace

QLabel *Montre_Etiquette(const Etiquette &etiquette)
{
    QLabel *label = Texte(etiquette.nom, etiquette.texte);
    if (etiquette.teinte != Teinte::Ordinaire)
        Teinte_Texte(label, etiquette.teinte == Teinte::Atteint ? vert : rouge);
    return label;
}

QLabel *Grand_Titre(const QString &nom, const QString &texte)
{
    QLabel *label = Texte(nom, texte);
    QFont police = label->font();
    police.setBold(true);
    police.setPointSize(12);
    label->setFont(police);
    return label;
}

} // namespace diplomes
