#include "helpview.h"

#include "outputfile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLibraryInfo>
#include <QMimeDatabase>
#include <QPointer>
#include <QQuickWindow>
#include <QStackedLayout>
#include <QTimer>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInfo>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <QWebEngineUrlSchemeHandler>
#include <QWebEngineView>
#include <QtMath>
#include <algorithm>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Plot pages have a scheme of their own: a text of several megabytes, which setHtml() would refuse, and next to it the
// scripts of the "flot" folder.
const char *const plotScheme = "velbrin-plot";
const char *const plotHost = "capture";

constexpr int pictureLimitMs = 20000;
constexpr int pictureStepMs = 40;

/// Local pages and their parts come from two folders. What links in them lead to is ours as well.
bool isOwnFile(const QUrl &url)
{
    const QString file = QDir::cleanPath(url.toLocalFile());
    return file.startsWith(QDir::current().filePath(QStringLiteral("help/"))) ||
           file.startsWith(QDir::current().filePath(QStringLiteral("flot/")));
}

bool isOwn(const QUrl &url)
{
    return (url.isLocalFile() && isOwnFile(url)) || url.scheme() == QLatin1String(plotScheme) ||
           url.scheme() == QLatin1String("qrc");
}

/// Keeps pages of the network away from files and plots, and every page away from other people's files.
class Gate : public QWebEngineUrlRequestInterceptor
{
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo &info) override
    {
        const QString scheme = info.requestUrl().scheme();
        if (scheme != QLatin1String("file") && scheme != QLatin1String(plotScheme))
            return;
        const QString asker = info.initiator().scheme(); // empty: the program itself
        const bool askedByNetwork = asker.startsWith(QLatin1String("http"));
        info.block(askedByNetwork || !isOwn(info.requestUrl()));
    }
};

/// Answers for "velbrin-plot:" addresses: the page that is shown, and the files around it.
class PlotFiles : public QWebEngineUrlSchemeHandler
{
public:
    using QWebEngineUrlSchemeHandler::QWebEngineUrlSchemeHandler;

    QByteArray page;
    QUrl pageUrl;

    void requestStarted(QWebEngineUrlRequestJob *job) override
    {
        const QUrl url = job->requestUrl();
        auto *content = new QBuffer(job);
        if (url.path() == pageUrl.path()) {
            content->setData(page);
            job->reply("text/html; charset=utf-8", content);
            return;
        }
        QFile file(url.path());
        if (!isOwnFile(QUrl::fromLocalFile(file.fileName())) || !file.open(QIODevice::ReadOnly))
            return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        content->setData(file.readAll());
        job->reply(QMimeDatabase().mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension).name().toLatin1(),
                   content);
    }
};

/// Lets the program's own pages and what the program loads through; links to anything else are handed out.
class Page : public QWebEnginePage
{
public:
    Page(QWebEngineProfile *profile, HelpView *view) : QWebEnginePage(profile, view), m_view(view)
    {
        QWebEngineSettings *can = settings();
        for (const auto denied :
             {QWebEngineSettings::PluginsEnabled, QWebEngineSettings::PdfViewerEnabled,
              QWebEngineSettings::WebGLEnabled, QWebEngineSettings::JavascriptCanOpenWindows,
              QWebEngineSettings::JavascriptCanAccessClipboard, QWebEngineSettings::LocalContentCanAccessRemoteUrls,
              QWebEngineSettings::FullScreenSupportEnabled, QWebEngineSettings::ScreenCaptureEnabled,
              QWebEngineSettings::NavigateOnDropEnabled})
            can->setAttribute(denied, false);
        // Pages that would open a window of their own are handed out like any other link.
        connect(this, &QWebEnginePage::newWindowRequested, this,
                [this](QWebEngineNewWindowRequest &request) { handOut(request.requestedUrl()); });
    }

protected:
    // No file dialogs and no boxes of a page's own: neither help nor plots have any.
    QStringList chooseFiles(FileSelectionMode, const QStringList &, const QStringList &) override { return {}; }
    void javaScriptAlert(const QUrl &, const QString &) override {}
    bool javaScriptConfirm(const QUrl &, const QString &) override { return false; }
    bool javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *) override { return false; }

    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override
    {
        const bool fromNetwork = this->url().scheme().startsWith(QLatin1String("http"));
        if (isOwn(url) && !(fromNetwork && type == NavigationTypeLinkClicked))
            return true;
        if (type == NavigationTypeLinkClicked) {
            handOut(url);
            return false;
        }
        return isMainFrame && url.scheme().startsWith(QLatin1String("http"));
    }

