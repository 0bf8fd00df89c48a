#include "programme/Application.h"

#include "plateforme/Erreur_Execution.h"
#include "plateforme/qt/Boites_Qt.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

/// Outside the namespace below: the macro declares a function of the resource compiler's.
static QIcon Icone()
{
    Q_INIT_RESOURCE(icone);
    QIcon icone;
    for (const int cote : {16, 32, 48, 128})
        icone.addFile(u":/icone/%1.png"_s.arg(cote));
    return icone;
}

namespace {

/// The web engine draws with the contexts of the windows, which has to be said before the application is there.
int &Partage_Les_Contextes(int &nombre)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    return nombre;
}

} // namespace

Application::Application(int &nombre, char **arguments) : QApplication(Partage_Les_Contextes(nombre), arguments)
{
    setDesktopFileName(u"org.vorlain.Vorlain"_s);
    setWindowIcon(Icone());
    // The colours of the fields go by palette, which this style follows on every desktop.
    setStyle(u"Fusion"_s);
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    auto *francais = new QTranslator(this);
    if (francais->load(u"qtbase_fr"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(francais);
}

bool Application::notify(QObject *objet, QEvent *evenement)
{
    try {
        return QApplication::notify(objet, evenement);
    } catch (const Erreur_Execution &erreur) {
        Termine_Sur(erreur);
    }
}

void Termine_Sur(const Erreur_Execution &erreur)
{
    const QString rapport = Rapport(erreur);
    std::fputs((rapport + u'\n').toLocal8Bit().constData(), stderr);
    try {
        Boites_Qt().Message(rapport);
    } catch (const Erreur_Execution &) {
        // A second failure while the report is on screen: the first one is told, the end is the same.
    }
    std::_Exit(1);
}
