#include "programme_au_hasard/Ecran_Vu.h"

#include "programme_au_hasard/Diplomes.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

template <typename Widget>
const Widget &Le(const QWidget &ecran, const QString &nom)
{
    return *ecran.findChild<Widget *>(nom);
}

QStringList Sans_Numeros(const QAbstractItemView &liste)
{
    QStringList rangees;
    for (int rang = 0; rang < liste.model()->rowCount(); ++rang)
        rangees += liste.model()->index(rang, 0).data().toString().sliced(9);
    return rangees;
}

} // namespace

bool Est_Un_Code(const QString &texte)
{
    return std::any_of(diplomes.begin(), diplomes.end(), [&](const Diplome_Vu &d) { return d.code == texte; });
}

Ecran_Vu Regarde(const QWidget &principal, const QString &au_depart)
{
    Ecran_Vu vu;
    vu.station = Le<QLabel>(principal, u"I_Station"_s).text().replace(u'/', u'_');
    vu.dip = Le<QComboBox>(principal, u"Dip_A"_s).currentText();
    vu.mode = Le<QLabel>(principal, u"Mode_Aff"_s).text();
    vu.ind = Le<QLineEdit>(principal, u"Ind_A"_s).text();
    vu.rangees = Sans_Numeros(Le<QAbstractItemView>(principal, u"Liste_QSO"_s));
    vu.diplome = au_depart;
    const QString titre = Le<QGroupBox>(principal, u"Frame3"_s).title();
    for (const Diplome_Vu &diplome : diplomes) {
        const bool challenge = diplome.code.startsWith(u"Ch_");
        if (challenge ? !titre.startsWith(diplome.titre) : titre != diplome.titre)
            continue;
        vu.diplome = diplome.code.toString();
    }
    return vu;
}

QString Annee_Reglee(const QString &station, const QString &code)
{
    const QSettings reglages(u"Vorlain"_s, u"Vorlain"_s);
    return reglages.value(u"Setup "_s + station + u"/Annee Challenge " + code.sliced(3), u"2000"_s).toString();
}

QString Log_De(const QString &station, const QString &code)
{
    return Nom_Du_Log(station, code, code.startsWith(u"Ch_") ? Annee_Reglee(station, code) : QString());
}
