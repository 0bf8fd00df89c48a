#pragma once

#include "plateforme/Boites.h"

#include <deque>
#include <functional>
#include <vector>

/// Records every box; questions take their answers from `reponses`, "Oui" when there is none left.
/// `pendant_message` runs while a message is shown.
class Boites_Fausses : public Boites {
public:
    void Message(const QString &texte) override
    {
        messages.push_back(texte);
        if (pendant_message)
            pendant_message();
    }
    bool Question(const QString &texte) override
    {
        questions.push_back(texte);
        if (reponses.empty())
            return true;
        const bool reponse = reponses.front();
        reponses.pop_front();
        return reponse;
    }

    std::vector<QString> messages;
    std::vector<QString> questions;
    std::deque<bool> reponses;
    std::function<void()> pendant_message;
};
