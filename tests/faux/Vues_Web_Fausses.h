#pragma once

#include "plateforme/Vue_Web.h"

#include <vector>

/// Records where the views were sent and what they said, over all views in their order; a view is an empty control.
/// Rules and operations make no view, so their tests know no widgets: main_ecrans.cpp says how a control is made.
class Vues_Web_Fausses : public Vues_Web {
public:
    [[nodiscard]] std::unique_ptr<Vue_Web> Nouvelle(QWidget *parent) override
    {
        return std::make_unique<Vue>(*this, parent);
    }

    inline static QWidget *(*controle_vide)(QWidget *parent) = nullptr;

    std::vector<QString> adresses;
    std::vector<QString> textes;

private:
    class Vue : public Vue_Web {
    public:
        Vue(Vues_Web_Fausses &vues, QWidget *parent) : vues_(vues), controle_(controle_vide(parent)) {}
        QWidget *Controle() override { return controle_; }
        void Navigue(const QString &adresse) override { vues_.adresses.push_back(adresse); }
        void Dit(const QString &texte) override { vues_.textes.push_back(texte); }

    private:
        Vues_Web_Fausses &vues_;
        QWidget *controle_;
    };
};
