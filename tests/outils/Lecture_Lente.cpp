#include "Lecture_Lente.h"

#include <map>
#include <stdexcept>

namespace lente {

namespace {

struct Fatal : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The place of `cherche` from `depuis` on, from 1; 0 if it is not there.
std::size_t Place(std::size_t depuis, const std::string &texte, const std::string &cherche)
{
    if (depuis == 0)
        throw Fatal("search from place 0");
    const std::size_t place = depuis > texte.size() ? std::string::npos : texte.find(cherche, depuis - 1);
    return place == std::string::npos ? 0 : place + 1;
}

std::string Milieu(const std::string &texte, std::size_t debut, long longueur)
{
    if (longueur < 0)
        throw Fatal("negative length");
    return debut > texte.size() ? std::string() : texte.substr(debut - 1, static_cast<std::size_t>(longueur));
}

std::string Gauche(const std::string &texte, std::size_t longueur)
{
    return texte.substr(0, longueur);
}

std::string Droite(const std::string &texte, std::size_t longueur)
{
    return texte.size() <= longueur ? texte : texte.substr(texte.size() - longueur);
}

std::string Sans_Blancs(std::string texte)
{
    while (!texte.empty() && texte.front() == ' ')
        texte.erase(0, 1);
    while (!texte.empty() && texte.back() == ' ')
        texte.pop_back();
    return texte;
}

std::string Blancs(long nombre)
{
    if (nombre < 0)
        throw Fatal("negative number of blanks");
    return std::string(static_cast<std::size_t>(nombre), ' ');
}

std::string Comble(const std::string &texte, long largeur)
{
    return texte + Blancs(largeur - static_cast<long>(texte.size()));
}

/// The capital of a letter of Windows-1252.
char Capitale(char lettre)
{
    const auto numero = static_cast<unsigned char>(lettre);
    if ((numero >= 'a' && numero <= 'z') || (numero >= 0xE0 && numero <= 0xFE && numero != 0xF7))
        return static_cast<char>(numero - 0x20);
    if (numero == 0x9A || numero == 0x9C || numero == 0x9E)
        return static_cast<char>(numero - 0x10);
    return numero == 0xFF ? static_cast<char>(0x9F) : lettre;
}

std::vector<std::string> Lignes(std::string texte)
{
    std::vector<std::string> lignes;
    for (char &lettre : texte)
        lettre = Capitale(lettre);
    while (!texte.empty()) {
        const std::size_t fin = texte.find('\n');
        std::string ligne = texte.substr(0, fin);
        texte = fin == std::string::npos ? std::string() : texte.substr(fin + 1);
        if (fin != std::string::npos && !ligne.empty() && ligne.back() == '\r')
            ligne.pop_back();
        lignes.push_back(ligne);
    }
    return lignes;
}

/// The value of a tag: what stands from its ">" to the next "<"; FREQ takes one character less.
std::string Valeur(const std::string &tampon, const std::string &etiquette)
{
    const std::size_t place = Place(1, tampon, etiquette);
    if (place == 0)
        return "";
    const std::size_t debut = Place(place, tampon, ">");
    const std::size_t fin = Place(debut, tampon, "<");
    const long longueur = static_cast<long>(fin) - static_cast<long>(debut) - 1;
    std::string valeur = Milieu(tampon, debut + 1, longueur);
    if (etiquette == "<FREQ" && longueur > 0)
        valeur = Milieu(tampon, debut + 1, longueur - 1);
    return Sans_Blancs(valeur);
}

const std::vector<std::pair<std::string, std::string>> bandes{
    {"160M", "1.8 Mhz"}, {"160", "1.8 Mhz"},  {"1.8", "1.8 Mhz"}, {"80M", "3.5 Mhz"}, {"80", "3.5 Mhz"},
    {"3.5", "3.5 Mhz"},  {"3.6", "3.5 Mhz"},  {"3", "3.5 Mhz"},   {"40M", "7.0 Mhz"}, {"40", "7.0 Mhz"},
    {"7", "7.0 Mhz"},    {"30M", "10 Mhz"},   {"30", "10 Mhz"},   {"10", "10 Mhz"},   {"20M", "14 Mhz"},
    {"20", "14 Mhz"},    {"14", "14 Mhz"},    {"17M", "18 Mhz"},  {"17", "18 Mhz"},   {"18", "18 Mhz"},
    {"15M", "21 Mhz"},   {"15", "21 Mhz"},    {"21", "21 Mhz"},   {"12M", "24 Mhz"},  {"12", "24 Mhz"},
    {"24", "24 Mhz"},    {"10M", "28 Mhz"},   {"10", "28 Mhz"},   {"28", "28 Mhz"},   {"6M", "50 Mhz"},
    {"6", "50 Mhz"},     {"50", "50 Mhz"},    {"2M", "144 Mhz"},  {"2", "144 Mhz"},   {"144", "144 Mhz"},
    {"145", "144 Mhz"},  {"70CM", "432 Mhz"}, {"70", "432 Mhz"},  {"432", "432 Mhz"},
};

class Import {
public:
    Import(std::string code, bool multi) : code_(std::move(code)), multi_(multi) {}

