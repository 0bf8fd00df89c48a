#pragma once

#include <QString>

/// Gives a control its name, which tests and screens find it by, and its text if there is one.
template <typename Controle>
Controle *Nomme(Controle *controle, const QString &nom)
{
    controle->setObjectName(nom);
    return controle;
}

template <typename Controle>
Controle *Nomme(Controle *controle, const QString &nom, const QString &texte)
{
    controle->setObjectName(nom);
    controle->setText(texte);
    return controle;
}