private:
    /// Behind the engine's call, which does not like its page to load something else meanwhile.
    void handOut(const QUrl &url)
    {
        QMetaObject::invokeMethod(
            m_view, [view = m_view, url] { emit view->linkClicked(url); }, Qt::QueuedConnection);
    }

    HelpView *m_view;
};

QString readResource(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What runs in every plot page, in this order: as one script, since the engine keeps several in no order.
QString plotScripts()
{
    QString all;
    for (const char *name : {"scope/base", "scope/timeaxis", "scope/units", "scope/legend", "scope/overlay",
                             "scope/cursors", "scope/input", "scope/panel", "scope/frame", "plotview"})
        all += readResource(QStringLiteral(":/pagescripts/%1.js").arg(QLatin1String(name)));
    return all;
}

/// A text as a literal of the script language.
QString quoted(const QString &text)
{
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return list.mid(1, list.size() - 2);
}

/// JSON that can stand in a page and in a script: no text in it ends an element or begins markup.
QString harmlessJson(const QJsonObject &object)
{
    QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    json.replace('<', "\\u003c").replace('>', "\\u003e").replace('&', "\\u0026");
    return QString::fromUtf8(json);
}

/// The plot page with what the scope's scripts want to know in it.
QString withScope(const QString &page, const QJsonObject &scope)
{
    const QString element =
        QLatin1String("<script type=\"application/json\" id=\"velbrin-scope\">") + harmlessJson(scope) + QLatin1String("</script>\n");
    const qsizetype end = page.lastIndexOf(QLatin1String("</body>"));
    return end < 0 ? page + element : page.left(end) + element + page.mid(end);
}

QString processPath()
{
    const QString own = qEnvironmentVariable("QTWEBENGINEPROCESS_PATH");
    return own.isEmpty()
               ? QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + QLatin1String("/QtWebEngineProcess")
               : own;
}

bool isSandboxOff()
{
    return qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") == 1;
}

/// Whether the system lets a process of ours have name spaces of its own, which the engine's sandbox is made of.
bool systemAllowsSandbox()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER | CLONE_NEWPID) == 0 ? 0 : 1);
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// A plot page drawn once more, by a view that is not on the screen, and written to a file. Looks until two pictures in
/// a row are the same: only then has everything been drawn.
class Picture : public QObject
{
public:
    Picture(QWebEngineProfile *profile, HelpView *owner, const QUrl &url, const QString &file, int width)
        : QObject(owner), m_file(file), m_page(profile, owner)
    {
        m_view.setAttribute(Qt::WA_DontShowOnScreen);
        m_view.setPage(&m_page);
        const double ratio = m_view.devicePixelRatioF();
        m_page.setZoomFactor(1.0 / ratio);
        m_view.resize(qRound(width / ratio), qRound(width / ratio));
        m_view.show();
        m_page.load(url);
        m_timer.setInterval(pictureStepMs);
        connect(&m_timer, &QTimer::timeout, this, &Picture::look);
        m_timer.start();
        m_sinceStart.start();
    }

    /// `state`: zoom, cursors and units on the screen, as the page's script tells them.
    void begin(const QString &state) { m_state = state.isEmpty() ? QStringLiteral("null") : state; }

    std::function<void(const QString &)> ended; ///< called once, with what failed

private:
    void look()
    {
        if (m_sinceStart.elapsed() > pictureLimitMs)
            return end(HelpView::tr("the plot could not be drawn in %1 s").arg(pictureLimitMs / 1000));
        if (m_state.isEmpty() || m_asking)
            return;
        if (m_painted)
            return compare();
        m_asking = true;
        const QString question = m_height == 0 ? QStringLiteral("prepareForPicture(%1)").arg(m_state)
                                               : QStringLiteral("isPainted(%1)").arg(m_height);
        m_page.runJavaScript(
            QStringLiteral("window.velbrinView && velbrinView.drawn ? velbrinView.%1 : 0").arg(question), 0,
            [self = QPointer<Picture>(this)](const QVariant &answer) {
                if (self)
                    self->take(answer);
            });
    }

