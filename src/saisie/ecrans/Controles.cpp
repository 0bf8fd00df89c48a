#include "saisie/ecrans/Controles.h"

#include <QLineEdit>

#include <algorithm>

void Controles::Pose(Controle controle, const Prise &prise)
{
    prises_[controle] = prise;
    if (prise.ecrit)
        Montre(controle, Aspect::Texte);
    if (prise.coche)
        Montre(controle, Aspect::Coche);
    // A text that comes without a key, from a paste or an input method, is the entry's too.
    if (prise.ligne)
        QObject::connect(prise.ligne, &QLineEdit::textChanged, prise.ligne,
                         [this, controle](const QString &texte) { saisie_.Recoit_Texte(controle, texte); });
}

std::optional<Controle> Controles::Qui_Est(const QWidget *widget) const
{
    const auto place = std::find_if(prises_.begin(), prises_.end(),
                                    [&](const auto &prise) { return widget && prise.second.widget == widget; });
    return place == prises_.end() ? std::nullopt : std::optional(place->first);
}

void Controles::Montre(Controle controle, Aspect aspect) const
{
    const Prise &prise = prises_.at(controle);
    switch (aspect) {
    case Aspect::Texte:
        return prise.ecrit(saisie_.Texte(controle));
    case Aspect::Coche:
        return prise.coche(saisie_.Est_Coche(controle));
    case Aspect::Actif:
        return prise.widget->setEnabled(saisie_.Est_Actif(controle));
    case Aspect::Focus:
        prise.widget->setFocus(Qt::OtherFocusReason);
        return Place_Curseur(controle);
    case Aspect::Curseur:
        return Place_Curseur(controle);
    }
}

void Controles::Place_Curseur(Controle controle) const
{
    QLineEdit *ligne = prises_.at(controle).ligne;
    if (!ligne)
        return;
    if (saisie_.Curseur_De(controle) == Curseur::Tout)
        ligne->selectAll();
    else
        ligne->end(false);
}
