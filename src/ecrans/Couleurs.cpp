#include "ecrans/Couleurs.h"

#include <QPalette>
#include <QWidget>

void Colore(QWidget *controle, const QColor &fond)
{
    QPalette palette = controle->palette();
    // Without a group a role is set in all of them. Check boxes are painted with the window's roles.
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button, QPalette::Window})
        palette.setColor(role, fond);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
        palette.setColor(role, Qt::black);
    controle->setPalette(palette);
}
