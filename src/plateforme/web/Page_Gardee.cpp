#include "plateforme/web/Page_Gardee.h"

#include "plateforme/web/Adresses_Permises.h"

#include <QWebEngineNewWindowRequest>
#include <QWebEngineSettings>

namespace {

void Ferme_Les_Portes(QWebEngineSettings &reglages)
{
    // clang-format off
    constexpr QWebEngineSettings::WebAttribute fermees[] = {
        QWebEngineSettings::JavascriptCanOpenWindows,
        QWebEngineSettings::JavascriptCanAccessClipboard,
        QWebEngineSettings::LocalContentCanAccessRemoteUrls,
        QWebEngineSettings::LocalContentCanAccessFileUrls,
        QWebEngineSettings::PluginsEnabled,
        QWebEngineSettings::PdfViewerEnabled,
        QWebEngineSettings::FullScreenSupportEnabled,
        QWebEngineSettings::ScreenCaptureEnabled,
        QWebEngineSettings::AllowWindowActivationFromJavaScript,
        QWebEngineSettings::NavigateOnDropEnabled,
        QWebEngineSettings::DnsPrefetchEnabled,
    };
    // clang-format on
    for (const auto attribut : fermees)
        reglages.setAttribute(attribut, false);
    reglages.setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    reglages.setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, true);
    reglages.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

} // namespace

Page_Gardee::Page_Gardee(QWebEngineProfile *profil, QObject *parent) : QWebEnginePage(profil, parent)
{
    Ferme_Les_Portes(*settings());
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](const QWebEngineNewWindowRequest &demande) {
        // A link that asks for a window of its own opens here; a window that a script asks for does not open.
        if (demande.isUserInitiated() && Page_Permise(demande.requestedUrl(), url()))
            Va(demande.requestedUrl());
    });
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl &origine, Feature faculte) {
        setFeaturePermission(origine, faculte, PermissionDeniedByUser);
    });
}

void Page_Gardee::Va(const QUrl &adresse)
{
    choisie_ = true;
    load(adresse);
}

bool Page_Gardee::acceptNavigationRequest(const QUrl &cible, NavigationType genre, bool page_entiere)
{
    const QUrl page = genre == NavigationTypeRedirect && page_entiere ? origine_ : url();
    const bool permise = choisie_ && page_entiere ? Page_Permise(cible, cible)
                                                  : (page_entiere ? Page_Permise : Contenu_Permis)(cible, page);
    if (page_entiere) {
        choisie_ = false;
        origine_ = permise ? cible : url();
    }
    return permise;
}

QStringList Page_Gardee::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &)
{
    return {};
}

void Page_Gardee::javaScriptAlert(const QUrl &, const QString &) {}

bool Page_Gardee::javaScriptConfirm(const QUrl &, const QString &)
{
    return false;
}

bool Page_Gardee::javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *)
{
    return false;
}

void Page_Gardee::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) {}

void Garde_Contenu::interceptRequest(QWebEngineUrlRequestInfo &demande)
{
    const bool page_entiere = demande.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
    // Whole pages were judged when the navigation was asked for.
    if (!page_entiere && !Contenu_Permis(demande.requestUrl(), demande.firstPartyUrl()))
        demande.block(true);
}
