#include "programme_au_hasard/Geste.h"

#include "programme_au_hasard/Diplomes.h"

#include "faux/Conduite.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

const std::vector<QString> indicatifs = {u"f5abc"_s, u"f6xyz/p"_s, u"F8AAA"_s, u"f4bbb"_s, u"on4ccc"_s, u""_s};

QString Ref_Pour(const QString &code, Hasard &hasard)
{
    QString ref;
    for (const Diplome_Vu &diplome : diplomes)
        if (diplome.code == code)
            ref = diplome.refs[static_cast<std::size_t>(hasard.Rang(diplome.refs.size()))].toString();
    // A site that was worked before is refused.
    const qsizetype chiffre = ref.lastIndexOf(QRegularExpression(u"[0-9]"_s));
    if (chiffre >= 0 && hasard.Sur_Cent(80))
        ref[chiffre] = QChar(u'0' + hasard.Rang(10));
    return ref;
}

/// A box or a screen of the gesture before took the focus with it, as it does not under a window manager.
QWidget *En_Main(QWidget &principal)
{
    principal.activateWindow();
    QWidget *champ = principal.focusWidget();
    return champ && champ->isEnabled() ? champ : principal.findChild<QWidget *>(u"Dip_A"_s);
}

/// A click on an entry of a menu that is open, or of the bar itself.
void Clique_Le_Menu(QAction &action)
{
    for (QObject *lieu : action.associatedObjects()) {
        if (auto *menu = qobject_cast<QMenu *>(lieu)) {
            const QPointer<QMenu> ouvert = menu;
            menu->popup({});
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&action).center());
            if (ouvert)
                ouvert->close();
        } else if (auto *barre = qobject_cast<QMenuBar *>(lieu)) {
            QTest::mouseClick(barre, Qt::LeftButton, {}, barre->actionGeometry(&action).center());
        }
    }
}

QString Casse(const QString &texte, Hasard &hasard)
{
    return hasard.Sur_Cent(50) ? texte.toLower() : texte;
}

} // namespace

Geste Operateur::Prochain(const Ecran_Vu &vu)
{
    if (suite_de_saisie_ > 0 && --suite_de_saisie_ > 0 && hasard_.Sur_Cent(88))
        return Saisit(vu);
    const int tirage = hasard_.Rang(100);
    if (tirage < 12) {
        suite_de_saisie_ = 14;
        return Ouvre_Un_Diplome(vu);
    }
    if (tirage < 20)
        suite_de_saisie_ = 12;
    if (tirage < 26)
        return Saisit(vu);
    if (tirage < 38)
        return Dans_La_Liste();
    if (tirage < 52) {
        static const std::vector<QString> noms = {
            u"Valide_A"_s,  u"Valide_A"_s, u"Annule_Saisie"_s, u"Annule_Saisie"_s, u"Ajout_QSO"_s,
            u"Recherche"_s, u"Detail"_s,   u"Detail"_s,        u"Detail_1"_s,      u"Efface_A"_s};
        return Un_Bouton(vu, hasard_.Un_De(noms));
    }
    if (tirage < 56)
        return Une_Touche();
    if (tirage < 61)
        return Tourne_La_Molette();
    if (tirage < 65)
        return Ouvre_Un_Combo(vu);
    if (tirage < 83)
        return Un_Menu(vu);
    return Une_Fenetre(vu);
}

QString Operateur::Texte_Pour(const QString &champ, const Ecran_Vu &vu)
{
    const auto un_de = [&](const std::vector<QString> &choix) { return hasard_.Un_De(choix); };
    if (champ == u"Dip_A")
        return Casse(diplomes[static_cast<std::size_t>(hasard_.Rang(diplomes.size()))].code.toString(), hasard_);
    if (champ == u"Ind_A")
        return un_de(indicatifs);
    if (champ == u"Prenom_A")
        return un_de({u"jean"_s, u""_s, u"rené"_s});
    if (champ == u"Ref_A")
        return hasard_.Sur_Cent(90) ? Casse(Ref_Pour(vu.diplome, hasard_), hasard_) : u"12"_s;
    if (champ == u"Dpt_A")
        return un_de({u"77"_s, u"2a"_s, u"05"_s});
    if (champ == u"Date_A")
        return un_de({u"12/05/25"_s, u"01/01/26"_s, u"31/12/24"_s, u"120526"_s});
    if (champ == u"Heure_A")
        return un_de({u"14:48"_s, u"00:00"_s, u"2359"_s});
    if (champ == u"Bande_A")
        return un_de({u""_s, u""_s, u"7.123"_s});
    if (champ == u"Mode_A")
        return un_de({u""_s, u""_s, u"cw"_s});
    if (champ == u"Nom_A")
        return un_de({u"vaux"_s, u"provins"_s, u""_s});
    return champ == u"QSL_A" && hasard_.Sur_Cent(30) ? u" "_s : QString();
}

