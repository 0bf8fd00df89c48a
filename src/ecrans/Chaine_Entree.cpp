#include "ecrans/Chaine_Entree.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace {

bool Est_Entree(const QKeyEvent &touche)
{
    return touche.key() == Qt::Key_Return || touche.key() == Qt::Key_Enter;
}

bool Tape(const QKeyEvent &touche)
{
    return !touche.text().isEmpty() && touche.text().front().isPrint();
}

bool Est_Raccourci(const QKeyEvent &touche)
{
    // AltGr arrives as Ctrl+Alt on some platforms and types characters.
    const Qt::KeyboardModifiers les_deux = Qt::ControlModifier | Qt::AltModifier;
    const Qt::KeyboardModifiers tenues = touche.modifiers() & les_deux;
    return tenues && tenues != les_deux;
}

QString En_Capitales(const QString &texte)
{
    QString capitales = texte;
    for (QChar &caractere : capitales)
        if (caractere >= u'a' && caractere <= u'z')
            caractere = QChar(caractere.unicode() - 0x20);
    return capitales;
}

} // namespace

bool Agit_Sur_Un_Champ(const QKeyEvent &touche)
{
    if (Est_Raccourci(touche))
        return false;
    switch (touche.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return true;
    default:
        return Tape(touche);
    }
}

Chaine_Entree::Chaine_Entree(QWidget *controle, Reactions reactions)
    : QObject(controle),
      controle_(controle),
      reactions_(std::move(reactions))
{
    controle->installEventFilter(this);
}

bool Chaine_Entree::eventFilter(QObject *objet, QEvent *evenement)
{
    if (!transmet_ && evenement->type() == QEvent::KeyPress)
        return Traite(*static_cast<QKeyEvent *>(evenement));
    if (!transmet_ && evenement->type() == QEvent::InputMethod)
        return Traite_Composition(*static_cast<QInputMethodEvent *>(evenement));
    return QObject::eventFilter(objet, evenement);
}

bool Chaine_Entree::Traite(QKeyEvent &touche)
{
    if (Est_Entree(touche)) {
        if (!touche.isAutoRepeat() && reactions_.accepte())
            reactions_.entree();
        return true;
    }
    if (!Agit_Sur_Un_Champ(touche))
        return false;
    if (!reactions_.accepte())
        return true;
    const bool retour_arriere = touche.key() == Qt::Key_Backspace;
    if (retour_arriere || Tape(touche))
        reactions_.avant(retour_arriere);
    QKeyEvent capitale(touche.type(), touche.key(), touche.modifiers(), En_Capitales(touche.text()),
                       touche.isAutoRepeat(), static_cast<quint16>(touche.count()));
    Transmet(capitale);
    return true;
}

bool Chaine_Entree::Traite_Composition(const QInputMethodEvent &composition)
{
    if (composition.commitString().isEmpty())
        return false;
    if (!reactions_.accepte())
        return true;
    reactions_.avant(false);
    QInputMethodEvent capitale(composition.preeditString(), composition.attributes());
    capitale.setCommitString(En_Capitales(composition.commitString()), composition.replacementStart(),
                             composition.replacementLength());
    Transmet(capitale);
    return true;
}

void Chaine_Entree::Transmet(QEvent &evenement)
{
    transmet_ = true;
    QCoreApplication::sendEvent(controle_, &evenement);
    transmet_ = false;
    reactions_.apres();
}
