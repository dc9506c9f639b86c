#include "helpview.h"

#include "enginestart.h"
#include "helpengine.h"
#include "plottexts.h"

#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QStackedLayout>
#include <QTimer>
#include <QWebEngineLoadingInfo>
#include <QWebEngineSettings>
#include <algorithm>

HelpView::HelpView(QWidget *parent, Engine engine) : QWidget(parent), m_use(engine)
{
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

HelpView::~HelpView()
{
    // By hand: what the engine still reports while it ends finds none, instead of one that is half gone.
    m_engine.reset();
}

void HelpView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || !m_engine)
        return;
    m_engine->followPalette(palette());
    if (isRunning() && m_engine->plotStands)
        redrawPlot(Zoom::Keep); // charts are painted: they do not follow the style sheet by themselves
}

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
    m_engine.reset();
    m_engine = std::make_unique<HelpEngine>(this);
    listenToEngine();
    m_isUnderWay = false;
    if (!m_plot.isEmpty())
        loadPlot();
    else if (m_wantedUrl.isValid())
        loadWanted();
    // Last: it takes as long as the page's process to start, which runs beside it.
    m_engine->view.setPage(&m_engine->page);
    m_stack->addWidget(&m_engine->view);
    m_stack->setCurrentWidget(&m_engine->view);
    setFocusProxy(&m_engine->view);
}

void HelpView::listenToEngine()
{
    connect(&m_engine->page, &QWebEnginePage::loadingChanged, this, [this](const QWebEngineLoadingInfo &info) {
        if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus)
            m_replaces &= info.url() != m_wantedUrl;
        // "Stopped" are loads that were given up or replaced by the next.
        if (info.status() == QWebEngineLoadingInfo::LoadSucceededStatus ||
            info.status() == QWebEngineLoadingInfo::LoadFailedStatus)
            loadEnded(info.status() == QWebEngineLoadingInfo::LoadSucceededStatus, info.url());
    });
    // Queued: what follows may end the page whose signal this is.
    connect(&m_engine->page, &HelpPage::linkHandedOut, this, &HelpView::linkClicked, Qt::QueuedConnection);
    connect(
        &m_engine->page, &QWebEnginePage::renderProcessTerminated, this,
        [this](QWebEnginePage::RenderProcessTerminationStatus status, int code) {
            const bool ended = status == QWebEnginePage::NormalTerminationStatus;
            processEnded(ended ? tr("it closed") : tr("status %1").arg(code));
        },
        Qt::QueuedConnection);
}

void HelpView::loadEnded(bool ok, const QUrl &url)
{
    m_isUnderWay = false;
    // A load that fails while it is being replaced takes the next one with it, and may even be told under that one's
    // address: it is tried once more, and the failure of that is its own.
    if (!ok && m_replaces && m_loading) {
        loadWanted();
        return;
    }
    // A load that was replaced may still fail, with an address that nobody waits for any more.
    // Its success, too, is not the plot's, nor a plot's that of a help page.
    const bool isPlot = isPlotPage(url);
    if (!m_loading || (!ok && !url.matches(m_wantedUrl, QUrl::NormalizePathSegments)) || isPlot == m_plot.isEmpty())
        return;
    m_loading = false;
    m_engine->plotStands = ok && !m_plot.isEmpty();
    if (m_engine->plotStands) // what came while the page was loading
        updateScope(QJsonObject(m_scope));
    emit pageLoaded(ok);
}

