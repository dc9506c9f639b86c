// The drive at a glance: the board beside the pages, and where its wishes go.
#include "actwatch.h"
#include "applydesk.h"
#include "captureaid.h"
#include "connectpage.h"
#include "driveboard.h"
#include "formpage.h"
#include "helpbrowser.h"
#include "mw.h"
#include "offlinehelp.h"
#include "panekeys.h"
#include "parameterpages.h"
#include "settingguide.h"
#include "statusstrip.h"
#include "testingpage.h"
#include "ui_connectpage.h"
#include "ui_mw.h"
#include "ui_testingpage.h"

#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

void MW::buildBoard()
{
    m_board = new DriveBoard(this, m_form->centralLayout, m_connection, m_settings);
    nameControls();
    m_changeCount = new QLabel(this);
    m_changeCount->setObjectName(QStringLiteral("changeCount"));
    m_form->applyLayout->insertWidget(m_form->applyLayout->indexOf(m_form->apply_button), m_changeCount);
    connect(m_board, &DriveBoard::enableAsked, this, &MW::on_enable_drive_clicked);
    connect(m_board, &DriveBoard::disableAsked, this, &MW::on_disable_drive_clicked);
    connect(m_board, &DriveBoard::clearFaultsAsked, this, &MW::on_clear_faults_clicked);
    connect(m_board, &DriveBoard::saveToDriveAsked, this, &MW::on_saveToFlash_clicked);
    connect(m_board, &DriveBoard::faultHelpAsked, this, &MW::showFaultHelp);
    connect(m_board, &DriveBoard::refreshAsked, this, &MW::updateApplyButtonState);
    connect(m_board, &DriveBoard::report, this, [this](const QString &text) { statusBar()->showMessage(text); });
    const auto shortcut = [this](const char *keys) {
        auto *key = new QShortcut(QKeySequence(QLatin1String(keys)), this);
        key->setAutoRepeat(false);
        return key;
    };
    connect(shortcut("Ctrl+Z"), &QShortcut::activated, m_board, &DriveBoard::undo);
    connect(shortcut("Ctrl+Shift+Z"), &QShortcut::activated, m_board, &DriveBoard::redo);
    connect(shortcut("Ctrl+F"), &QShortcut::activated, m_board, &DriveBoard::openFinder);
}

/// Buttons whose text stands there twice, and parts of the frame that have none.
void MW::nameControls()
{
    const auto &testing = formAmong<Ui_TestingPage>(*m_form->pages);
    testing.setAbs1->setAccessibleName(tr("Set Abs 1"));
    testing.setInc1->setAccessibleName(tr("Set Inc 1"));
    testing.setAbs2->setAccessibleName(tr("Set Abs 2"));
    testing.setInc2->setAccessibleName(tr("Set Inc 2"));
    auto *port = formAmong<Ui_ConnectPage>(*m_form->pages).communicationInterface;
    port->lineEdit()->setAccessibleName(tr("Communication interface device"));
    statusBar()->setAccessibleName(tr("Messages"));
}

/// The Testing page's panels are built behind its form, but stand between its groups.
void MW::orderKeyboard()
{
    const auto &testing = formAmong<Ui_TestingPage>(*m_form->pages);
    const auto follow = [this](QWidget *last, const char *group) {
        const auto inside = findChild<QWidget *>(QLatin1String(group))->findChildren<QWidget *>();
        for (QWidget *control : inside) {
            if (!(control->focusPolicy() & Qt::TabFocus) || control->focusProxy())
                continue;
            setTabOrder(last, control);
            last = control;
        }
    };
    follow(testing.setZero, "gainsGroup");
    auto *callOff = findChild<QWidget *>(QStringLiteral("callOffCapture"));
    setTabOrder(testing.repeatCapture, callOff);
    follow(callOff, "triesGroup");
}

void MW::connectBoard()
{
    orderKeyboard();
    m_paneKeys = new PaneKeys(this, m_form->pageSelector, m_form->splitter, m_form->helpPane,
                              {m_form->pageSelector, m_form->pages, m_form->helpPane, m_board->strip()});
    auto *help = new QToolButton;
    help->setObjectName(QStringLiteral("helpShown"));
    help->setText(tr("Help [F1]"));
    help->setCheckable(true);
    help->setChecked(m_paneKeys->isHelpShown());
    m_board->strip()->addToSecondLine(help);
    connect(help, &QToolButton::clicked, m_paneKeys, &PaneKeys::showHelp);
    connect(m_paneKeys, &PaneKeys::helpShown, help, &QToolButton::setChecked);
    connect(m_parameters, &ParameterPages::corrected, m_board, &DriveBoard::note);
    auto *guide = new SettingGuide(this, {m_form->pageSelector, m_form->pages, m_parameters, m_board->fields()});
    connect(m_board, &DriveBoard::settingChosen, guide, &SettingGuide::goTo);
    connect(guide, &SettingGuide::rawParametersWanted, this, &MW::on_actionRaw_parameters_triggered);
    connect(guide, &SettingGuide::helpWanted, this, &MW::showHelpFile);
    connect(guide, &SettingGuide::report, this, [this](const QString &text) { statusBar()->showMessage(text); });
    connect(m_connectPage, &ConnectPage::leaving, m_board->strip(), &StatusStrip::expectEnd);
    connect(m_testing->captureAid(), &CaptureAid::callOffAsked, m_board->acts(), &ActWatch::captureCalledOff);
    const auto type = Qt::QueuedConnection; // from the worker
    connect(&m_connection, &Connection::statePolled, m_board->strip(), &StatusStrip::statePolled, type);
    connect(&m_connection, &Connection::statePolled, m_board->acts(), &ActWatch::statePolled, type);
    connect(&m_connection, &Connection::plotReady, m_paneKeys, &PaneKeys::plotCame, type);
    connect(&m_connection, &Connection::plotReady, m_board->acts(), &ActWatch::plotReady, type);
    connect(&m_connection, &Connection::captureStateChanged, m_board->acts(), &ActWatch::captureStateChanged, type);
    connect(&m_connection, &Connection::settingsFileSaved, m_board, &DriveBoard::savedToFile, type);
    connect(&m_connection, &Connection::savedToFlash, m_apply, &ApplyDesk::savedToFlash, type);
    connect(
        &m_connection, &Connection::scanProgress, this,
        [this](int asked, int total) {
            // What an Esc came to is not written over: it stays until the search has ended.
            const QString now = statusBar()->currentMessage();
            if (!now.isEmpty() && now != m_searchProgress && asked > 0)
                return;
            m_searchProgress = tr("Searching devices: address %1 of %2").arg(asked + 1).arg(total);
            statusBar()->showMessage(m_searchProgress);
        },
        type);
}

void MW::showHelpFile(const QString &file, const QString &anchor)
{
    m_paneKeys->showHelp(true);
    browserLinkClicked(offlineHelpPage(file, anchor));
}

void MW::showFaultHelp(int faultBit)
{
    showHelpFile(QStringLiteral("Faults_and_status.htm"), QStringLiteral("fault-%1").arg(faultBit));
}
