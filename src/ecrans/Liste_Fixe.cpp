#include "ecrans/Liste_Fixe.h"

#include <QAbstractListModel>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The families to ask for, best first. A name that no font bears can lead to a proportional one, whatever hints go
/// with it: where none of the known families is installed, one that really is fixed stands behind them.
QStringList Familles_Fixes()
{
    QStringList familles = {u"Letter Gothic"_s, u"DejaVu Sans Mono"_s, u"Liberation Mono"_s};
    if (std::none_of(familles.cbegin(), familles.cend(), QFontDatabase::hasFamily))
        for (const QString &famille : QFontDatabase::families(QFontDatabase::Latin))
            if (QFontDatabase::isFixedPitch(famille) && QFontDatabase::isSmoothlyScalable(famille))
                familles << famille;
    return familles;
}

} // namespace

class Liste_Fixe::Modele : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void Remplit(std::size_t nombre, Texte_De_Rang texte)
    {
        beginResetModel();
        nombre_ = static_cast<int>(nombre);
        texte_ = std::move(texte);
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : nombre_; }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole || !index.isValid())
            return {};
        return texte_(static_cast<std::size_t>(index.row()));
    }

private:
    int nombre_ = 0;
    Texte_De_Rang texte_;
};

Liste_Fixe::Liste_Fixe(QWidget *parent) : QListView(parent), modele_(new Modele(this))
{
    setModel(modele_);
    setFont(Police());
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    connect(this, &QListView::clicked, this, [this](const QModelIndex &index) { Selectionne(index.row()); });
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT Double_Cliquee(index.row()); });
}

Liste_Fixe::~Liste_Fixe() = default;

void Liste_Fixe::Remplit(std::size_t nombre, Texte_De_Rang texte)
{
    rang_dit_ = -1;
    modele_->Remplit(nombre, std::move(texte));
}

void Liste_Fixe::Remplit(std::vector<QString> entrees)
{
    const auto partagees = std::make_shared<const std::vector<QString>>(std::move(entrees));
    Remplit(partagees->size(), [partagees](std::size_t rang) { return (*partagees)[rang]; });
}

int Liste_Fixe::Nombre() const
{
    return modele_->rowCount({});
}

QString Liste_Fixe::Entree(int rang) const
{
    return modele_->index(rang).data().toString();
}

int Liste_Fixe::Rang_Courant() const
{
    // The focus alone makes the first entry the current one, without selecting it.
    return selectionModel()->isSelected(currentIndex()) ? currentIndex().row() : -1;
}

void Liste_Fixe::Selectionne(int rang)
{
    if (rang < 0 || rang >= Nombre())
        return;
    Place_Sur(rang);
    Q_EMIT Cliquee(rang);
}

void Liste_Fixe::Place_Sur(int rang)
{
    setCurrentIndex(modele_->index(rang));
    rang_dit_ = rang;
}

void Liste_Fixe::Dit_Le_Deplacement()
{
    if (Rang_Courant() >= 0 && Rang_Courant() != rang_dit_)
        Selectionne(Rang_Courant());
}

void Liste_Fixe::Pose_Entete(QLabel *entete)
{
    entete_ = entete;
    entete_->setParent(this);
    entete_->setFont(font());
    entete_->setTextFormat(Qt::PlainText);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &Liste_Fixe::Place_Entete);
    setViewportMargins(0, entete_->sizeHint().height(), 0, 0);
    Place_Entete();
}

void Liste_Fixe::Reserve(int colonnes, int lignes)
{
    lignes_reservees_ = lignes;
    const int largeur = fontMetrics().horizontalAdvance(QString(colonnes, u'M'));
    setMinimumWidth(largeur + 2 * Marge_Texte() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth());
    updateGeometry();
}

QSize Liste_Fixe::sizeHint() const
{
    const int entete = entete_ ? entete_->sizeHint().height() : 0;
    const int hauteur = lignes_reservees_ * fontMetrics().height() + entete + 2 * frameWidth();
    return {qMax(QListView::sizeHint().width(), minimumWidth()), hauteur};
}

QFont Liste_Fixe::Police()
{
    QFont police;
    police.setFamilies(Familles_Fixes());
    police.setStyleHint(QFont::Monospace);
    police.setFixedPitch(true);
    // The widest list, with its 126 columns and a scroll bar, fits 1366 pixels at 96 dots an inch.
    police.setPointSize(11);
    return police;
}

void Liste_Fixe::keyPressEvent(QKeyEvent *touche)
{
    const bool entree = touche->key() == Qt::Key_Return || touche->key() == Qt::Key_Enter;
    if (entree && Rang_Courant() >= 0) {
        if (!touche->isAutoRepeat())
            Q_EMIT Double_Cliquee(Rang_Courant());
        return;
    }
    const bool fleche = touche->key() == Qt::Key_Up || touche->key() == Qt::Key_Down;
    if (fleche && Rang_Courant() < 0)
        Selectionne(0);
    else
        QListView::keyPressEvent(touche);
    Dit_Le_Deplacement();
}

void Liste_Fixe::mouseReleaseEvent(QMouseEvent *souris)
{
    QListView::mouseReleaseEvent(souris);
    // Another button, or a release away from the press, selects without a click.
    Dit_Le_Deplacement();
}

void Liste_Fixe::resizeEvent(QResizeEvent *evenement)
{
    QListView::resizeEvent(evenement);
    Place_Entete();
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

int Liste_Fixe::Marge_Texte() const
{
    // Where a style begins the text of an item.
    return style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
}

void Liste_Fixe::Place_Entete()
{
    if (!entete_)
        return;
    const int hauteur = entete_->sizeHint().height();
    const int gauche = viewport()->x() + Marge_Texte() - horizontalScrollBar()->value();
    entete_->setGeometry(gauche, frameWidth(), qMax(entete_->sizeHint().width(), width()), hauteur);
}
