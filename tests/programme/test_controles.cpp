#include "programme/Programme_Essai.h"

#include "faux/Attendus.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

class Releve_Des_Controles : public Programme_Essai {};

/// What the operator reads on a control; a combo's entries one behind the other.
QString Texte(const QWidget &controle)
{
    if (const auto *etiquette = qobject_cast<const QLabel *>(&controle))
        return etiquette->text();
    if (const auto *bouton = qobject_cast<const QAbstractButton *>(&controle))
        return bouton->text();
    if (const auto *champ = qobject_cast<const QLineEdit *>(&controle))
        return champ->text();
    if (const auto *cadre = qobject_cast<const QGroupBox *>(&controle))
        return cadre->title();
    const auto *choix = qobject_cast<const QComboBox *>(&controle);
    if (!choix)
        return {};
    QStringList entrees;
    for (int rang = 0; rang < choix->count(); ++rang)
        entrees += choix->itemText(rang);
    return entrees.join(u" | ");
}

/// True for the controls of the program: those inside a combo or a web view are Qt's own.
bool A_Un_Nom(const QWidget &controle)
{
    return !controle.objectName().isEmpty() && !controle.objectName().startsWith(u"qt_");
}

QString Cite(const QString &texte)
{
    return texte.isEmpty() ? QString() : u" \""_s + QString(texte).replace(u'\n', u"\\n"_s) + u'"';
}

/// The class of the control; what shows a web page is another one without a web engine.
QString Genre(const QWidget &controle)
{
    return controle.objectName() == u"WebBrowser1" ? u"Vue_Web"_s
                                                   : QLatin1StringView(controle.metaObject()->className());
}

QString Ligne(const QWidget &controle)
{
    const QString etat = controle.isHidden() ? u" (caché)"_s : controle.isEnabled() ? u""_s : u" (fermé)"_s;
    return u"  %1 %2%3"_s.arg(Genre(controle), controle.objectName(), etat) + Cite(Texte(controle)) + u'\n';
}

QString Ordre_De_Tab(const QWidget &ecran)
{
    QStringList noms;
    for (const QWidget *suivant = ecran.nextInFocusChain(); suivant != &ecran; suivant = suivant->nextInFocusChain())
        if ((suivant->focusPolicy() & Qt::TabFocus) && A_Un_Nom(*suivant) && suivant->window() == &ecran)
            noms += suivant->objectName();
    return u"  Tab: "_s + noms.join(u' ') + u'\n';
}

QString Releve(const QWidget &ecran)
{
    QString texte = u"== "_s + ecran.objectName() + Cite(ecran.windowTitle()) + u'\n';
    for (const QWidget *controle : ecran.findChildren<QWidget *>())
        if (A_Un_Nom(*controle) && controle->window() == &ecran)
            texte += Ligne(*controle);
    for (const QAction *action : ecran.findChildren<QAction *>())
        if (!action->objectName().isEmpty() && !action->isSeparator())
            texte += u"  QAction "_s + action->objectName() + Cite(action->text()) + u'\n';
    return texte + Ordre_De_Tab(ecran) + u'\n';
}

} // namespace

// Every control of every screen, as a first start on the castles shows them. A change of the golden file is a change
// that the operator sees, and that others find controls by.
TEST_F(Releve_Des_Controles, de_tous_les_ecrans_par_nom_genre_texte_et_ordre_de_tab)
{
    Installe_Station(u"DFCF"_s);
    for (const QString &genre : {u"DFCF"_s, u"DMF"_s}) {
        Regle(section, u"Annee Challenge "_s + genre, u"2026"_s);
        fichiers.Pose(u"F9ZZY_Ch_"_s + genre + u"_2026.log", {});
    }
    Ouvre();
    QString texte = Releve(Ecran());
    for (const QString &nom : programme->Les_Ecrans().Les_Noms()) {
        conduite::Repond({}, [&] { programme->Les_Ecrans().Montre(nom); });
        QWidget *ecran = conduite::Fenetre(nom);
        ASSERT_NE(ecran, nullptr) << nom.toStdString();
        texte += Releve(*ecran);
        ecran->close();
    }
    texte.replace(fichiers.Chemin(), u"<dossier>"_s);
    Compare_Attendu(u"controles.txt"_s, texte.toUtf8());
}
