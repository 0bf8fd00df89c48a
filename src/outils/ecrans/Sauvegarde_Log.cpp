#include "outils/ecrans/Sauvegarde_Log.h"

#include "ecrans/Nomme.h"
#include "log/Cles.h"
#include "log/Poste.h"
#include "log/Reglages_Station.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

Sauvegarde_Log::Sauvegarde_Log(Poste &poste)
    : Ecran(u"Sauvegarde_Log"_s, u"Parametres de sauvegarde"_s),
      poste_(poste),
      le_chemin_(Nomme(new QLineEdit(this), u"Le_Chemin"_s))
{
    const auto texte = [this](const QString &nom, const QString &contenu) {
        return Nomme(new QLabel(this), nom, contenu);
    };
    auto *titre = texte(u"Label4"_s, u"Parametres de sauvegarde"_s);
    auto *actuel = texte(u"Label1"_s, u"Actuel :"_s);
    auto *nouveau = Nomme(new QPushButton(this), u"New_Rep"_s, u"Nouveau répertoire"_s);
    auto *enregistrement = Nomme(new QPushButton(this), u"Enregistrement"_s, u"Enregistrer les parametres"_s);
    nouveau->setAutoDefault(true);
    enregistrement->setAutoDefault(true);
    actuel->setBuddy(le_chemin_);
    le_chemin_->setAccessibleName(actuel->text());
    // A folder may bear any character, not only those of the log files.
    le_chemin_->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[^\\r\\n]*"_s), this));
    le_chemin_->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    le_chemin_->setEnabled(false);

    auto *chemin = new QHBoxLayout;
    chemin->addWidget(actuel);
    chemin->addWidget(le_chemin_, 1);
    auto *boutons = new QHBoxLayout;
    boutons->addWidget(nouveau);
    boutons->addStretch();
    boutons->addWidget(enregistrement);
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(titre, 0, Qt::AlignHCenter);
    colonne->addWidget(texte(u"Label3"_s, u"Répertoire de sauvegarde : exemple D:\\Sauvegarde_Vorlain_F9ZZY"_s));
    colonne->addLayout(chemin);
    colonne->addWidget(texte(u"Label2"_s, u"Les logs de Vorlain seront sauvegardés"_s));
    // "ci-dessus": the folder stands above this text.
    colonne->addWidget(texte(u"Label5"_s, u"tous les 8 jours minimum dans le répertoire défini ci-dessus"_s));
    colonne->addLayout(boutons);

    connect(nouveau, &QPushButton::clicked, this, &Sauvegarde_Log::Nouveau_Repertoire);
    connect(enregistrement, &QPushButton::clicked, this, &Sauvegarde_Log::Enregistre);
    nouveau->setFocus();
    Suit_Le_Log();
    Centre(*this);
}

void Sauvegarde_Log::Suit_Le_Log()
{
    if (!le_chemin_->isModified())
        le_chemin_->setText(Lit_Station(poste_, cles::chemin_sauvegarde, cles::chemin_sauvegarde_absent));
}

void Sauvegarde_Log::Nouveau_Repertoire()
{
    le_chemin_->setEnabled(true);
    le_chemin_->setFocus();
    le_chemin_->selectAll();
}

void Sauvegarde_Log::Enregistre()
{
    Ecrit_Station(poste_, cles::chemin_sauvegarde, le_chemin_->text());
    close();
}