    void Enregistrement(const std::string &tampon)
    {
        std::string ind = Gauche(Valeur(tampon, "<CALL"), 12);
        if (ind.empty())
            ind = Remplace("FXXXX", "Indicatif absent, remplacé par FXXXX");
        std::string dpt = Valeur(tampon, "<STATE");
        if (dpt.empty())
            dpt = "  ";
        const std::string prenom = Gauche(Valeur(tampon, "<NAME"), 15);
        std::string ref = Valeur(tampon, "<SIG:");
        if (ref.empty()) {
            ref = Blancs(10);
        } else if (Place(1, ref, "-") != 0) {
            prefixe_ = Gauche(ref, Place(1, ref, "-") - 1);
            a_prefixe_ = true;
            ref = Milieu(ref, Place(1, ref, "-") + 1, 1000);
        }
        const std::string jour = Valeur(tampon, "<QSO_DATE");
        std::string date = Droite(jour, 2) + "/" + Milieu(jour, 5, 2) + "/" + Milieu(jour, 3, 2);
        if (jour.empty())
            date = Remplace("01/01/2000", "Date absente, remplacée par 01/01/2000");
        const std::string instant = Valeur(tampon, "<TIME_ON");
        std::string heure = Gauche(instant, 2) + ":" + Milieu(instant, 3, 2);
        if (instant.empty())
            heure = Remplace("00:00", "Heure absente, remplacée par 00:00");
        std::string mode = Gauche(Valeur(tampon, "<MODE"), 3);
        if (mode.empty())
            mode = "XXX";
        const std::string bande = Bande(tampon);
        std::string rstr = Gauche(Valeur(tampon, "<RST_RCVD"), 3);
        if (rstr.empty())
            rstr = "XX";
        std::string rste = Gauche(Valeur(tampon, "<RST_SENT"), 3);
        if (rste.empty())
            rste = "XX";
        const std::string nom = Gauche(Valeur(tampon, "<SIG_INFO"), 30);
        const std::string qsl = Valeur(tampon, "<QSL_RCVD") == "Y" ? "*" : " ";

        const std::string ligne = Comble(ind, 13) + Comble(dpt, 5) + Comble(prenom, 16) + Comble(ref, 10) +
                                  Comble(date, 9) + Comble(heure, 6) + Comble(mode, 4) + Comble(bande, 8) +
                                  Comble(rstr, 4) + Comble(rste, 4) + Comble(nom, 31) + qsl;
        if (ref == "      ")
            return;
        if (code_ != "FFF" && dpt == "  ")
            return;
        if (!multi_ || (a_prefixe_ && prefixe_ == code_))
            essai.lignes.push_back(ligne);
    }

    Essai essai;

private:
    std::string Remplace(const std::string &valeur, const std::string &message)
    {
        essai.messages.push_back(message);
        return valeur;
    }

    std::string Bande(const std::string &tampon)
    {
        std::string cle;
        if (Place(1, tampon, "<BAND") != 0) {
            cle = Valeur(tampon, "<BAND");
        } else {
            cle = Gauche(Valeur(tampon, "<FREQ"), 5);
            if (Place(1, cle, ".") != 0)
                cle = Gauche(cle, Place(1, cle, ".") - 1);
        }
        if (cle.empty())
            cle = "XX Mhz";
        for (const auto &[connue, bande] : bandes)
            if (cle == connue)
                return bande;
        return Remplace("1.8 Mhz", "Bande absente, remplacée par 1.8 Mhz");
    }

    std::string code_;
    bool multi_;
    std::string prefixe_;
    bool a_prefixe_ = false;
};

} // namespace

Essai Importe(const std::string &octets, const std::string &code, bool multi)
{
    Import import(code, multi);
    const std::vector<std::string> lignes = Lignes(octets);
    std::size_t rang = 0;
    while (rang < lignes.size() && Place(1, lignes[rang], "<EOH>") == 0)
        ++rang;
    ++rang;
    try {
        for (;;) {
            std::string tampon;
            while (rang < lignes.size() && Place(1, tampon, "<EOR>") == 0)
                tampon += lignes[rang++];
            if (tampon.empty())
                break;
            import.Enregistrement(tampon);
        }
    } catch (const Fatal &) {
        import.essai.echec = true;
    }
    return import.essai;
}

} // namespace lente
