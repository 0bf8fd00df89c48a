#pragma once

#include <QString>
#include <QStringView>

/// A field of a fixed-column line; the first column is 1.
struct Champ {
    qsizetype colonne;
    qsizetype largeur;
};

/// The columns of a field as they stand; a line that ends earlier gives a short or an empty text.
constexpr QStringView Lit(QStringView ligne, Champ champ)
{
    const qsizetype debut = champ.colonne - 1;
    if (debut >= ligne.size())
        return {};
    return ligne.sliced(debut, qMin(champ.largeur, ligne.size() - debut));
}

/// The text without the blanks before and behind it. Blanks only: a tab or a no-break space is content.
constexpr QStringView Rogne(QStringView texte)
{
    while (!texte.isEmpty() && texte.front() == u' ')
        texte = texte.sliced(1);
    while (!texte.isEmpty() && texte.back() == u' ')
        texte.chop(1);
    return texte;
}

/// A field without the blanks around it.
constexpr QStringView Lit_Rogne(QStringView ligne, Champ champ)
{
    return Rogne(Lit(ligne, champ));
}

/// Blanks behind the text up to `largeur`; a longer text is left as it is.
inline QString Complete(QStringView texte, qsizetype largeur)
{
    return texte.toString().leftJustified(largeur, u' ');
}

/// Blanks behind the text up to `largeur`; a longer text is cut.
inline QString Ajuste(QStringView texte, qsizetype largeur)
{
    return texte.toString().leftJustified(largeur, u' ', true);
}