/// What the field in hand wants, and Enter.
Geste Operateur::Saisit(const Ecran_Vu &vu)
{
    QWidget *champ = En_Main(principal_);
    const QString nom = champ->objectName();
    if (nom == u"Dip_A" && suite_de_saisie_ > 0)
        return Ouvre_Un_Diplome(vu);
    if (nom == u"Valide_A" || nom == u"Annule_Saisie" || nom == u"Detail" || nom == u"Detail_1")
        return Un_Bouton(vu, nom);
    if (!nom.endsWith(u"_A"))
        return Ouvre_Un_Diplome(vu);
    const QString texte = Texte_Pour(nom, vu);
    const bool ouvre = nom == u"Dip_A";
    return {.recit = u"%1: \"%2\", Enter"_s.arg(nom, texte),
            .fait =
                [=] {
                    // The name begins with the award's own letter.
                    if (!texte.isEmpty() && nom != u"Nom_A")
                        QTest::keyClick(champ, Qt::Key_A, Qt::ControlModifier);
                    conduite::Tape(*champ, texte);
                    conduite::Entree(*champ);
                },
            .ouvre_dip = ouvre};
}

Geste Operateur::Ouvre_Un_Diplome(const Ecran_Vu &vu)
{
    auto *dip = principal_.findChild<QComboBox *>(u"Dip_A"_s);
    const QString texte = hasard_.Sur_Cent(95) ? Texte_Pour(u"Dip_A"_s, vu) : u"XX"_s;
    return {.recit = u"Dip_A: \"%1\", Enter"_s.arg(texte),
            .fait =
                [=] {
                    dip->setFocus();
                    dip->lineEdit()->selectAll();
                    conduite::Tape(*dip, texte);
                    conduite::Entree(*dip);
                },
            .ouvre_dip = true};
}

Geste Operateur::Dans_La_Liste()
{
    auto *liste = principal_.findChild<QAbstractItemView *>(u"Liste_QSO"_s);
    const int nombre = liste->model()->rowCount();
    if (nombre == 0 || hasard_.Sur_Cent(10))
        return {.recit = u"Liste_QSO: Down"_s, .fait = [=] { QTest::keyClick(liste, Qt::Key_Down); }};
    const int rang = hasard_.Rang(static_cast<std::size_t>(nombre));
    if (hasard_.Sur_Cent(55))
        return {.recit = u"Liste_QSO: click on row %1"_s.arg(rang), .fait = [=] { conduite::Clique(*liste, rang); }};
    suite_de_saisie_ = hasard_.Sur_Cent(50) ? 2 : 0;
    return {.recit = u"Liste_QSO: double click on row %1"_s.arg(rang),
            .fait = [=] { conduite::Double_Clique(*liste, rang); }};
}

Geste Operateur::Un_Bouton(const Ecran_Vu &vu, const QString &nom)
{
    auto *bouton = principal_.findChild<QAbstractButton *>(nom);
    Geste geste{.recit = u"button "_s + nom};
    if (hasard_.Sur_Cent(60))
        geste.fait = [=] { QTest::mouseClick(bouton, Qt::LeftButton); };
    else
        geste.fait = [=] {
            if (bouton->isEnabled())
                QTest::keyClick(bouton, Qt::Key_Return);
        };
    const QString log = Log_De(vu.station, vu.diplome);
    if (nom == u"Valide_A" || nom == u"Annule_Saisie") {
        geste.effet = nom == u"Valide_A" ? Effet::Range : Effet::Supprime;
        geste.nommes = {log};
        if (Est_Un_Code(vu.dip))
            geste.nommes.insert(Log_De(vu.station, vu.dip));
    } else if (nom.startsWith(u"Detail") && vu.diplome.startsWith(u"Ch_")) {
        geste.nommes = {log};
    } else if (nom == u"Detail" && vu.diplome == u"DDFM") {
        geste.nommes = {log};
    } else if (nom == u"Recherche") {
        geste.montre = u"Recherche_Indicatif"_s;
    }
    return geste;
}

Geste Operateur::Une_Touche()
{
    static const std::vector<Qt::Key> touches = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Down, Qt::Key_Up,
                                                 Qt::Key_Left, Qt::Key_Escape,  Qt::Key_Home, Qt::Key_X};
    QWidget *champ = En_Main(principal_);
    const Qt::Key touche = hasard_.Un_De(touches);
    return {.recit = u"%1: key %2"_s.arg(champ->objectName(), QKeySequence(touche).toString()),
            .fait = [=] { QTest::keyClick(champ, touche); }};
}

