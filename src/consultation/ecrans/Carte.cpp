#include "consultation/ecrans/Carte.h"

#include "ecrans/Couleurs.h"
#include "ecrans/Nomme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

// In the units of the picture.
constexpr QSizeF taille_boite{17, 11.5};
constexpr qreal taille_chiffres = 9.5;
/// What is drawn larger, and where: in the open sea.
constexpr QRectF vue_loupe{297, 132, 33, 26};
constexpr QRectF cadre_loupe{2, 2, 132, 104};

constexpr QColor couleur_terre{244, 241, 232};
constexpr QColor couleur_mer{214, 229, 240};
constexpr QColor couleur_trait{130, 130, 130};

bool Est_Sous_La_Loupe(const QString &numero)
{
    return numero == u"75" || numero == u"92" || numero == u"93" || numero == u"94";
}

QColor Couleur(Couleur_Dep couleur)
{
    return QColor::fromRgb(static_cast<QRgb>(couleur) | 0xFF000000U);
}

QLabel *Nouvelle_Boite(int numero, QWidget *carte)
{
    auto *boite = Nomme(new QLabel(carte), u"Dep_%1"_s.arg(numero), Texte_Dep(numero));
    boite->setAlignment(Qt::AlignCenter);
    boite->setFrameStyle(QFrame::Box | QFrame::Plain);
    boite->setAutoFillBackground(true);
    Colore(boite, Couleur(Couleur_Dep::Non_Contacte));
    return boite;
}

} // namespace

Carte::Carte(QWidget *parent) : QWidget(parent), departements_(Charge_Fond())
{
    // The number that Corsica had as a whole lies between those of its halves.
    departements_[u"20"_s].place = (departements_[u"2A"_s].place + departements_[u"2B"_s].place) / 2;
    for (std::size_t rang = 0; rang < nombre_dep; ++rang) {
        const int numero = static_cast<int>(rang) + 1;
        boites_[rang] = Nouvelle_Boite(numero, this);
        // 98 and 99 are no departments: a log can count them, but the map has no place for them.
        boites_[rang]->setVisible(departements_.contains(Texte_Dep(numero)));
    }
    setMinimumSize((taille_fond * 0.9).toSize());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Carte::Colore_Boites(const Couleurs_Carte &couleurs)
{
    for (std::size_t rang = 0; rang < nombre_dep; ++rang)
        Colore(boites_[rang], Couleur(couleurs[rang]));
}

QSize Carte::sizeHint() const
{
    return taille_fond.toSize();
}

qreal Carte::Echelle() const
{
    return qMin(width() / taille_fond.width(), height() / taille_fond.height());
}

QTransform Carte::Transformation() const
{
    const QSizeF taille = taille_fond * Echelle();
    return QTransform::fromTranslate((width() - taille.width()) / 2, (height() - taille.height()) / 2)
        .scale(Echelle(), Echelle());
}

QTransform Carte::Transformation_Loupe() const
{
    const qreal grossissement = cadre_loupe.width() / vue_loupe.width();
    return Transformation()
        .translate(cadre_loupe.x(), cadre_loupe.y())
        .scale(grossissement, grossissement)
        .translate(-vue_loupe.x(), -vue_loupe.y());
}

QPointF Carte::Place(const QString &numero) const
{
    const QPointF place = departements_.at(numero).place;
    return Est_Sous_La_Loupe(numero) ? Transformation_Loupe().map(place) : Transformation().map(place);
}

void Carte::resizeEvent(QResizeEvent *evenement)
{
    QWidget::resizeEvent(evenement);
    const QSizeF taille = taille_boite * Echelle();
    for (std::size_t rang = 0; rang < nombre_dep; ++rang) {
        const QString numero = Texte_Dep(static_cast<int>(rang) + 1);
        if (!departements_.contains(numero))
            continue;
        QFont police = font();
        police.setPixelSize(qMax(7, qRound(taille_chiffres * Echelle())));
        boites_[rang]->setFont(police);
        const QPointF coin = Place(numero) - QPointF(taille.width(), taille.height()) / 2;
        boites_[rang]->setGeometry(QRectF(coin, taille).toRect());
    }
}

void Carte::paintEvent(QPaintEvent *)
{
    QPainter dessin(this);
    dessin.setRenderHint(QPainter::Antialiasing);
    dessin.fillRect(rect(), couleur_mer);
    Dessine_Contours(dessin, Transformation());
    Dessine_Loupe(dessin);
}

void Carte::Dessine_Contours(QPainter &dessin, const QTransform &transformation) const
{
    dessin.setPen(couleur_trait);
    dessin.setBrush(couleur_terre);
    for (const auto &[numero, departement] : departements_)
        dessin.drawPath(transformation.map(departement.contour));
}

void Carte::Dessine_Loupe(QPainter &dessin) const
{
    const QRectF vue = Transformation().mapRect(vue_loupe);
    const QRectF cadre = Transformation().mapRect(cadre_loupe);
    dessin.setPen(Qt::black);
    dessin.setBrush(Qt::NoBrush);
    dessin.drawRect(vue);
    dessin.drawLine(QPointF(cadre.right(), cadre.center().y()), vue.topLeft());
    dessin.save();
    dessin.setClipRect(cadre);
    Dessine_Contours(dessin, Transformation_Loupe());
    dessin.restore();
    dessin.drawRect(cadre);
}

QWidget *Legende_Carte(const std::vector<std::pair<Couleur_Dep, QString>> &entrees, QWidget *parent)
{
    auto *legende = Nomme(new QWidget(parent), u"Legende"_s);
    auto *rangee = new QHBoxLayout(legende);
    rangee->setContentsMargins({});
    for (const auto &[couleur, texte] : entrees) {
        auto *pastille = new QLabel(legende);
        pastille->setFrameStyle(QFrame::Box | QFrame::Plain);
        pastille->setAutoFillBackground(true);
        pastille->setFixedWidth(legende->fontMetrics().height() * 2);
        Colore(pastille, Couleur(couleur));
        rangee->addWidget(pastille);
        rangee->addWidget(new QLabel(texte, legende));
    }
    rangee->addStretch();
    return legende;
}
