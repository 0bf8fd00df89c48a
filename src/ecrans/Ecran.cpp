#include "ecrans/Ecran.h"

#include <QScreen>

Ecran::Ecran(const QString &nom, const QString &titre)
{
    setObjectName(nom);
    setWindowTitle(titre);
    setAttribute(Qt::WA_DeleteOnClose);
}

void Centre(QWidget &fenetre)
{
    const QRect bureau = fenetre.screen()->availableGeometry();
    fenetre.resize(fenetre.sizeHint().boundedTo(bureau.size()));
    fenetre.move(bureau.center() - fenetre.rect().center());
}
