#include "programme_au_hasard/Geste.h"

#include "faux/Conduite.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

/// The windows beside the main screen that the operator left open, minimised ones too.
std::vector<QWidget *> Fenetres(const QWidget &principal)
{
    std::vector<QWidget *> fenetres;
    for (QWidget *fenetre : QApplication::topLevelWidgets())
        if (fenetre != &principal && fenetre->isVisible() && !fenetre->objectName().isEmpty() &&
            fenetre->windowType() == Qt::Window)
            fenetres.push_back(fenetre);
    std::sort(fenetres.begin(), fenetres.end(),
              [](const QWidget *a, const QWidget *b) { return a->objectName() < b->objectName(); });
    return fenetres;
}

/// What can be used of a window, in the order in which it was built.
std::vector<QWidget *> Controles(const QWidget &fenetre)
{
    std::vector<QWidget *> controles;
    for (QWidget *controle : fenetre.findChildren<QWidget *>())
        if (controle->isEnabled() && !controle->objectName().isEmpty() &&
            (qobject_cast<QAbstractButton *>(controle) || qobject_cast<QComboBox *>(controle) ||
             qobject_cast<QAbstractItemView *>(controle) ||
             (qobject_cast<QLineEdit *>(controle) && controle->objectName() != u"Le_Chemin")) &&
            !controle->objectName().startsWith(u"qt_"))
            controles.push_back(controle);
    return controles;
}

/// The code at the end of "Importer un log DFCF".
QString Code_Nomme(const QWidget &adif)
{
    return conduite::Trouve<QLabel>(adif, u"Label2"_s)->text().section(u' ', -1);
}

void Clique_Au_Hasard(QAbstractItemView &liste, int tirage, bool double_clic)
{
    const int nombre = liste.model()->rowCount();
    if (nombre == 0)
        return;
    const QModelIndex index = liste.model()->index(tirage % nombre, 0);
    if (liste.model()->flags(index).testFlag(Qt::ItemIsUserCheckable))
        liste.model()->setData(index, Qt::Checked, Qt::CheckStateRole);
    else if (double_clic)
        conduite::Double_Clique(liste, index.row());
    else
        conduite::Clique(liste, index.row());
}

} // namespace

Geste Operateur::Une_Fenetre(const Ecran_Vu &vu)
{
    const std::vector<QWidget *> fenetres = Fenetres(principal_);
    if (fenetres.empty())
        return Un_Menu(vu);
    QWidget *fenetre = hasard_.Un_De(fenetres);
    const QString nom = fenetre->objectName();
    const int tirage = hasard_.Rang(100);
    if (tirage < 8)
        return {.recit = u"close "_s + nom, .fait = [fenetre] { fenetre->close(); }};
    if (tirage < 16)
        return {.recit = u"minimise "_s + nom, .fait = [fenetre] { fenetre->showMinimized(); }};
    if (tirage < 20)
        return {.recit = u"show "_s + nom, .fait = [fenetre] { fenetre->showNormal(); }};
    return Dans_La_Fenetre(*fenetre, vu);
}

Geste Operateur::Dans_La_Fenetre(QWidget &fenetre, const Ecran_Vu &vu)
{
    const std::vector<QWidget *> controles = Controles(fenetre);
    if (controles.empty())
        return {.recit = u"close "_s + fenetre.objectName(), .fait = [&fenetre] { fenetre.close(); }};
    QWidget *controle = hasard_.Un_De(controles);
    // What the screen is there for comes more often than by chance alone.
    for (const QString &nom : {u"Importer"_s, u"Enregistre"_s, u"Recherche"_s})
        if (auto *bouton = fenetre.findChild<QPushButton *>(nom); bouton && bouton->isEnabled() && hasard_.Sur_Cent(35))
            controle = bouton;
    const QString recit = fenetre.objectName() + u'.' + controle->objectName() + u": ";
    if (auto *combo = qobject_cast<QComboBox *>(controle)) {
        const int rang = hasard_.Rang(static_cast<std::size_t>(qMax(1, combo->count())));
        return {.recit = recit + u"End, %1 up"_s.arg(rang), .fait = [=] {
                    QTest::keyClick(combo, Qt::Key_End);
                    for (int i = 0; i < rang; ++i)
                        QTest::keyClick(combo, Qt::Key_Up);
                }};
    }
    if (auto *liste = qobject_cast<QAbstractItemView *>(controle)) {
        const int tirage = hasard_.Rang(1000);
        const bool deux = hasard_.Sur_Cent(40);
        return {.recit = recit + u"click in the list"_s, .fait = [=] { Clique_Au_Hasard(*liste, tirage, deux); }};
    }
    if (auto *champ = qobject_cast<QLineEdit *>(controle)) {
        const QString texte = hasard_.Un_De<QString>({u"f5abc"_s, u"77001"_s, u"77"_s, u""_s, u"f6"_s});
        return {.recit = recit + u"\"%1\", Enter"_s.arg(texte), .fait = [=] {
                    champ->selectAll();
                    conduite::Tape(*champ, texte);
                    conduite::Entree(*champ);
                }};
    }
    return Presse(fenetre, *controle, vu);
}

Geste Operateur::Presse(QWidget &fenetre, QWidget &bouton, const Ecran_Vu &vu)
{
    Geste geste{.recit = fenetre.objectName() + u'.' + bouton.objectName() + u": press",
                .fait = [&bouton] { QTest::mouseClick(&bouton, Qt::LeftButton); }};
    if (fenetre.objectName() == u"ADIF" && bouton.objectName() == u"Importer") {
        const QString code = Code_Nomme(fenetre);
        // The import itself knows no year but that of one challenge; what follows it does.
        for (const QString &log :
             {Log_De(vu.station, code), Nom_Du_Log(vu.station, code, {}).replace(u"_.log"_s, u".log"_s)})
            geste.nommes.insert({log, QString(log).replace(u".log"_s, u".bak"_s)});
    }
    if (fenetre.objectName() == u"Multi_QSL") {
        if (bouton.objectName() == u"Recherche")
            log_des_cartes_ = Log_De(vu.station, conduite::Trouve<QComboBox>(fenetre, u"Diplome"_s)->currentText());
        if (bouton.objectName() == u"Enregistre")
            geste.nommes = {log_des_cartes_};
    }
    return geste;
}
