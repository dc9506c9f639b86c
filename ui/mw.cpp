// The shell: construction in its fixed order.
#include "mw.h"

#include "busydialog.h"
#include "errorwindow.h"
#include "escapefilter.h"
#include "firmwaredialog.h"
#include "helpview.h"
#include "mwforms.h"
#include "pagetable.h"
#include "statepanels.h"
#include "ui_overrideparams.h"
#include "version.h"
#include "wheelguard.h"

#include <QScrollArea>
#include <QSettings>
#include <QShortcut>
#include <QTimer>

namespace {

constexpr int APPLY_INTERVAL_MS = 1000;
constexpr int HELP_TIMEOUT_MS = 60000;
constexpr int QUESTION_RETRY_MS = 100;
constexpr QSize PAGE_ITEM_SIZE(79, 96);
constexpr int SINE_AND_COSINE_ORDERS = 12;

QSettings windowSettings()
{
    return QSettings(QStringLiteral("Tarnwell Devices"), QStringLiteral("Velbrin"));
}

} // namespace

// The pictures are in a static library, where the linker would leave them out.
static void initResources()
{
    Q_INIT_RESOURCE(graphics);
}

MW::MW(const Options &options, QWidget *parent)
    : QMainWindow(parent), m_options(options), m_form(new Forms), m_overridesForm(new Ui_overrideParams)
{
    initResources();
    buildForms();
    m_form->wellcomeText->setText(
        m_form->wellcomeText->text().replace(m_form->wellcomeText->text().indexOf(QLatin1String("%VELBRIN_VERSION")),
                                             int(qstrlen("%VELBRIN_VERSION")), QLatin1String(VELBRIN_VERSION)));
    qRegisterMetaType<Parameters>("Parameters");
    qRegisterMetaType<QList<CaptureData>>("QList <CaptureData>");
    qRegisterMetaType<QList<NodeType>>("QList <NodeType>");
    buildPageList();
    buildHelpAndStatus();
    connectSession();
    createShortcuts();

    on_FB2D_currentIndexChanged(0);
    on_MT_currentIndexChanged(0);
    on_CRI_currentIndexChanged(0);
    on_HME_currentIndexChanged(0);
    on_AXT_currentIndexChanged(0);
    hideForGood();
    connectDynamicSpinboxLabels();
    connectNumberFields();
    updateUnitLabels();
    new WheelGuard(this);
    populateConnectionPortList();
    restoreLayout();

    m_connection.setPauseScale(m_options.pauseScale);
    m_connection.setDebugValuesShown(m_options.debugValues);
    m_connection.emitParameters();
    connectionStatusChanged(false, tr("Not connected"));
    fillTorqueFunctions();
    m_showAdvanced = false;
    updateControlVisibility();
    if (showDisclaimer() && !m_options.file.isEmpty())
        loadSettingsFile(m_options.file);
}

MW::~MW()
{
    // Controls that lose the keyboard while they are being destroyed must not reach slots of a half-gone window.
    const auto children = findChildren<QObject *>();
    for (QObject *child : children)
        child->disconnect(this);
}

void MW::buildForms()
{
    m_form->Ui_MW::setupUi(this);
    const auto addPage = [this](auto &form) {
        auto *page = new QWidget;
        form.setupUi(page);
        m_form->pages->addWidget(page);
    };
    addPage(static_cast<Ui_WelcomePage &>(*m_form));
    addPage(static_cast<Ui_ConnectPage &>(*m_form));
    addPage(static_cast<Ui_GoalsPage &>(*m_form));
    addPage(static_cast<Ui_MachinePage &>(*m_form));
    addPage(static_cast<Ui_TuningPage &>(*m_form));
    addPage(static_cast<Ui_FaultLimitsPage &>(*m_form));
    addPage(static_cast<Ui_TestingPage &>(*m_form));
    // Apply stands below the pages, and the keyboard comes to it after them.
    QWidget::setTabOrder(previousInFocusChain(), m_form->apply_button);
    // The areas around the pages scroll with the control that has the keyboard; they are no stop of their own.
    const auto areas = m_form->pages->findChildren<QScrollArea *>();
    for (QScrollArea *area : areas)
        area->setFocusPolicy(Qt::NoFocus);

    m_overridesDialog = new QDialog(this);
    m_overridesForm->setupUi(m_overridesDialog);
    m_busyDialog = new BusyDialog(this);
    m_firmwareDialog = new FirmwareDialog(this);
    connect(m_firmwareDialog->form.openFile, &QPushButton::clicked, this, &MW::FWUpgrade_openFile_clicked);
    connect(m_firmwareDialog->form.close, &QPushButton::clicked, this, &MW::FWUpgrade_close_clicked);

    // Once, when all forms are built: twice would run every slot twice.
    QMetaObject::connectSlotsByName(this);
    connect(m_form->FBD, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { on_FBD_currentIndexChanged(m_form->FBD->itemText(index)); });
    connect(m_form->clear_faults_2, &QPushButton::clicked, this, &MW::on_clear_faults_clicked);
    connect(m_form->refreshPorts, &QPushButton::clicked, this, &MW::populateConnectionPortList);
}

