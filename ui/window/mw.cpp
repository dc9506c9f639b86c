// The frame: construction in its fixed order, pages, closing.
#include "mw.h"

#include "applydesk.h"
#include "busydialog.h"
#include "connectpage.h"
#include "controlmoderule.h"
#include "disclaimer.h"
#include "driveboard.h"
#include "drivedesk.h"
#include "errorwindow.h"
#include "firmwaredesk.h"
#include "formpage.h"
#include "helpbrowser.h"
#include "makernews.h"
#include "pagetable.h"
#include "parameterpages.h"
#include "portlist.h"
#include "questionqueue.h"
#include "statusstrip.h"
#include "testingpage.h"
#include "triesdesk.h"
#include "ui_connectpage.h"
#include "ui_faultlimitspage.h"
#include "ui_goalspage.h"
#include "ui_machinepage.h"
#include "ui_mw.h"
#include "ui_overrideparams.h"
#include "ui_testingpage.h"
#include "ui_tuningpage.h"
#include "ui_welcomepage.h"
#include "version.h"
#include "wheelguard.h"
#include "windowlayout.h"

#include <QScrollArea>
#include <future>

namespace {

constexpr QSize pageItemSize(79, 96);

} // namespace

// The pictures are in a static library, where the linker would leave them out.
static void initResources()
{
    Q_INIT_RESOURCE(graphics);
}

MW::MW(const Options &options, QWidget *parent)
    : QMainWindow(parent), m_form(new Ui_MW), m_overridesForm(new Ui_overrideParams)
{
    // Thousands of small files are looked at for it, while this thread builds the window.
    std::future<QList<SerialPort>> ports = std::async(std::launch::async, serialPortsOfThisMachine);
    initResources();
    qRegisterMetaType<Parameters>("Parameters");
    qRegisterMetaType<QList<CaptureData>>("QList <CaptureData>");
    qRegisterMetaType<QList<NodeType>>("QList <NodeType>");
    buildForms();
    buildPages(options);
    connectForms();
    buildPageList();
    connectPages();
    connectSession();
    connectBoard();
    createShortcuts();
    new WheelGuard(this);
    restoreLayout(*this);
    showFirstState(options, ports.get());
    if (Disclaimer::isAgreedTo(this) && !options.file.isEmpty())
        m_apply->loadFile(options.file);
}

MW::~MW()
{
    // Controls that lose the keyboard while they are being destroyed must not reach slots of a half-gone window.
    const auto children = findChildren<QObject *>();
    for (QObject *child : children)
        child->disconnect(this);
}

// --- Construction -------------------------------------------------------------------------------------------------

void MW::buildForms()
{
    // The menu bar is never seen, and a desktop's own would have to be asked for over the session bus, now and waiting.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    m_form->setupUi(this);
    for (const PageInfo &page : pageTable()) {
        QWidget *built = page.build();
        built->layout()->setEnabled(false); // the stack would lay the first one out at once, in a size it never has
        m_form->pages->addWidget(built);
        built->layout()->setEnabled(true);
    }
    // Apply stands below the pages, and the keyboard comes to it after them.
    QWidget::setTabOrder(previousInFocusChain(), m_form->apply_button);
    // The areas around the pages scroll to the control that has the keyboard: Tab need not stop at them.
    const auto areas = m_form->pages->findChildren<QScrollArea *>();
    for (QScrollArea *area : areas)
        area->setFocusPolicy(Qt::NoFocus);

    QLabel *welcome = formAmong<Ui_WelcomePage>(*m_form->pages).wellcomeText;
    welcome->setText(welcome->text().replace(QLatin1String("%VELBRIN_VERSION"), QLatin1String(VELBRIN_VERSION)));
    m_overridesDialog = new QDialog(this);
    m_overridesForm->setupUi(m_overridesDialog);
    m_busyDialog = new BusyDialog(this);
    m_errorWindow = new ErrorWindow(this);
    m_connectionStatusLabel = new QLabel(tr("Not connected"));
    m_connectionStatusLabel->setObjectName(QStringLiteral("connectionStatus"));
    m_connectionStatusLabel->setMargin(2);
    statusBar()->addPermanentWidget(m_connectionStatusLabel);
    connect(statusBar(), &QStatusBar::messageChanged, statusBar(), &QWidget::setToolTip); // where it is cut off
    statusBar()->showMessage(tr("Program started"));
}

void MW::buildPages(const Options &options)
{
    const auto &connectForm = formAmong<Ui_ConnectPage>(*m_form->pages);
    const Reports reports{statusBar(), m_errorWindow};
    buildBoard();
    m_questions = new QuestionQueue(m_errorWindow, this);
    m_help = new HelpBrowser(m_form->helpContainer, m_form->offlineHelpNotification, options.webEngine);
    m_parameters = new ParameterPages(
        this,
        {connectForm, formAmong<Ui_GoalsPage>(*m_form->pages), formAmong<Ui_MachinePage>(*m_form->pages),
         formAmong<Ui_TuningPage>(*m_form->pages), formAmong<Ui_FaultLimitsPage>(*m_form->pages)},
        m_connection, m_settings);
    m_apply = new ApplyDesk(
        this,
        {m_form->apply_button, m_changeCount, connectForm.save_settings_to_file, m_overridesForm->customParamDisplay},
        m_connection, m_settings, m_parameters, m_board, reports);
    m_connectPage = new ConnectPage(this, connectForm, m_connection, m_questions);
    const auto &testingForm = formAmong<Ui_TestingPage>(*m_form->pages);
    m_tries = new TriesDesk(this, testingForm.testingContentsLayout, m_form->settingsPane, m_connection,
                            {m_settings, m_parameters, m_apply, m_connectPage, m_help, reports});
    m_testing = new TestingPage(this, testingForm, m_connection, {m_parameters, m_apply, m_connectPage, m_settings});
    m_drive = new DriveDesk(this, m_connection, m_connectPage, m_testing, m_apply, reports);
    m_firmware = new FirmwareDesk(this, m_connection, m_connectPage, m_apply, m_questions);
    m_controlMode = new ControlModeRule(this, m_connection, m_settings, m_questions);
    m_news = new MakerNews(m_connection, m_errorWindow, this);
}

