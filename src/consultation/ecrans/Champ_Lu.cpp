#include "consultation/ecrans/Champ_Lu.h"

#include "ecrans/Nomme.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

QLineEdit *Ajoute_Champ_Lu(QFormLayout &formulaire, const Champ_Detail &champ, int caracteres)
{
    auto *ligne = Nomme(new QLineEdit(formulaire.parentWidget()), champ.nom.toString());
    ligne->setReadOnly(true);
    ligne->setMinimumWidth(ligne->fontMetrics().averageCharWidth() * caracteres);
    auto *etiquette = new QLabel(champ.etiquette.toString(), formulaire.parentWidget());
    etiquette->setObjectName(u"L_" + champ.nom);
    ligne->setAccessibleName(etiquette->text());
    formulaire.addRow(etiquette, ligne);
    return ligne;
}

void Montre_Debut(QLineEdit &champ, const QString &texte)
{
    champ.setText(texte);
    champ.setCursorPosition(0);
}