    void take(const QVariant &answer)
    {
        m_asking = false;
        if (m_height > 0) {
            m_painted = answer.toBool();
        } else if (answer.toInt() > 0) {
            m_height = answer.toInt();
            m_view.resize(m_view.width(), qCeil(m_height / m_view.devicePixelRatioF()));
        }
    }

    void compare()
    {
        const QImage now = m_view.grab().toImage();
        if (now == m_last && !isBlank(now))
            write(now);
        m_last = now;
    }

    static bool isBlank(const QImage &image)
    {
        const QRgb first = image.pixel(0, 0);
        for (int y = 0; y < image.height(); y += 7) {
            for (int x = 0; x < image.width(); x += 7) {
                if (image.pixel(x, y) != first)
                    return false;
            }
        }
        return true;
    }

    void write(QImage image)
    {
        image.setDevicePixelRatio(1.0);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "PNG");
        if (bytes.isEmpty())
            return end(HelpView::tr("the plot is too large for a picture"));
        OutputFile file(m_file);
        const QString problem = file.open();
        end(problem.isEmpty() ? file.write(bytes) : problem);
    }

    void end(const QString &failure)
    {
        m_timer.stop();
        const QString text =
            HelpView::tr("Error writing graphs to file %1<br>%2").arg(m_file.toHtmlEscaped(), failure.toHtmlEscaped());
        ended(failure.isEmpty() ? QString() : text);
    }

    QString m_file;
    Page m_page;
    QWebEngineView m_view; // goes before its page
    QTimer m_timer;
    QElapsedTimer m_sinceStart;
    QString m_state;
    int m_height = 0; ///< of the whole page, once it is drawn
    bool m_painted = false;
    bool m_asking = false; ///< the page has not answered yet
    QImage m_last;
};

} // namespace

static void initResources()
{
    Q_INIT_RESOURCE(pagescripts);
}

/// The engine and what belongs to it, in the order in which it wants to be ended: the last first.
class HelpView::Engines
{
public:
    explicit Engines(HelpView *owner);

    QWebEngineProfile profile; ///< without a name: nothing of it is kept on disk
    Gate gate;
    PlotFiles plotFiles;
    Page page;
    QWebEngineView view;
    std::unique_ptr<Picture> picture;
    bool plotStands = false; ///< the plot page on display is loaded to its end

    /// Dark pages under a dark palette, from the next load on; the one on display follows by itself.
    void followPalette(const QPalette &palette);
};

HelpView::Engines::Engines(HelpView *owner) : page(&profile, owner)
{
    profile.setUrlRequestInterceptor(&gate);
    profile.installUrlSchemeHandler(plotScheme, &plotFiles);
    QObject::connect(&profile, &QWebEngineProfile::downloadRequested, owner,
                     [](QWebEngineDownloadRequest *download) { download->cancel(); });
    QWebEngineScript script;
    script.setSourceCode(plotScripts());
    script.setInjectionPoint(QWebEngineScript::DocumentReady);
    script.setWorldId(QWebEngineScript::MainWorld);
    profile.scripts()->insert(script);
    followPalette(owner->palette());
    view.setPage(&page);
    view.setContextMenuPolicy(Qt::NoContextMenu); // the engine's own offers to save and to open windows
}

void HelpView::Engines::followPalette(const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    QWebEngineScript script;
    script.setName(QStringLiteral("palette"));
    // Before any script of the page, which has no root yet when this runs. A page of the network that sets no background
    // means white, with dark text on it.
    script.setSourceCode(QStringLiteral(R"((function () {
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
    })();)")
                             .arg(dark ? QStringLiteral("dark") : QStringLiteral("light")));
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

void HelpView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_engines)
        m_engines->followPalette(palette());
}

// --- The pane -----------------------------------------------------------------------------------------------------

void HelpView::prepareEngine()
{
    QWebEngineUrlScheme scheme(plotScheme);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::SecureScheme | QWebEngineUrlScheme::ViewSourceAllowed);
    QWebEngineUrlScheme::registerScheme(scheme);
    // Help and charts need no graphics processor, and then no driver of one can fail.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    flags += " --disable-gpu";
    if (geteuid() == 0) // the engine refuses to start a sandbox for root
        flags += " --no-sandbox";
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags.trimmed());
}

