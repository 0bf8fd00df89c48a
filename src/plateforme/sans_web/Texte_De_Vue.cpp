#include "plateforme/sans_web/Texte_De_Vue.h"

Texte_De_Vue::Texte_De_Vue(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
}

void Texte_De_Vue::Montre(const QString &texte, const QUrl &url)
{
    url_ = url;
    setText(texte);
}
