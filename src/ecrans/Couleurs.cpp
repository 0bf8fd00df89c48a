#include "ecrans/Couleurs.h"

#include <QPalette>
#include <QWidget>

void Colore(QWidget *controle, const QColor &fond)
{
    QPalette palette = controle->palette();
    for (const QPalette::ColorGroup groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(groupe, QPalette::Base, fond);
        palette.setColor(groupe, QPalette::Button, fond);
        palette.setColor(groupe, QPalette::Text, Qt::black);
        palette.setColor(groupe, QPalette::ButtonText, Qt::black);
    }
    controle->setPalette(palette);
}
