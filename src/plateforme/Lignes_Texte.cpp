#include "plateforme/Lignes_Texte.h"

#include <utility>

Lignes_Texte::Lignes_Texte(QString texte) : texte_(std::move(texte))
{
    const QStringView tout = texte_;
    // A log line takes 113 characters; lists have shorter ones and grow the vector a few times.
    lignes_.reserve(static_cast<std::size_t>(tout.size() / 113 + 1));
    qsizetype debut = 0;
    while (debut < tout.size()) {
        qsizetype fin = tout.indexOf(u'\n', debut);
        const qsizetype suivante = fin < 0 ? tout.size() : fin + 1;
        if (fin < 0)
            fin = tout.size();
        else if (fin > debut && tout[fin - 1] == u'\r')
            --fin;
        lignes_.push_back(tout.sliced(debut, fin - debut));
        debut = suivante;
    }
}
