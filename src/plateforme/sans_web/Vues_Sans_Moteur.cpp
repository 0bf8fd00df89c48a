#include "plateforme/Vue_Web.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

class Vue_Sans_Moteur : public Vue_Web {
public:
    explicit Vue_Sans_Moteur(QWidget *parent) : texte_(new QLabel(parent))
    {
        texte_->setTextFormat(Qt::PlainText);
        texte_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        texte_->setAlignment(Qt::AlignCenter);
        texte_->setWordWrap(true);
    }

    QWidget *Controle() override { return texte_; }
    void Navigue(const QString &adresse) override
    {
        Dit(u"Cette version de Vorlain n'affiche pas les pages web : "_s + adresse);
    }
    void Dit(const QString &texte) override { texte_->setText(texte); }

private:
    QLabel *texte_;
};

class Vues_Sans_Moteur : public Vues_Web {
public:
    std::unique_ptr<Vue_Web> Nouvelle(QWidget *parent) override { return std::make_unique<Vue_Sans_Moteur>(parent); }
};

} // namespace

std::unique_ptr<Vues_Web> Vues_Web_Du_Programme()
{
    return std::make_unique<Vues_Sans_Moteur>();
}