QString HelpView::whyEngineCannotStart()
{
    if (!QFileInfo(processPath()).isExecutable())
        return tr("its program %1 is missing").arg(processPath());
    if (geteuid() != 0 && !isSandboxOff() && !systemAllowsSandbox())
        return tr("this system does not allow its sandbox (user name spaces)");
    return QString();
}

HelpView::HelpView(QWidget *parent, Engine engine) : QWidget(parent), m_use(engine)
{
    initResources();
    m_stack = new QStackedLayout(this);
    m_stack->addWidget(new QWidget(this)); // before the engine stands
    m_note = new QLabel(this);
    m_note->setObjectName(QStringLiteral("helpViewNote"));
    m_note->setWordWrap(true);
    m_note->setMargin(18);
    m_note->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_note->setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(m_note, &QLabel::linkActivated, this, [this](const QString &link) {
        if (link == QLatin1String("restart:"))
            startEngine();
        else
            emit linkClicked(QUrl(link));
    });
    m_stack->addWidget(m_note);
}

HelpView::~HelpView() = default;

void HelpView::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!m_begun) {
        m_begun = true;
        QTimer::singleShot(0, this, &HelpView::startEngine);
    }
}

void HelpView::startEngine()
{
    const QString problem = m_use == Engine::Off ? tr("it is switched off") : whyEngineCannotStart();
    if (!problem.isEmpty()) {
        showNote(tr("<h3>Help and plots cannot be shown</h3>The browser engine cannot start: %1.").arg(problem));
        return;
    }
    if (isSaving())
        emit pictureSaved(tr("The picture of the graphs was given up: the browser engine was started again"));
    m_engines.reset();
    m_engines = std::make_unique<Engines>(this);
    m_stack->addWidget(&m_engines->view);
    m_stack->setCurrentWidget(&m_engines->view);
    setFocusProxy(&m_engines->view);
    connect(&m_engines->page, &QWebEnginePage::loadingChanged, this, [this](const QWebEngineLoadingInfo &info) {
        // "Stopped" are loads that were given up or replaced by the next.
        if (info.status() == QWebEngineLoadingInfo::LoadSucceededStatus ||
            info.status() == QWebEngineLoadingInfo::LoadFailedStatus)
            loadEnded(info.status() == QWebEngineLoadingInfo::LoadSucceededStatus, info.url());
    });
    // Queued: what follows may end the page whose signal this is.
    connect(
        &m_engines->page, &QWebEnginePage::renderProcessTerminated, this,
        [this](QWebEnginePage::RenderProcessTerminationStatus status, int code) {
            const bool ended = status == QWebEnginePage::NormalTerminationStatus;
            processEnded(ended ? tr("it closed") : tr("status %1").arg(code));
        },
        Qt::QueuedConnection);
    if (!m_plot.isEmpty())
        loadPlot();
    else if (m_wantedUrl.isValid())
        m_engines->page.load(m_wantedUrl);
}

void HelpView::loadEnded(bool ok, const QUrl &url)
{
    // A load that was replaced may still fail, with an address that nobody waits for any more.
    // Its success, too, is not the plot's, nor a plot's that of a help page.
    const bool isPlot = url.scheme() == QLatin1String(plotScheme);
    if (!m_loading || (!ok && !url.matches(m_wantedUrl, QUrl::NormalizePathSegments)) || isPlot == m_plot.isEmpty())
        return;
    m_loading = false;
    m_engines->plotStands = ok && !m_plot.isEmpty();
    if (m_engines->plotStands) // what came while the page was loading
        updateScope(QJsonObject(m_scope));
    emit pageLoaded(ok);
}

void HelpView::processEnded(const QString &how)
{
    m_loading = false;
    m_engines->plotStands = false;
    showNote(
        tr("<h3>The view has stopped</h3>The browser engine behind help and plots has ended unexpectedly (%1). The "
           "connection to the drive is not affected.<p><a href=\"restart:\">Start it again</a></p>")
            .arg(how));
}

