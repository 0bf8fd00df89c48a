#include "plateforme/Vue_Web.h"
#include "plateforme/sans_web/Texte_De_Vue.h"

using namespace Qt::StringLiterals;

namespace {

class Vue_Sans_Moteur : public Vue_Web {
public:
    explicit Vue_Sans_Moteur(QWidget *parent) : texte_(new Texte_De_Vue(parent)) {}

    QWidget *Controle() override { return texte_; }
    void Navigue(const QString &adresse) override
    {
        texte_->Montre(u"Cette version de Vorlain n'affiche pas les pages web : "_s + adresse, QUrl(adresse));
    }
    void Dit(const QString &texte) override { texte_->Montre(texte, {}); }

private:
    Texte_De_Vue *texte_;
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
