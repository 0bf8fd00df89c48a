#include "saisie/Refus.h"

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

bool Est_Chiffre(QChar caractere)
{
    return caractere >= u'0' && caractere <= u'9';
}

/// Digits at the places of `rangs`; the caller has checked the length.
bool Sont_Chiffres(QStringView texte, std::initializer_list<qsizetype> rangs)
{
    return std::all_of(rangs.begin(), rangs.end(), [&](qsizetype rang) { return Est_Chiffre(texte[rang]); });
}

Refus Vide_Ou_Long(QStringView texte, qsizetype maximum, const QString &si_vide, const QString &si_long)
{
    if (texte.isEmpty())
        return si_vide;
    if (texte.size() > maximum)
        return si_long;
    return std::nullopt;
}

} // namespace

Refus Refus_Bande(QStringView texte)
{
    return Vide_Ou_Long(texte, 7, u"Entrez une QRG"_s, u"7 caracteres maxi pour la bande"_s);
}

Refus Refus_Ind(QStringView texte)
{
    return Vide_Ou_Long(texte, 12, u"Entrez un indicatif"_s, u"12 caracteres maxi pour l'indicatif"_s);
}

Refus Refus_Dpt(QStringView texte)
{
    if (texte.isEmpty())
        return u"Entrez un Departement"_s;
    if (texte.size() != 2)
        return u"2 caracteres pour le Departement ex : 05 ou 77"_s;
    return std::nullopt;
}

Refus Refus_Date(QStringView texte)
{
    if (texte.isEmpty())
        return u"Entrez une date"_s;
    if (texte.size() != 8)
        return u"8 caracteres pour la date ex: 12/05/07"_s;
    if (!Verifie_Date(texte))
        return u"Le format de la date doit etre JJ/MM/AA"_s;
    return std::nullopt;
}

Refus Refus_Heure(QStringView texte)
{
    if (texte.isEmpty())
        return u"Entrez une Heure"_s;
    if (texte.size() != 5)
        return u"5 caractereslour l'heure ex 12:48"_s;
    if (!Verifie_Heure(texte))
        return u"Le format de l'heure doit etre HH:MM"_s;
    return std::nullopt;
}

Refus Refus_Mode(QStringView texte)
{
    return Vide_Ou_Long(texte, 3, u"selectionnez un Mode"_s, u"3 caracteres maxi pour le Mode"_s);
}

Refus Refus_Report(QStringView texte)
{
    if (const Refus refus = Vide_Ou_Long(texte, 3, u"Entrez un Report"_s, u"3 caracteres maxi pour le Report"_s))
        return refus;
    if (texte.front() < u'0' || texte.front() > u'5')
        return u"R (de RST)doit etre compris entre 0 et 5"_s;
    return std::nullopt;
}

Refus Refus_Nom(QStringView texte)
{
    if (texte.size() > 50)
        return u"50 caracteres maxi pour le nom de la commune"_s;
    return std::nullopt;
}

bool Verifie_Date(QStringView texte)
{
    return texte.size() == 8 && Sont_Chiffres(texte, {0, 1, 3, 4, 6, 7}) && texte[2] == u'/' && texte[5] == u'/' &&
           texte.first(2).toInt() <= 31 && texte.sliced(3, 2).toInt() <= 12;
}

bool Verifie_Heure(QStringView texte)
{
    return texte.size() == 5 && Sont_Chiffres(texte, {0, 1, 3, 4}) && texte[2] == u':' &&
           texte.first(2).toInt() <= 23 && texte.sliced(3, 2).toInt() <= 59;
}

QString Message_Premiere_Installation()
{
    return u"\n         Premiere installation, vous devez entrer votre Indicatif\n\n"
           u"Pour cela dans la barre des menus allez dans 'Station' puis 'Nouvel Indicatif'."_s;
}

QString Message_Premiere_Installation_Ind()
{
    return u"\n         Premiere installation, vous devez entrer votre Indicatif\n\n"
           u"Pour cela dans la barre des menus allez dans Station puis Nouvel Indicatif."_s;
}
