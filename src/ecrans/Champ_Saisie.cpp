#include "ecrans/Champ_Saisie.h"

#include "plateforme/Windows_1252.h"

#include <QValidator>

namespace {

/// Drops what a file cannot hold, instead of refusing the whole of a paste.
class Filtre_1252 : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString &texte, int &position) const override
    {
        for (qsizetype i = texte.size() - 1; i >= 0; --i) {
            const QChar caractere = texte[i];
            if (Est_Dans_1252(caractere) && caractere != u'\n' && caractere != u'\r')
                continue;
            texte.remove(i, 1);
            if (i < position)
                --position;
        }
        return Acceptable;
    }
};

} // namespace

Champ_Saisie::Champ_Saisie(QWidget *parent) : QLineEdit(parent)
{
    setValidator(new Filtre_1252(this));
}

Champ_Saisie::Champ_Saisie(int caracteres, QWidget *parent) : Champ_Saisie(parent)
{
    // Capitals are wider than the average character, and the frame takes its part.
    setFixedWidth(fontMetrics().horizontalAdvance(u'M') * caracteres + fontMetrics().height());
}