void MW::buildPageList()
{
    for (const PageInfo &page : pageTable()) {
        QIcon icon(QLatin1String(page.icon));
        icon.addFile(QLatin1String(page.icon), QSize(), QIcon::Selected); // else the style tints the chosen one
        auto *item = new QListWidgetItem(icon, tr(page.text), m_form->pageSelector);
        item->setSizeHint(pageItemSize);
    }
    m_form->splitter->setStretchFactor(0, 0);
    m_form->splitter->setStretchFactor(1, 1);
    connect(m_form->pageSelector, &QListWidget::itemSelectionChanged, this, &MW::pageChanged);
    m_form->pageSelector->setCurrentRow(0);
}

void MW::hideForGood()
{
    m_form->menuBar->hide();
    m_form->mainToolBar->hide(); // whatever an old layout says
    const auto labels = findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->objectName().startsWith(QLatin1String("hiddenlabel")))
            label->hide();
    }
}

void MW::showFirstState(const Options &options, const QList<SerialPort> &ports)
{
    hideForGood();
    on_FB2D_currentIndexChanged(0);
    on_MT_currentIndexChanged(0);
    on_CRI_currentIndexChanged(0);
    on_HME_currentIndexChanged(0);
    on_AXT_currentIndexChanged(0);
    updateUnitLabels();
    m_connectPage->listPorts({options.port, options.virtualPort}, ports);
    m_connection.setPauseScale(options.pauseScale);
    m_connection.setDebugValuesShown(options.debugValues);
    m_connection.emitParameters();
    connectionStatusChanged(false, tr("Not connected"));
}

// --- The frame ----------------------------------------------------------------------------------------------------

void MW::pageChanged()
{
    const auto selected = m_form->pageSelector->selectedItems();
    if (selected.isEmpty()) {
        // Ctrl+click takes the selection away; a page is on display all the same.
        QSignalBlocker blocker(m_form->pageSelector);
        m_form->pageSelector->setCurrentRow(m_currentPage, QItemSelectionModel::ClearAndSelect);
        return;
    }
    const int previousPage = m_currentPage;
    m_currentPage = m_form->pageSelector->row(selected.first());
    m_form->pages->setCurrentIndex(m_currentPage);
    const PageInfo &page = pageTable()[std::size_t(m_currentPage)];
    m_form->apply_button->setVisible(page.hasSettings);
    m_changeCount->setVisible(page.hasSettings);
    if (page.hasSettings)
        updateApplyButtonState();
    m_help->leavePage();
    const int testing = pageIndex("testing");
    if (m_currentPage == testing && previousPage != testing)
        m_apply->askBeforeTesting();
    m_help->showHelpOf(pageTable()[std::size_t(m_currentPage)]); // a plot may have come during the question
}

void MW::connectionStatusChanged(bool connected, QString text)
{
    m_connectionStatusLabel->setText(text);
    m_settings.connectionChanged();
    m_news->connectionChanged();
    // Not to "Disconnect from drive", where the keyboard would go when the controls that it was in are disabled.
    if (connected && m_connectPage->holdsKeyboard())
        m_form->pageSelector->setFocus();
    const Reach reach = connected ? reachOf(m_connection) : Reach::NoDrive;
    m_connectPage->showConnection(reach);
    m_apply->showConnection(reach);
    m_parameters->showConnection(reach);
    m_testing->showConnection(reach);
    m_firmware->showCapabilities();
    m_board->connectionChanged(connected);
    m_board->strip()->setButtons(reach == Reach::Firmware, connected || m_connectPage->lastAddress() != 0, connected);
    if (connected)
        statusBar()->clearMessage(); // what was wrong before is over
    else
        m_drive->connectionLost();
    updateUnitLabels();
    m_parameters->updateAllRules();
}

void MW::on_actionRaw_parameters_triggered()
{
    m_overridesDialog->show();
    m_overridesDialog->raise();
    m_overridesDialog->activateWindow();
}

void MW::setBusy(bool busy, bool nonBlocking)
{
    qDebug() << "BUSY " << (busy ? "true" : "false");
    if (!busy)
        m_busyDialog->hide();
    else if (!nonBlocking)
        m_busyDialog->show();
    setCursor(busy ? Qt::BusyCursor : Qt::ArrowCursor);
}

void MW::pictureSaved(const QString &failure)
{
    m_errorWindow->tell({MessageKind::FileFailed, failure});
    if (m_closeWhenSaved && failure.isEmpty())
        close();
    m_closeWhenSaved = false;
}

void MW::closeEvent(QCloseEvent *event)
{
    qDebug() << "Close";
    if (m_help->isSaving()) {
        m_closeWhenSaved = true; // pictureSaved() comes, after 20 s at the latest
        statusBar()->showMessage(tr("The graphs are being written; the window closes when that is done"));
        event->ignore();
        return;
    }
    if (m_firmware->wantsToKeepUpgrading() || !m_apply->mayLeaveDrive()) {
        event->ignore();
        return;
    }
    m_testing->stopStimulus();
    m_questions->clear();
    m_errorWindow->endMessages();
    saveLayout(*this);
    event->accept();
}