void MW::buildPageList()
{
    m_helpTimer = new QTimer(this);
    m_helpTimer->setSingleShot(true);
    m_helpTimer->setInterval(HELP_TIMEOUT_MS);
    connect(m_helpTimer, &QTimer::timeout, this, &MW::helpLoadingTimeouted);

    m_helpView = new HelpView(m_form->helpContainer, m_options.webEngine);
    m_helpView->setObjectName(QStringLiteral("helpView"));
    m_form->helpContainer->layout()->addWidget(m_helpView);

    for (const PageInfo &page : pageTable) {
        QIcon icon(QLatin1String(page.icon));
        icon.addFile(QLatin1String(page.icon), QSize(), QIcon::Selected); // else the style tints the chosen one
        auto *item = new QListWidgetItem(icon, tr(page.text), m_form->pageSelector);
        item->setSizeHint(PAGE_ITEM_SIZE);
    }
    m_form->splitter->setStretchFactor(0, 0);
    m_form->splitter->setStretchFactor(1, 1);
}

void MW::buildHelpAndStatus()
{
    m_saveAsPdfButton = new QPushButton(tr("Save as PDF"), m_helpView);
    m_saveAsPdfButton->hide();
    connect(m_saveAsPdfButton, &QPushButton::clicked, this, &MW::saveTestResults_clicked);
    m_errorWindow = new ErrorWindow(this);
    connect(m_errorWindow, &ErrorWindow::vitalMessage, this,
            [this](const QString &line) { statusBar()->showMessage(line); });
    connect(m_errorWindow, &ErrorWindow::linkActivated, this, &MW::browserLinkClicked);
    m_connectionStatusLabel = new QLabel(tr("Not connected"));
    m_connectionStatusLabel->setObjectName(QStringLiteral("connectionStatus"));
    m_connectionStatusLabel->setMargin(2);
    statusBar()->addPermanentWidget(m_connectionStatusLabel);
    statusBar()->showMessage(tr("Program started"));

    connect(m_helpView, &HelpView::linkClicked, this, &MW::browserLinkClicked);
    connect(m_helpView, &HelpView::pictureSaved, this, &MW::pictureSaved);
    connect(m_helpView, &HelpView::pageLoaded, this, &MW::helpViewLoadFinished);
    for (QLabel *label : {m_form->faultRegister, m_form->FBDhelp}) {
        label->setOpenExternalLinks(false);
        connect(label, &QLabel::linkActivated, this, [this](const QString &link) { browserLinkClicked(QUrl(link)); });
    }
    connect(m_form->pageSelector, &QListWidget::itemSelectionChanged, this, &MW::pageChanged);
    m_form->pageSelector->setCurrentRow(WelcomePageIndex);
}

void MW::connectSession()
{
    m_applyTimer = new QTimer(this);
    m_applyTimer->setInterval(APPLY_INTERVAL_MS);
    connect(m_applyTimer, &QTimer::timeout, this, &MW::updateApplyButtonState);
    m_applyTimer->start();
    m_questionTimer = new QTimer(this);
    m_questionTimer->setInterval(QUESTION_RETRY_MS);
    connect(m_questionTimer, &QTimer::timeout, this, &MW::runWaitingQuestion);

    connectStatePanels();

    // The worker emits on its own thread; everything arrives here through the event loop.
    const auto type = Qt::QueuedConnection;
    connect(&m_connection, &Connection::statusChanged, this, &MW::connectionStatusChanged, type);
    connect(&m_connection, &Connection::message, m_errorWindow, &ErrorWindow::tell, type);
    connect(&m_connection, &Connection::parametersRetreived, this, &MW::paramsRetreived, type);
    connect(&m_connection, &Connection::plotReady, this, &MW::plotCapture, type);
    connect(&m_connection, &Connection::updateCaptureButtonText, this, &MW::changeScopeButtonText, type);
    connect(&m_connection, &Connection::availableBusNodes, this, &MW::availableBusNodesListReceived, type);
    connect(&m_connection, &Connection::firmwareUpgradeMsg, this, &MW::firmwareUpgradeMsg, type);
    connect(&m_connection, &Connection::firmwareUploadProgress, m_firmwareDialog, &FirmwareDialog::setProgress, type);
    connect(&m_connection, &Connection::suggestDeviceRestart, this, &MW::suggestDeviceRestart, type);
    connect(&m_connection, &Connection::setpointChanged, this, &MW::setpointChanged, type);
    connect(&m_connection, &Connection::busy, this, &MW::setBusy, type);
    connect(&m_connection, &Connection::setUnsavedState, this, &MW::setUnsavedStatus, type);
    connect(&m_connection, &Connection::controlModeChanged, this, &MW::deviceControlModeChanged, type);

    connect(&m_updateChecker, &UpdateChecker::showMessage, this, &MW::handleUpdateCheckerMessage);
    connectDisableWatch();
    connect(
        &m_connection, &Connection::driveParametersChanged, this,
        [this](const Parameters &list) {
            m_settings.setDrive(list);
            updateUnitLabels();
        },
        type);

    const auto changed = QOverload<int>::of(&QSpinBox::valueChanged);
    connect(m_form->MUL, changed, this, &MW::updateUnitLabels);
    connect(m_form->DIV, changed, this, &MW::updateUnitLabels);
    connect(m_form->FBR, changed, this, &MW::updateUnitLabels);
    connect(m_form->AXS, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &MW::updateUnitLabels);
    connect(m_form->AXT, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &MW::updateUnitLabels);
}

