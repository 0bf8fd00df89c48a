#include "outils/ecrans/ADIF.h"

#include "ecrans/Nomme.h"
#include "log/Etat_Commun.h"
#include "log/Poste.h"
#include "plateforme/Dossier.h"

#include <QButtonGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Shorter work needs no bar, and a bar that moves more often only costs time.
constexpr qint64 attente_avant_la_barre = 1000;
constexpr qint64 entre_deux_pas = 50;

/// One of the two is chosen, whatever the other options of the screen are.
void Groupe(QWidget *ecran, QRadioButton *premier, QRadioButton *second)
{
    auto *groupe = new QButtonGroup(ecran);
    groupe->addButton(premier);
    groupe->addButton(second);
}

/// The path that the operator chooses; empty without a choice, also when the screen was closed meanwhile.
QString Chemin_Choisi(QWidget &ecran, const QString &dossier)
{
    // On the heap: it goes with its screen if that is closed while it stands open.
    const QPointer<QFileDialog> dialogue = new QFileDialog(&ecran, ecran.windowTitle(), dossier);
    dialogue->setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::HideNameFilterDetails);
    dialogue->setFileMode(QFileDialog::ExistingFile);
    dialogue->setNameFilter(u".adi (adi) (*.adi)"_s);
    const bool choisi = dialogue->exec() == QDialog::Accepted && dialogue;
    QString chemin = choisi ? dialogue->selectedFiles().value(0) : QString();
    delete dialogue;
    return chemin;
}

} // namespace

/// Stands between the import and the screen, which may be closed while a dialogue or a box of the import is open.
class ADIF::Guichet : public Ecran_Import {
public:
    explicit Guichet(ADIF &ecran) : poste_(ecran.poste_), ecran_(&ecran) {}
    Guichet(const Guichet &) = delete;
    Guichet &operator=(const Guichet &) = delete;
    ~Guichet() override
    {
        if (ecran_)
            ecran_->Repose();
    }

    std::optional<QString> Choisit_Fichier() override
    {
        QString &dossier = poste_.etat.dossier_adif;
        QString chemin = ecran_->Prend_Le_Fichier();
        if (chemin.isEmpty())
            chemin = Chemin_Choisi(*ecran_, dossier.isEmpty() ? poste_.dossier.Repertoire_Appli() : dossier);
        if (!ecran_)
            return std::nullopt;
        if (!chemin.isEmpty())
            dossier = QFileInfo(chemin).path();
        return chemin;
    }
    void Avance(std::size_t faites, std::size_t total) override
    {
        if (ecran_)
            ecran_->Avance(faites, total);
    }
    void Ferme() override
    {
        if (ecran_)
            ecran_->close();
    }

private:
    Poste &poste_;
    QPointer<ADIF> ecran_;
};

ADIF::ADIF(Poste &poste)
    : Ecran(u"ADIF"_s, u"Importer un fichier ADIF"_s),
      poste_(poste),
      titre_(Nomme(new QLabel(this), u"Label2"_s)),
      fichier_(std::exchange(poste.etat.fichier_adif, {})),
      nom_fichier_(Nomme(new QLabel(this), u"Fichier"_s, u"Fichier : "_s + QFileInfo(fichier_).fileName())),
      progression_(Nomme(new QProgressBar(this), u"Progression"_s))
{
    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(titre_, 0, Qt::AlignHCenter);
    colonne->addWidget(nom_fichier_, 0, Qt::AlignHCenter);
    nom_fichier_->setVisible(!fichier_.isEmpty());
    colonne->addSpacing(fontMetrics().height());
    Pose_Formats(*colonne);
    colonne->addSpacing(fontMetrics().height());
    Pose_Destinations(*colonne);
    colonne->addSpacing(fontMetrics().height());

    auto *importer = Nomme(new QPushButton(this), u"Importer"_s, u"Importer"_s);
    importer->setAutoDefault(true);
    connect(importer, &QPushButton::clicked, this, &ADIF::Lance);
    colonne->addWidget(importer);

    QSizePolicy place = progression_->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    progression_->setSizePolicy(place);
    progression_->hide();
    colonne->addWidget(progression_);
    importer->setFocus();
    Suit_Le_Log();
    Centre(*this);
}

void ADIF::Suit_Le_Log()
{
    const QStringView code = Code(poste_.etat.station.diplome);
    titre_->setText(u"Importer un log "_s + code);
    remplace_->setText(u"Remplacer le log "_s + code);
    ajout_->setText(u"Ajouter le fichier ADIF au log "_s + code);
}

void ADIF::Pose_Formats(QVBoxLayout &colonne)
{
    auto *simple = Nomme(new QRadioButton(this), u"R_Simple"_s, u"Format de la référence : 93013"_s);
    r_multi_ = Nomme(new QRadioButton(this), u"R_Multi"_s, u"Format de la référence : DMF-93013"_s);
    Groupe(this, simple, r_multi_);
    simple->setChecked(true);
    colonne.addWidget(Nomme(new QLabel(this), u"Label1"_s, u"Pour un fichier ADIF ne comportant qu'un seul diplome"_s));
    colonne.addWidget(simple);
    colonne.addWidget(Nomme(new QLabel(this), u"Label3"_s, u"Pour un fichier ADIF comportant plusieurs diplomes"_s));
    colonne.addWidget(r_multi_);
}

void ADIF::Pose_Destinations(QVBoxLayout &colonne)
{
    remplace_ = Nomme(new QRadioButton(this), u"Remplace"_s);
    ajout_ = Nomme(new QRadioButton(this), u"Ajout"_s);
    Groupe(this, remplace_, ajout_);
    // The choice that destroys nothing.
    ajout_->setChecked(true);
    // Tab goes to the first of a group unless told; once the chosen one has the focus Qt keeps it so.
    remplace_->setFocusPolicy(Qt::ClickFocus);
    colonne.addWidget(remplace_);
    colonne.addWidget(ajout_);
}

void ADIF::Lance()
{
    Guichet guichet(*this);
    depuis_le_debut_.invalidate();
    Importe(poste_, {.multi = r_multi_->isChecked(), .ajout = ajout_->isChecked()}, guichet);
}

/// Once only: whoever was refused with it chooses another one.
QString ADIF::Prend_Le_Fichier()
{
    nom_fichier_->hide();
    return std::exchange(fichier_, {});
}

void ADIF::Avance(std::size_t faites, std::size_t total)
{
    if (!depuis_le_debut_.isValid()) {
        setCursor(Qt::WaitCursor);
        depuis_le_debut_.start();
        montree_a_ = attente_avant_la_barre - entre_deux_pas;
    }
    const qint64 maintenant = depuis_le_debut_.elapsed();
    if (maintenant < montree_a_ + entre_deux_pas)
        return;
    montree_a_ = maintenant;
    progression_->setMaximum(static_cast<int>(total));
    progression_->setValue(static_cast<int>(faites));
    progression_->show();
    // Painted at once: no event is handled while the import runs.
    progression_->repaint();
}

void ADIF::Repose()
{
    progression_->hide();
    unsetCursor();
}
