#include "plateforme/qt/Imprimante_Qt.h"

#include "plateforme/Tolere.h"
#include "plateforme/disque/Fichier_Sur.h"
#include "plateforme/qt/Feuilles.h"
#include "plateforme/qt/Mise_En_Page.h"
#include "plateforme/qt/Refus_Du_Serveur.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

const QString echec = u"L'impression a échoué : "_s;

class Attente {
public:
    Attente() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Attente() { QApplication::restoreOverrideCursor(); }
    Attente(const Attente &) = delete;
    Attente &operator=(const Attente &) = delete;
};

/// Qt falls back on a PDF without a name where no printer is installed: nothing would come of it.
bool A_Ou_Imprimer(const QPrinter &imprimante)
{
    return !imprimante.printerName().isEmpty() || !imprimante.outputFileName().isEmpty();
}

/// Lines that are wider than the upright sheet stand on one that lies, unless the user turns it back.
void Propose_Le_Sens(QPrinter &imprimante, const std::vector<QString> &lignes)
{
    if (!Mise_En_Page(imprimante, lignes).Tient())
        imprimante.setPageOrientation(QPageLayout::Landscape);
}

/// False if the dialogue ended with the screen that it stood over. Otherwise its answer is not looked at: dismissed, it
/// leaves the printer as it stood.
bool Fait_Choisir(QPrinter &imprimante)
{
    const QPointer<QPrintDialog> choix = new QPrintDialog(&imprimante, QApplication::activeWindow());
    choix->exec();
    const bool reste = !choix.isNull();
    delete choix;
    return reste;
}

bool Peint(QPagedPaintDevice &papier, const Mise_En_Page &pages, const std::vector<int> &feuilles)
{
    QPainter peintre;
    if (!peintre.begin(&papier))
        return false;
    for (std::size_t rang = 0; rang < feuilles.size(); ++rang) {
        if (rang > 0 && !papier.newPage())
            return false;
        pages.Peint(peintre, feuilles[rang]);
    }
    return peintre.end();
}

std::optional<QString> Imprime_Sur_Papier(QPrinter &imprimante, const Mise_En_Page &pages,
                                          const std::vector<int> &feuilles)
{
    if (!Peint(imprimante, pages, feuilles))
        return echec + u"l'imprimante n'est pas accessible";
    if (const auto refus = Refus_Du_Serveur())
        return echec + *refus;
    return std::nullopt;
}

/// The document is made in memory first: Qt's own file does not tell that it was cut by a full disk.
std::optional<QString> Imprime_En_Fichier(const QPrinter &imprimante, const std::vector<QString> &lignes,
                                          const std::vector<int> &feuilles)
{
    QBuffer octets;
    octets.open(QIODevice::WriteOnly);
    QPdfWriter papier(&octets);
    papier.setTitle(imprimante.docName());
    papier.setCreator(u"Vorlain"_s);
    papier.setResolution(imprimante.resolution());
    papier.setPageLayout(imprimante.pageLayout());
    if (!Peint(papier, Mise_En_Page(papier, lignes), feuilles))
        return echec + u"le document n'a pas pu être composé";
    const QString fichier = imprimante.outputFileName();
    if (const auto empechement = Empechement([&] { Ecrit_Document(fichier, octets.data()); }))
        return echec + *empechement;
    return std::nullopt;
}

} // namespace

std::optional<QString> Imprimante_Qt::Imprime(const QString &titre, const std::vector<QString> &lignes)
{
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setDocName(u"Vorlain - " + titre);
    Propose_Le_Sens(imprimante, lignes);
    if (!Fait_Choisir(imprimante))
        return std::nullopt;
    if (!A_Ou_Imprimer(imprimante))
        return u"Aucune imprimante n'est disponible : rien n'a été imprimé"_s;
    return Imprime_Lignes(imprimante, lignes);
}

std::optional<QString> Imprime_Lignes(QPrinter &imprimante, const std::vector<QString> &lignes)
{
    const Attente attente;
    const Mise_En_Page pages(imprimante, lignes);
    const std::vector<int> feuilles = Feuilles(imprimante, pages.Nombre_De_Pages());
    if (feuilles.empty())
        return u"Aucune des pages choisies n'existe : rien n'a été imprimé"_s;
    return imprimante.outputFileName().isEmpty() ? Imprime_Sur_Papier(imprimante, pages, feuilles)
                                                 : Imprime_En_Fichier(imprimante, lignes, feuilles);
}
