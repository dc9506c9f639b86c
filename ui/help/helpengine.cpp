#include "helpengine.h"

#include "plottexts.h"

#include <QWebEngineDownloadRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

// Before any script of the page, which has no root yet when this runs. A page of the network that sets no background
// means white, with dark text on it.
static const char *const paletteScript = R"((function () {
    function paint(root) {
        root.classList.remove("light", "dark");
        root.classList.add("%1");
        if (location.protocol.indexOf("http") !== 0)
            return;
        var style = document.createElement("style");
        style.textContent = ":where(html) { background: #fff; }";
        root.insertBefore(style, root.firstChild);
    }
    if (document.documentElement)
        return paint(document.documentElement);
    new MutationObserver(function (changes, observer) {
        if (!document.documentElement)
            return;
        observer.disconnect();
        paint(document.documentElement);
    }).observe(document, { childList: true });
})();)";

HelpEngine::HelpEngine(QWidget *owner) : page(&profile, owner)
{
    profile.setUrlRequestInterceptor(&gate);
    plotFiles.installIn(&profile);
    QObject::connect(&profile, &QWebEngineProfile::downloadRequested, owner,
                     [](QWebEngineDownloadRequest *download) { download->cancel(); });
    // The script that it runs in the empty page starts the page's process, beside the trial of the network: 15 ms less.
    followPalette(owner->palette());
    view.setContextMenuPolicy(Qt::NoContextMenu); // the engine's own offers to save and to open windows
}

void HelpEngine::preparePlots()
{
    if (!profile.scripts()->isEmpty())
        return;
    QWebEngineScript script;
    script.setSourceCode(plotScripts());
    script.setInjectionPoint(QWebEngineScript::DocumentReady);
    script.setWorldId(QWebEngineScript::MainWorld);
    profile.scripts()->insert(script);
}

void HelpEngine::followPalette(const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    QWebEngineScript script;
    script.setName(QStringLiteral("palette"));
    script.setSourceCode(
        QString::fromLatin1(paletteScript).arg(dark ? QStringLiteral("dark") : QStringLiteral("light")));
    page.setBackgroundColor(dark ? QColor(0x1e, 0x1e, 0x1e) : QColor(Qt::white)); // no white flash before a page
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    // Of this page only: a picture of a plot is for paper and stays light.
    const auto former = page.scripts().find(QStringLiteral("palette"));
    for (const QWebEngineScript &old : former)
        page.scripts().remove(old);
    page.scripts().insert(script);
    page.runJavaScript(script.sourceCode());
}
