// The wiring: whom the controls, the pages, the session and the keys tell.
#include "mw.h"

#include "connectpage.h"
#include "driveboard.h"
#include "errorwindow.h"
#include "escapefilter.h"
#include "firmwaredesk.h"
#include "firmwaredialog.h"
#include "formpage.h"
#include "helpbrowser.h"
#include "makernews.h"
#include "parameterpages.h"
#include "refusednumbers.h"
#include "testingpage.h"
#include "triesdesk.h"
#include "ui_machinepage.h"
#include "ui_mw.h"
#include "ui_testingpage.h"

#include <QShortcut>
#include <QStatusBar>
#include <QTimer>

namespace {

constexpr int applyIntervalMs = 1000;

} // namespace

void MW::connectForms()
{
    const auto &machine = formAmong<Ui_MachinePage>(*m_form->pages);
    const auto &testing = formAmong<Ui_TestingPage>(*m_form->pages);
    // Once, when all forms are built: twice would run every slot twice.
    QMetaObject::connectSlotsByName(this);
    connect(machine.FBD, &QComboBox::currentIndexChanged, this,
            [this, box = machine.FBD](int index) { on_FBD_currentIndexChanged(box->itemText(index)); });
    connect(testing.clear_faults_2, &QPushButton::clicked, this, &MW::on_clear_faults_clicked);
    for (QLabel *label : {testing.faultRegister, machine.FBDhelp}) {
        label->setOpenExternalLinks(false);
        connect(label, &QLabel::linkActivated, this, [this](const QString &link) { browserLinkClicked(QUrl(link)); });
    }
    showRefusedNumbers(this, statusBar());
}

void MW::connectPages()
{
    connect(m_errorWindow, &ErrorWindow::vitalMessage, this,
            [this](const QString &line) { statusBar()->showMessage(line); });
    connect(m_errorWindow, &ErrorWindow::linkActivated, this, &MW::browserLinkClicked);
    connect(m_help->view(), &HelpView::linkClicked, this, &MW::browserLinkClicked);
    connect(m_help->view(), &HelpView::pageLoaded, this, &MW::helpViewLoadFinished);
    connect(m_help, &HelpBrowser::timedOut, this, &MW::helpLoadingTimeouted);
    connect(m_help, &HelpBrowser::saveWanted, this, &MW::saveTestResults_clicked);
    connect(m_help, &HelpBrowser::redrawWanted, m_tries, [this] { m_tries->redraw(false); });
    connect(m_help, &HelpBrowser::saved, this, &MW::pictureSaved);

    connect(m_parameters, &ParameterPages::unitsChanged, this, &MW::updateUnitLabels);
    connect(m_parameters, &ParameterPages::driveRead, m_news, [this] {
        if (!m_board->isReadBack()) // an apply makes no other drive of it
            m_news->ask(m_settings);
    });
    connect(m_parameters, &ParameterPages::bootloaderRead, m_connectPage, &ConnectPage::showBootloader);
    connect(m_connectPage, &ConnectPage::searching, statusBar(), &QStatusBar::clearMessage);
    connect(m_connectPage, &ConnectPage::leaving, m_testing, &TestingPage::stopStimulus);
    connect(m_connectPage, &ConnectPage::connecting, this, [this](int address) {
        m_board->connectingTo(address);
        FWUpgrade_close_clicked();
        m_parameters->collect();
        m_settings.settle();
        updateUnitLabels();
    });
    connect(m_testing, &TestingPage::captured, m_tries, &TriesDesk::captured);
    connect(m_firmware->dialog()->form.openFile, &QPushButton::clicked, this, &MW::FWUpgrade_openFile_clicked);
    connect(m_firmware->dialog()->form.close, &QPushButton::clicked, this, &MW::FWUpgrade_close_clicked);
    connect(m_firmware, &FirmwareDesk::restarting, this,
            [this] { connectionStatusChanged(false, tr("Restarting device")); });
    connect(m_news, &MakerNews::arrived, this, &MW::handleUpdateCheckerMessage);
}

void MW::connectSession()
{
    auto *applyTimer = new QTimer(this);
    connect(applyTimer, &QTimer::timeout, this, &MW::updateApplyButtonState);
    applyTimer->start(applyIntervalMs);

    // The worker emits on its own thread; everything arrives here through the event loop.
    const auto type = Qt::QueuedConnection;
    connect(&m_connection, &Connection::statusChanged, this, &MW::connectionStatusChanged, type);
    connect(&m_connection, &Connection::message, m_errorWindow, &ErrorWindow::tell, type);
    connect(&m_connection, &Connection::message, m_connectPage, &ConnectPage::messageCame, type);
    connect(&m_connection, &Connection::parametersRetreived, this, &MW::paramsRetreived, type);
    connect(&m_connection, &Connection::plotReady, this, &MW::plotCapture, type);
    connect(&m_connection, &Connection::updateCaptureButtonText, this, &MW::changeScopeButtonText, type);
    connect(&m_connection, &Connection::availableBusNodes, this, &MW::availableBusNodesListReceived, type);
    connect(&m_connection, &Connection::firmwareUpgradeMsg, this, &MW::firmwareUpgradeMsg, type);
    connect(&m_connection, &Connection::suggestDeviceRestart, this, &MW::suggestDeviceRestart, type);
    connect(&m_connection, &Connection::setpointChanged, this, &MW::setpointChanged, type);
    connect(&m_connection, &Connection::busy, this, &MW::setBusy, type);
    connect(&m_connection, &Connection::setUnsavedState, this, &MW::setUnsavedStatus, type);
    connect(&m_connection, &Connection::controlModeChanged, this, &MW::deviceControlModeChanged, type);
    connect(&m_connection, &Connection::enableStatePolled, m_news, &MakerNews::enableStatePolled, type);
    connect(
        &m_connection, &Connection::driveParametersChanged, this,
        [this](const Parameters &list) {
            m_settings.setDrive(list);
            updateUnitLabels();
        },
        type);
}

void MW::createShortcuts()
{
    struct Shortcut
    {
        const char *key;
        void (MW::*slot)();
    };
    // Not in the order of the buttons, which stand row by row: first both absolute targets, then both increments.
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
        {"Ctrl+Shift+O", &MW::openCapture},
        {"F11", &MW::toggleOpenedOut},
        {"Alt+O", &MW::on_connect_button_clicked},
        {"Alt+D", &MW::on_disconnect_button_clicked},
    };
    for (const Shortcut &shortcut : shortcuts) {
        auto *key = new QShortcut(QKeySequence(QLatin1String(shortcut.key)), this);
        key->setAutoRepeat(false); // a held Alt+3 must not walk the axis away
        connect(key, &QShortcut::activated, this, shortcut.slot);
    }
    auto *filter = new EscapeFilter(this);
    connect(filter, &EscapeFilter::escapePressed, this, &MW::on_disable_drive_clicked);
    auto *escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setAutoRepeat(false);
    connect(escape, &QShortcut::activated, filter, &EscapeFilter::shortcutActivated);
    connect(escape, &QShortcut::activatedAmbiguously, filter, &EscapeFilter::shortcutActivated);
}
