#include "programme_au_hasard/Vie.h"

#include "programme_au_hasard/Fichiers_De_Vie.h"

#include <QApplication>
#include <QComboBox>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A gesture that takes longer has hung; far above what a loaded machine needs.
constexpr unsigned secondes_par_geste = 60;

} // namespace

Vie::Vie(QString dossier, QString journal, std::uint32_t graine, int gestes)
    : dossier_(std::move(dossier)),
      hasard_(graine),
      restants_(gestes),
      journal_(journal),
      repondeur_(
          hasard_,
          [this] {
              return hasard_.Sur_Cent(85)
                         ? Pose_Un_ADIF(dossier_, Regarde(programme_->Ecran(), au_depart_).diplome, hasard_)
                         : QString();
          },
          [this](const QString &rapport) {
              Note(rapport);
              Verifie_Les_Logs();
          })
{
    if (!journal_.open(QIODevice::Append | QIODevice::Unbuffered))
        throw std::runtime_error("no journal");
}

int Vie::Passe()
{
    const bool premiere = Photographie(dossier_).empty();
    if (premiere)
        Pose_Les_Stations(dossier_, hasard_);
    programme_.emplace(dossier_, horloge_);
    if (premiere)
        programme_->Installe();
    QTimer::singleShot(0, [this] { Commence(); });
    QApplication::exec();
    // The main screen is closed, by the operator or at the end: what that did to the disk counts too.
    Verifie_Les_Logs();
    return static_cast<int>(Fin::Au_Bout);
}

void Vie::Commence()
{
    alarm(secondes_par_geste);
    geste_ = {.recit = u"start"_s, .fait = {}};
    Note(u"start"_s);
    avant_ = Photographie(dossier_);
    programme_->Ouvre();
    au_depart_ = Regarde(programme_->Ecran(), {}).dip;
    // Whatever the start loads may carry references of earlier times.
    vu_ = Regarde(programme_->Ecran(), au_depart_);
    geste_.nommes = {Log_De(vu_.station, vu_.dip)};
    operateur_.emplace(programme_->Ecran(), hasard_);
    QTimer::singleShot(0, [this] { Regarde_Apres(); });
}

void Vie::Fait_Un_Geste()
{
    if (restants_-- == 0)
        return QCoreApplication::quit();
    alarm(secondes_par_geste);
    horloge_.utc = horloge_.utc.addSecs(37);
    repondeur_.Oublie();
    vu_ = Regarde(programme_->Ecran(), au_depart_);
    avant_ = Photographie(dossier_);
    combos_ = Combos();
    geste_ = operateur_->Prochain(vu_);
    Note(u"G %1 | %2 | Dip_A %3 | %4"_s.arg(vu_.station + u' ' + vu_.diplome, geste_.recit, vu_.dip, vu_.mode));
    geste_.fait();
    QTimer::singleShot(0, [this] { Regarde_Apres(); });
}

void Vie::Regarde_Apres()
{
    if (const QWidget *reste = QApplication::activeModalWidget())
        Accuse(u"a dialogue was left over: "_s + reste->objectName() + reste->windowTitle());
    if (QApplication::activePopupWidget())
        Accuse(u"a list or a menu was left open"_s);
    Verifie_Les_Logs();
    Verifie_L_Ecran(Photographie(dossier_));
    Verifie_Les_Noms();
    if (geste_.sur_les_combos && Combos() != combos_)
        Accuse(u"the wheel changed a combo"_s);
    QTimer::singleShot(0, [this] { Fait_Un_Geste(); });
}

void Vie::Accuse(const QString &faute)
{
    Note(u"FAULT "_s + faute);
    std::_Exit(static_cast<int>(Fin::Fautive));
}

void Vie::Note(const QString &ligne)
{
    journal_.write(QString(ligne).replace(u'\n', u' ').toUtf8() + '\n');
}

QStringList Vie::Combos()
{
    QStringList textes;
    for (const QComboBox *combo : programme_->Ecran().findChildren<QComboBox *>())
        textes += combo->currentText();
    return textes;
}
