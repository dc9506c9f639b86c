#include "triesdesk.h"

#include "applydesk.h"
#include "capturerecord.h"
#include "capturesaving.h"
#include "connectpage.h"
#include "editedsettings.h"
#include "errorwindow.h"
#include "filedialog.h"
#include "filework.h"
#include "gainspanel.h"
#include "helpbrowser.h"
#include "numberbox.h"
#include "outputfile.h"
#include "parameterpages.h"
#include "reportdialog.h"
#include "scopechannels.h"
#include "scopedesk.h"
#include "triespanel.h"
#include "version.h"

#include <QDebug>
#include <QFileInfo>
#include <QStatusBar>
#include <QVBoxLayout>

namespace {
constexpr int hintMs = 15000;
constexpr int gainsPlace = 1, triesPlace = 3; // behind the stimulus, behind the capture
} // namespace

TriesDesk::TriesDesk(QWidget *window, QVBoxLayout *layout, QWidget *pagesPane, const Connection &session,
                     const Helpers &helpers)
    : QObject(window), m_window(window), m_pagesPane(pagesPane), m_session(session), m_use(helpers),
      m_scope(new ScopeDesk(this)), m_gains(new GainsPanel(window, layout->parentWidget())),
      m_tries(new TriesPanel(layout->parentWidget())), m_captureFiles(new FileWork(this)),
      m_reportFiles(new FileWork(this))
{
    m_scope->setKnownChannels(scopeChannels());
    layout->insertWidget(gainsPlace, m_gains);
    layout->insertWidget(triesPlace, m_tries);
    connectPanels();
    connectFiles();
}

void TriesDesk::connectPanels()
{
    connect(m_gains, &GainsPanel::applyWanted, m_use.apply, &ApplyDesk::apply);
    connect(m_use.apply, &ApplyDesk::buttonChanged, m_gains, &GainsPanel::showApply);
    connect(m_tries, &TriesPanel::showWanted, m_scope, &ScopeDesk::show);
    connect(m_tries, &TriesPanel::layUnderWanted, m_scope, &ScopeDesk::layUnder);
    connect(m_tries, &TriesPanel::openFileWanted, this, &TriesDesk::open);
    connect(m_tries, &TriesPanel::takeWanted, this, &TriesDesk::takeSettingsOf);
    // Later: what was typed makes the table anew.
    connect(m_tries, &TriesPanel::noteEdited, m_scope, &ScopeDesk::setNote, Qt::QueuedConnection);
    connect(m_tries, &TriesPanel::refreshWanted, this, [this] { m_tries->show(m_scope->history()); });
    connect(m_tries, &TriesPanel::reportWanted, this, &TriesDesk::writeReport);
    connect(m_scope, &ScopeDesk::historyChanged, this, [this] { m_tries->show(m_scope->history()); });
    connect(m_scope, &ScopeDesk::plotReady, this, [this](const QString &page, QJsonObject scope, bool keepZoom) {
        scope.insert(QStringLiteral("isOpenedOut"), m_openedOut);
        m_use.browser->showPlot(page, keepZoom ? HelpView::Zoom::Keep : HelpView::Zoom::Reset, scope);
    });
    connect(m_scope, &ScopeDesk::scopeChanged, m_use.browser->view(), &HelpView::updateScope);
    connect(m_scope, &ScopeDesk::openFileWanted, this, &TriesDesk::open);
    connect(m_scope, &ScopeDesk::openOutWanted, this, &TriesDesk::toggleOpenedOut);
    connect(m_scope, &ScopeDesk::settingsWanted, this, &TriesDesk::putIntoPages);
    connect(m_use.browser, &HelpBrowser::scopeLink, m_scope, &ScopeDesk::follow);
    // Help has no link back to the pages.
    connect(m_use.browser, &HelpBrowser::plotLeft, this, [this] { setOpenedOut(false); });
}

void TriesDesk::connectFiles()
{
    connect(m_captureFiles, &FileWork::finished, this, [this](const QString &file, const QString &problem) {
        if (!problem.isEmpty())
            fail(tr("Error writing graphs to file %1").arg(file), problem);
    });
    connect(m_reportFiles, &FileWork::finished, this, [this](const QString &file, const QString &problem) {
        m_use.reports.status->clearMessage();
        if (problem.isEmpty())
            m_use.reports.status->showMessage(tr("Report written to %1").arg(file));
        else
            fail(file, problem);
    });
}

void TriesDesk::captured(const CaptureRecord &record)
{
    m_scope->captured(record);
}

void TriesDesk::redraw(bool keepZoom)
{
    m_scope->redraw(keepZoom);
}

void TriesDesk::showLimits()
{
    m_gains->refresh();
}

// --- The plot view over the pages ---------------------------------------------------------------------------------

