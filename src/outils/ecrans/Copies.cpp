#include "outils/ecrans/Copies.h"

#include "ecrans/Liste_Fixe.h"
#include "ecrans/Nomme.h"
#include "log/Etat_Commun.h"
#include "log/Garde_Copie.h"
#include "log/Ligne_Affichage.h"
#include "log/Poste.h"
#include "outils/Lignes_Copies.h"
#include "plateforme/Boites.h"
#include "plateforme/Dossier.h"
#include "plateforme/Tolere.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int copies_visibles = 7;
constexpr int qsos_visibles = 6;

/// The entries of `liste` are the lines of those ranks, with their numbers in the log.
void Remplit(Liste_Fixe &liste, const Lignes_Texte &lignes, const std::vector<std::size_t> &rangs)
{
    liste.Remplit(rangs.size(), [lignes, rangs](std::size_t place) {
        return Ligne_Affichage(rangs[place] + 1, lignes[rangs[place]]);
    });
}

} // namespace

Copies::Copies(Poste &poste)
    : Ecran(u"Copies"_s, u"Copies de sécurité"_s),
      poste_(poste),
      titre_(Nomme(new QLabel(this), u"L_Copies"_s)),
      legende_retours_(Nomme(new QLabel(this), u"L_Retours"_s)),
      legende_departs_(Nomme(new QLabel(this), u"L_Departs"_s)),
      revenir_(Nomme(new QPushButton(this), u"Revenir"_s, u"Revenir à cette copie"_s))
{
    Dispose();
    connect(copies_, &Liste_Fixe::Cliquee, this, &Copies::Montre);
    connect(revenir_, &QPushButton::clicked, this, &Copies::Revient);
    copies_->setFocus();
    Suit_Le_Log();
    Centre(*this);
}

void Copies::Dispose()
{
    auto *colonne = new QVBoxLayout(this);
    copies_ = Pose_Liste(*colonne, u"Liste_Copies"_s, titre_, copies_visibles);
    copies_->Pose_Entete(Nomme(new QLabel(this), u"Entete_Copies"_s, entete_copies.toString()));
    retours_ = Pose_Liste(*colonne, u"Liste_Retours"_s, legende_retours_, qsos_visibles);
    departs_ = Pose_Liste(*colonne, u"Liste_Departs"_s, legende_departs_, qsos_visibles);
    revenir_->setAutoDefault(true);
    colonne->addWidget(revenir_, 0, Qt::AlignRight);
    setTabOrder(copies_, retours_);
    setTabOrder(retours_, departs_);
    setTabOrder(departs_, revenir_);
}

Liste_Fixe *Copies::Pose_Liste(QVBoxLayout &colonne, const QString &nom, QLabel *legende, int lignes)
{
    auto *liste = Nomme(new Liste_Fixe(this), nom);
    liste->Reserve(colonnes_affichage::longueur, lignes);
    legende->setBuddy(liste);
    colonne.addWidget(legende);
    colonne.addWidget(liste, lignes);
    return liste;
}

void Copies::Suit_Le_Log()
{
    const QString nom = poste_.etat.station.Log_Courant();
    titre_->setText(u"Copies du log %1, la plus récente en premier"_s.arg(nom));
    copies_->setAccessibleName(titre_->text());
    presentes_.clear();
    const auto empechement = Empechement([&] { presentes_ = Copies_De(poste_.dossier, nom); });
    qsos_.clear();
    choisie_ = -1;
    copies_->Remplit(presentes_.size(), [this](std::size_t rang) { return Rangee(rang); });
    if (presentes_.empty())
        Montre(-1);
    else
        copies_->Selectionne(0);
    if (empechement)
        poste_.boites.Message(*empechement);
}

QString Copies::Rangee(std::size_t rang)
{
    const Copie &copie = presentes_[rang];
    // Counted when the row is shown: reading every copy of a long log takes time.
    if (!qsos_.contains(rang))
        Tolere([&] {
            qsos_[rang] = static_cast<std::size_t>(poste_.dossier.Octets(Fichier_De_Copie(copie)).count('\n'));
        });
    const bool est_choisie = static_cast<int>(rang) == choisie_;
    return Ligne_Copie(copie, poste_.horloge, qsos_.value(rang),
                       est_choisie ? Texte_Difference(difference_) : QString());
}

void Copies::Montre(int rang)
{
    choisie_ = -1;
    lignes_copie_ = {};
    lignes_log_ = {};
    difference_ = {};
    if (rang >= 0) {
        if (const auto empechement = Empechement([&] { Compare(presentes_[static_cast<std::size_t>(rang)]); }))
            poste_.boites.Message(*empechement);
        else
            choisie_ = rang;
    }
    legende_retours_->setText(u"QSO qui reviendraient dans le log : %1"_s.arg(difference_.reviendraient.size()));
    legende_departs_->setText(u"QSO qui partiraient du log : %1"_s.arg(difference_.partiraient.size()));
    retours_->setAccessibleName(legende_retours_->text());
    departs_->setAccessibleName(legende_departs_->text());
    Remplit(*retours_, lignes_copie_, difference_.reviendraient);
    Remplit(*departs_, lignes_log_, difference_.partiraient);
    revenir_->setEnabled(choisie_ >= 0);
    copies_->viewport()->update();
}

void Copies::Compare(const Copie &copie)
{
    lignes_copie_ = poste_.dossier.Lit_Lignes(Fichier_De_Copie(copie));
    // A log that vanished is no reason not to come back to its copy.
    if (poste_.dossier.Existe(copie.nom))
        lignes_log_ = poste_.dossier.Lit_Lignes(copie.nom);
    difference_ = Difference(lignes_copie_, lignes_log_);
}

void Copies::Revient()
{
    const int rang = copies_->Rang_Courant();
    // The log may have changed since the copy was selected.
    Montre(rang);
    if (choisie_ < 0)
        return;
    const Copie copie = presentes_[static_cast<std::size_t>(rang)];
    const QString question = u"Revenir à la copie du %1 (%2) ?\n"
                             u"%3 QSO reviendront dans le log %4 et %5 QSO en partiront.\n"
                             u"Le log tel qu'il est sera gardé dans une nouvelle copie."_s
                                 .arg(Moment_Local(copie, poste_.horloge), Libelle(copie.outil))
                                 .arg(difference_.reviendraient.size())
                                 .arg(copie.nom)
                                 .arg(difference_.partiraient.size());
    if (!poste_.boites.Question(question) || !Revient_A_La_Copie(poste_, copie))
        return;
    Suit_Le_Log();
    copies_->setFocus();
}