void MW::connectStatePanels()
{
    m_statePanels = new StatePanels(this);
    const auto add = [this](QLabel *panel, QLabel *heading, void (Connection::*updated)(QString)) {
        m_statePanels->add(panel, heading);
        connect(
            &m_connection, updated, m_statePanels,
            [this, panel](const QString &html) { m_statePanels->show(panel, html); }, Qt::QueuedConnection);
    };
    add(m_form->physInputStatus, m_form->physInputStatusl, &Connection::physInputsUpdated);
    add(m_form->statusRegister, m_form->statusRegisterl, &Connection::statusRegisterUpdated);
    add(m_form->faultRegister, m_form->faultRegisterl, &Connection::faultRegisterUpdated);
}

void MW::createShortcuts()
{
    struct Shortcut
    {
        const char *key;
        void (MW::*slot)();
    };
    // Alt+2 and Alt+3 cross on purpose: absolute targets first, then the increments.
    const Shortcut shortcuts[] = {
        {"Ctrl+P", &MW::on_actionRaw_parameters_triggered},
        {"Alt+A", &MW::on_apply_button_clicked},
        {"Alt+1", &MW::on_setAbs1_clicked},
        {"Alt+2", &MW::on_setAbs2_clicked},
        {"Alt+3", &MW::on_setInc1_clicked},
        {"Alt+4", &MW::on_setInc2_clicked},
        {"Alt+0", &MW::on_setZero_clicked},
        {"Alt+R", &MW::on_clear_faults_clicked},
        {"Alt+S", &MW::on_ScopeCaptureNow_clicked},
        {"Ctrl+S", &MW::on_save_settings_to_file_clicked},
        {"Ctrl+O", &MW::on_load_settings_from_file_clicked},
        {"Alt+O", &MW::on_connect_button_clicked},
        {"Alt+D", &MW::on_disconnect_button_clicked},
    };
    for (const Shortcut &shortcut : shortcuts) {
        auto *key = new QShortcut(QKeySequence(QLatin1String(shortcut.key)), this);
        key->setAutoRepeat(false); // a held Alt+3 must not walk the axis away
        connect(key, &QShortcut::activated, this, shortcut.slot);
    }
    m_escapeFilter = new EscapeFilter(this);
    connect(m_escapeFilter, &EscapeFilter::escapePressed, this, &MW::on_disable_drive_clicked);
    auto *escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setAutoRepeat(false);
    connect(escape, &QShortcut::activated, m_escapeFilter, &EscapeFilter::shortcutActivated);
    connect(escape, &QShortcut::activatedAmbiguously, m_escapeFilter, &EscapeFilter::shortcutActivated);
}

void MW::hideForGood()
{
    QWidget *const hidden[] = {m_form->offlineHelpNotification,
                               m_form->stimuluspresets,
                               m_form->CSDracc,
                               m_form->CSDl,
                               m_form->CSD,
                               m_form->AD,
                               m_form->ADl,
                               m_form->FUVwarning,
                               m_form->menuBar,
                               m_form->mainToolBar,
                               m_form->ScopeDebug,
                               m_form->ScopeDebug2,
                               m_form->scopeFluxCurrent,
                               m_form->scopeFluxVoltage,
                               m_form->scopePWM1,
                               m_form->scopePWM2,
                               m_form->scopePWM3,
                               m_form->dualfbgroup};
    for (QWidget *widget : hidden)
        widget->hide();
    const auto labels = findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->objectName().startsWith(QLatin1String("hiddenlabel")))
            label->hide();
    }
}

void MW::fillTorqueFunctions()
{
    // Behind the form's "None" and "Constant"; the index is the value that the drive knows.
    for (int k = 2; k < 2 + 2 * SINE_AND_COSINE_ORDERS; ++k) {
        const QString text = (k % 2 == 0 ? tr("Sin(%1x)") : tr("Cos(%1x)")).arg(k / 2);
        m_form->TRF1->addItem(text);
        m_form->TRF2->addItem(text);
    }
}

void MW::restoreLayout()
{
    const QSettings settings = windowSettings();
    if (!restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray()))
        resize(1300, 730);
    restoreState(settings.value(QStringLiteral("windowState")).toByteArray(), 0);
    m_form->mainToolBar->hide(); // whatever an old state says
}

void MW::saveLayout() const
{
    QSettings settings = windowSettings();
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("windowState"), saveState(0));
}