void HelpView::showNote(const QString &text)
{
    m_noteText = text;
    const QString save =
        m_plot.isEmpty()
            ? QString()
            : tr("<p>The last capture can be saved as text: <a href=\"tdext://exportpdf\">Save as file</a></p>");
    m_note->setText(text + save);
    m_stack->setCurrentWidget(m_note);
}

void HelpView::loadPage(const QUrl &url)
{
    m_plot.clear();
    m_wantedUrl = url;
    m_loading = true;
    if (isRunning())
        m_engines->page.load(url);
    else if (!m_noteText.isEmpty())
        showNote(m_noteText);
}

void HelpView::showPlot(const QString &html, const QUrl &base, Zoom zoom, const QJsonObject &scope)
{
    const bool stands = isRunning() && m_engines->plotStands && !m_plot.isEmpty() && base == m_plotBase;
    m_plainPlot = html;
    m_scope = scope;
    m_plot = withScope(html, scope);
    m_plotBase = base;
    if (stands) {
        m_engines->plotFiles.page = m_plot.toUtf8();
        runScript(QStringLiteral("velbrinView.replace(%1, %2); velbrinView.setSaving(%3)")
                      .arg(quoted(m_plot), QLatin1String(zoom == Zoom::Keep ? "true" : "false"),
                           QLatin1String(isSaving() ? "true" : "false")));
    } else if (isRunning()) {
        loadPlot();
    } else if (!m_noteText.isEmpty()) {
        showNote(m_noteText);
    }
}

void HelpView::updateScope(const QJsonObject &news)
{
    if (m_plot.isEmpty())
        return;
    for (auto member = news.begin(); member != news.end(); ++member)
        m_scope.insert(member.key(), member.value());
    m_plot = withScope(m_plainPlot, m_scope);
    if (!m_engines)
        return;
    m_engines->plotFiles.page = m_plot.toUtf8();
    runScript(QStringLiteral("window.velbrinScope && velbrinScope.update(%1)").arg(harmlessJson(news)));
}

void HelpView::loadPlot()
{
    QUrl url = m_plotBase;
    url.setScheme(QLatin1String(plotScheme));
    url.setHost(QLatin1String(plotHost));
    m_engines->plotFiles.page = m_plot.toUtf8();
    m_engines->plotFiles.pageUrl = url;
    m_engines->plotStands = false;
    m_wantedUrl = url;
    m_loading = true;
    m_engines->page.load(url);
}

void HelpView::stopLoading()
{
    m_loading = false;
    m_wantedUrl.clear();
    if (isRunning())
        m_engines->page.triggerAction(QWebEnginePage::Stop);
}

bool HelpView::isRunning() const
{
    return m_engines && m_stack->currentWidget() == &m_engines->view;
}

bool HelpView::isSaving() const
{
    return m_engines && m_engines->picture;
}

void HelpView::savePng(const QString &fileName, int width)
{
    if (isSaving())
        return;
    if (!isRunning() || !m_engines->plotStands) {
        emit pictureSaved(tr("Error writing graphs to file %1: %2")
                              .arg(QDir::toNativeSeparators(fileName).toHtmlEscaped(),
                                   tr("no plot is shown to make a picture of")));
        return;
    }
    m_engines->picture = std::make_unique<Picture>(&m_engines->profile, this, m_engines->plotFiles.pageUrl,
                                                   fileName, std::clamp(width, narrowestPicture, widestPicture));
    m_engines->picture->ended = [this](const QString &failure) {
        // Not within its own call.
        QMetaObject::invokeMethod(
            this,
            [this, failure] {
                if (m_engines)
                    m_engines->picture.reset();
                runScript(QStringLiteral("window.velbrinView && velbrinView.setSaving(false)"));
                emit pictureSaved(failure);
            },
            Qt::QueuedConnection);
    };
    runScript(QStringLiteral("velbrinView.setSaving(true); JSON.stringify(velbrinScope.state())"),
              [this](const QVariant &state) {
                  if (isSaving())
                      m_engines->picture->begin(state.toString());
              });
}

void HelpView::runScript(const QString &script, const std::function<void(const QVariant &)> &done)
{
    if (!isRunning()) {
        if (done)
            done(QVariant());
        return;
    }
    m_engines->page.runJavaScript(script, 0, [done](const QVariant &result) {
        if (done)
            done(result);
    });
}