Geste Operateur::Tourne_La_Molette()
{
    const QList<QComboBox *> combos = principal_.findChildren<QComboBox *>();
    QComboBox *combo = combos[hasard_.Rang(static_cast<std::size_t>(combos.size()))];
    const int crans = hasard_.Sur_Cent(50) ? 120 : -120;
    return {.recit = u"wheel over "_s + combo->objectName(),
            .fait =
                [=] {
                    const QPointF milieu = combo->rect().center();
                    QWheelEvent molette(milieu, combo->mapToGlobal(milieu), {}, {0, crans}, Qt::NoButton, {},
                                        Qt::NoScrollPhase, false);
                    QCoreApplication::sendEvent(combo, &molette);
                },
            .sur_les_combos = true};
}

Geste Operateur::Ouvre_Un_Combo(const Ecran_Vu &)
{
    static const std::vector<QString> noms = {u"Dip_A"_s, u"Dip_A"_s, u"Bande_A"_s, u"Mode_A"_s};
    const QString nom = hasard_.Un_De(noms);
    auto *combo = principal_.findChild<QComboBox *>(nom);
    const int pas = hasard_.Rang(6);
    const bool choisit = hasard_.Sur_Cent(70);
    return {.recit = u"%1: open list, %2 down, %3"_s.arg(nom).arg(pas).arg(choisit ? u"Enter"_s : u"Escape"_s),
            .fait =
                [=] {
                    if (!combo->isEnabled())
                        return;
                    QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
                    if (!combo->view()->isVisible())
                        return;
                    for (int i = 0; i < pas; ++i)
                        QTest::keyClick(combo->view(), Qt::Key_Down);
                    QTest::keyClick(combo->view(), choisit ? Qt::Key_Return : Qt::Key_Escape);
                },
            .ouvre_dip = nom == u"Dip_A" && choisit};
}

Geste Operateur::Un_Menu(const Ecran_Vu &vu)
{
    struct Entree {
        QString nom;
        bool ecrit;     ///< the log of the award that is open
        QString montre; ///< the screen that opens and names that award
    };
    static const std::vector<Entree> entrees = {
        {u"Mnu_Import_ADIF"_s, false, u"ADIF"_s},
        {u"Mnu_Import_ADIF"_s, false, u"ADIF"_s},
        {u"Mnu_Export_ADIF"_s, false, {}},
        {u"Mnu_Tri"_s, true, {}},
        {u"Mnu_Tri"_s, true, {}},
        {u"Mnu_Doubles"_s, true, {}},
        {u"Mnu_Sauve_Log"_s, false, {}},
        {u"Mnu_New_Indicatif"_s, false, {}},
        {u"Mnu_New_Indicatif"_s, false, {}},
        {u"Mnu_Date_Auto_Oui"_s, false, {}},
        {u"Mnu_Date_Auto_Non"_s, false, {}},
        {u"Mnu_Sep_Oui"_s, false, {}},
        {u"Mnu_Affiche"_s, false, u"Aff_Contacte"_s},
        {u"Mnu_Aff_All"_s, false, {}},
        {u"Mnu_Carte_Contacte"_s, false, u"Carte_Acti"_s},
        {u"Mnu_MAJ_Nom_DOHF"_s, true, {}},
        {u"Mnu_MAJ_Nom_FFF"_s, true, {}},
        {u"Mnu_MAJ_Nom_DFCF"_s, true, {}},
        {u"Mnu_MAJ_Nom_PC"_s, true, {}},
        {u"Mnu_Année_Ch_DFCF"_s, false, {}},
        {u"Mnu_Année_Ch_DMF"_s, false, {}},
        {u"Mnu_Diplomes"_s, false, {}},
        {u"Mnu_Diplomes"_s, false, {}},
        {u"Mnu_QSL"_s, false, {}},
        {u"Mnu_QSL"_s, false, {}},
        {u"Mnu_A_Propos"_s, false, {}},
        {u"Mnu_Quitter"_s, false, {}},
    };
    const Entree &entree = hasard_.Un_De(entrees);
    const bool sur_ce_log =
        entree.ecrit && (!entree.nom.contains(u"MAJ_Nom") || entree.nom.endsWith(u'_' + vu.diplome));
    auto *action = principal_.findChild<QAction *>(entree.nom);
    Geste geste{
        .recit = u"menu "_s + entree.nom, .fait = [action] { Clique_Le_Menu(*action); }, .montre = entree.montre};
    if (sur_ce_log)
        geste.nommes = {Log_De(vu.station, vu.diplome)};
    return geste;
}