void HelpView::processEnded(const QString &how)
{
    m_loading = false;
    m_engine->plotStands = false;
    // A picture that still waits to hear what is seen on the screen would wait in vain.
    if (isSaving() && !m_engine->picture->hasBegun())
        m_engine->picture->giveUp(tr("the browser engine has ended unexpectedly"));
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

void HelpView::loadPage(const QUrl &url, Failure failure)
{
    m_plot.clear();
    m_wantedUrl = url;
    m_failure = failure;
    m_loading = true;
    if (isRunning())
        loadWanted();
    else if (!m_noteText.isEmpty())
        showNote(m_noteText);
}

void HelpView::loadWanted()
{
    m_replaces = m_isUnderWay;
    m_isUnderWay = true;
    m_engine->page.settings()->setAttribute(QWebEngineSettings::ErrorPageEnabled, m_failure == Failure::Shown);
    m_engine->page.load(m_wantedUrl);
}

void HelpView::showPlot(const QString &html, const QUrl &base, Zoom zoom, const QJsonObject &scope)
{
    const bool stands = isRunning() && m_engine->plotStands && !m_plot.isEmpty() && base == m_plotBase;
    m_plainPlot = html;
    m_scope = scope;
    m_plot = withScope(html, scope);
    m_plotBase = base;
    if (stands) {
        m_engine->plotFiles.page = m_plot.toUtf8();
        redrawPlot(zoom);
    } else if (isRunning()) {
        loadPlot();
    } else if (!m_noteText.isEmpty()) {
        showNote(m_noteText);
    }
}

void HelpView::redrawPlot(Zoom zoom)
{
    runScript(QStringLiteral("velbrinView.replace(%1, %2); velbrinView.setSaving(%3)")
                  .arg(scriptLiteral(m_plot), QLatin1String(zoom == Zoom::Keep ? "true" : "false"),
                       QLatin1String(isSaving() ? "true" : "false")));
}

void HelpView::updateScope(const QJsonObject &news)
{
    if (m_plot.isEmpty())
        return;
    for (auto member = news.begin(); member != news.end(); ++member)
        m_scope.insert(member.key(), member.value());
    m_plot = withScope(m_plainPlot, m_scope);
    if (!m_engine)
        return;
    m_engine->plotFiles.page = m_plot.toUtf8();
    runScript(QStringLiteral("window.velbrinScope && velbrinScope.update(%1)").arg(harmlessJson(news)));
}

void HelpView::loadPlot()
{
    const QUrl url = plotPageUrl(m_plotBase);
    m_engine->preparePlots();
    m_engine->plotFiles.page = m_plot.toUtf8();
    m_engine->plotFiles.pageUrl = url;
    m_engine->plotStands = false;
    m_wantedUrl = url;
    m_loading = true;
    loadWanted();
}

void HelpView::stopLoading()
{
    m_loading = false;
    m_wantedUrl.clear();
    if (isRunning())
        m_engine->page.triggerAction(QWebEnginePage::Stop);
}

bool HelpView::isRunning() const
{
    return m_engine && m_stack->currentWidget() == &m_engine->view;
}

bool HelpView::isSaving() const
{
    return m_engine && m_engine->picture;
}

void HelpView::savePng(const QString &fileName, int width)
{
    if (isSaving())
        return;
    if (!isRunning() || !m_engine->plotStands) {
        emit pictureSaved(
            tr("Error writing graphs to file %1: %2")
                .arg(QDir::toNativeSeparators(fileName).toHtmlEscaped(), tr("no plot is shown to make a picture of")));
        return;
    }
    m_engine->picture = std::make_unique<PlotPicture>(&m_engine->profile, m_engine->plotFiles.pageUrl, fileName,
                                                      std::clamp(width, narrowestPicture, widestPicture));
    connect(m_engine->picture.get(), &PlotPicture::ended, this, &HelpView::pictureEnded, Qt::QueuedConnection);
    runScript(QStringLiteral("velbrinView.setSaving(true); JSON.stringify(velbrinScope.state())"),
              [this](const QVariant &state) {
                  if (isSaving())
                      m_engine->picture->begin(state.toString());
              });
}

void HelpView::pictureEnded(const QString &failure)
{
    if (m_engine)
        m_engine->picture.reset();
    runScript(QStringLiteral("window.velbrinView && velbrinView.setSaving(false)"));
    emit pictureSaved(failure);
}

void HelpView::runScript(const QString &script, const std::function<void(const QVariant &)> &done)
{
    if (!isRunning()) {
        if (done)
            done(QVariant());
        return;
    }
    m_engine->page.runJavaScript(script, 0, [done](const QVariant &result) {
        if (done)
            done(result);
    });
}