void TriesDesk::setOpenedOut(bool openedOut)
{
    m_openedOut = openedOut;
    m_pagesPane->setVisible(!openedOut);
    m_use.browser->view()->updateScope({{QStringLiteral("isOpenedOut"), openedOut}});
    if (openedOut)
        m_use.browser->view()->setFocus();
}

void TriesDesk::toggleOpenedOut()
{
    if (!m_openedOut && !m_use.browser->isPlotShown())
        m_use.reports.status->showMessage(tr("There is no plot to open out: capture something, or open a capture"),
                                          hintMs);
    else
        setOpenedOut(!m_openedOut);
}

// --- Files --------------------------------------------------------------------------------------------------------

void TriesDesk::fail(const QString &fileName, const QString &problem)
{
    m_use.reports.errors->tell(
        {MessageKind::FileFailed, fileName.toHtmlEscaped() + QLatin1String("<br>") + problem.toHtmlEscaped()});
}

void TriesDesk::open()
{
    const QString file = askFileToOpen(
        m_window, {tr("Open capture"), m_lastFolder, tr("Captures (*.html *.json *.csv);;All files (*)"), QString()});
    if (file.isEmpty())
        return;
    m_lastFolder = folderOf(file);
    const QString problem = m_scope->openFile(file);
    if (!problem.isEmpty())
        fail(QFileInfo(file).fileName(), problem);
}

void TriesDesk::save()
{
    WholeNumberBox width;
    width.setRange(HelpView::narrowestPicture, HelpView::widestPicture);
    width.setSuffix(tr(" pixels"));
    width.setValue(HelpView::widestPicture);
    QString filter;
    const QString file = askFileToSave(m_window,
                                       {tr("Save graphs to file"), QStringLiteral("~/graphs.png"), captureFilters(),
                                        QString(), tr("Width of a picture:"), &width},
                                       &filter);
    qDebug() << "Print file name is " << file;
    if (file.isEmpty())
        return;
    const CaptureFormat format = captureFormatOf(file, filter);
    const KeptCapture *shown = m_scope->history().shown();
    if (format == CaptureFormat::Picture)
        return m_use.browser->savePng(file, width.value());
    if (format == CaptureFormat::None) {
        m_use.reports.status->showMessage(tr("Nothing saved: give the file a name that ends in .png, .csv or .html"),
                                          hintMs);
        return;
    }
    const KeptCapture capture = shown ? *shown : KeptCapture();
    m_captureFiles->begin(file, [capture, format](const QString &name) { return saveCapture(capture, format, name); });
}

void TriesDesk::writeReport()
{
    if (!m_session.isConnected() || !m_session.valuesAreComplete()) {
        m_use.reports.status->showMessage(
            tr("No report: connect to the drive that it is about, and let its settings be read"), hintMs);
        return;
    }
    Report drive;
    drive.settings = m_session.driveParameters();
    drive.drive = driveIdentity(drive.settings, m_session.deviceType(), m_use.connect->lastAddress());
    drive.program = QLatin1String(VELBRIN_VERSION);
    ReportDialog dialog(drive, m_scope->history(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString name = askFileToSave(m_window, {tr("Save report"), m_lastFolder + QLatin1String("/report.html"),
                                                  tr("Report (*.html)"), QStringLiteral("html")});
    if (name.isEmpty())
        return;
    m_lastFolder = folderOf(name);
    const Report report = dialog.report();
    m_use.reports.status->showMessage(tr("Writing report..."));
    m_reportFiles->begin(name, [report](const QString &fileName) {
        OutputFile file(fileName);
        const QString problem = file.open();
        return problem.isEmpty() ? file.write(reportPage(report)) : problem;
    });
}

// --- From a capture into the pages --------------------------------------------------------------------------------

void TriesDesk::takeSettingsOf(int id)
{
    const KeptCapture *capture = m_scope->history().find(id);
    if (!capture)
        return;
    const int type = truncateToInt32(m_use.settings.value(QStringLiteral("HWTYPE")));
    const int captured = capture->record.drive.type;
    if (type > 0 && captured > 0 && type != captured)
        return m_use.reports.errors->note(tr("Nothing taken: this capture is of another type of drive."));
    if (capture->record.settings.getParamCount() == 0) {
        m_use.reports.status->showMessage(
            tr("Nothing taken: this capture was opened from columns of text, which hold no settings"), hintMs);
        return;
    }
    m_use.pages->collect();
    QList<QPair<QString, double>> settings;
    for (const SettingDifference &setting : settingDifferences(capture->record.settings, m_use.settings.edited()))
        settings.append({setting.name, setting.older});
    putIntoPages(settings);
}

void TriesDesk::putIntoPages(const QList<QPair<QString, double>> &settings)
{
    const int changed = m_use.pages->edit(settings);
    m_gains->refresh();
    m_use.apply->updateButton();
    m_use.reports.status->showMessage(
        changed == 0 ? tr("The pages have these settings already")
                     : tr("Settings put into the pages: %1. The drive gets them with Apply").arg(changed),
        hintMs);
}
