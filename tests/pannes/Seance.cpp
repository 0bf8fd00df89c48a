#include "Seance.h"

#include <QSettings>

Position::Position(const QString &donnees) : dossier(donnees)
{
    etat.station.indicatif = QStringLiteral("F9ZZY");
}

Seance::Seance(const Terrain &terrain, const Plan_De_Panne &plan)
    : terrain_(terrain),
      plan_(plan),
      surveilles_(terrain.Surveilles())
{
    plan_.dossiers = surveilles_.constData();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, terrain.Reglages());
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope, QStringLiteral("/nulle part"));
}

void Seance::Arme() const
{
    Arme_Pannes(&plan_);
}

Position &Seance::Le_Programme()
{
    if (!programme_)
        programme_.emplace(terrain_.Donnees());
    return *programme_;
}

QStringList Seance::Messages() const
{
    QStringList tous = messages_;
    if (programme_)
        for (const auto &textes : {programme_->boites.messages, programme_->boites.questions})
            for (const QString &texte : textes)
                tous += texte;
    return tous;
}
