#include "tour.h"

#include "applydesk.h"
#include "disclaimer.h"
#include "errorwindow.h"
#include "mw.h"
#include "pagetable.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QSpinBox>
#include <QTextEdit>
#include <cstdio>

namespace {

constexpr int tickMs = 50;
constexpr int stopLimitMs = 30000;   ///< nothing on the virtual drive takes longer than a few seconds
constexpr int settleMs = 400;        ///< for the help pane, and for what the next poll changes on a page
constexpr int testMoveTarget = 1000; ///< setpoint units; half of the virtual drive's tracking error limit

const char *const captureRate = "2500 Hz"; ///< the recorder's memory then holds the whole move

MW *window()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<MW *>(widget))
            return found;
    }
    return nullptr;
}

template <typename Widget> Widget *find(const char *name)
{
    return window() ? window()->findChild<Widget *>(QLatin1String(name)) : nullptr;
}

/// Presses a button once the tour's own call has returned: what opens a modal box does not come back before it closes.
bool press(QAbstractButton *button)
{
    if (!button || !button->isEnabled() || !button->isVisible())
        return false;
    return QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
}

/// Presses the button with this text in the open message box.
bool answer(const QString &text)
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return false;
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == text)
            return press(button);
    }
    return false;
}

QDialog *nodeDialog()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    return dialog && dialog->findChild<QListWidget *>(QStringLiteral("nodeList")) ? dialog : nullptr;
}

bool openFirstNode()
{
    QDialog *dialog = nodeDialog();
    if (!dialog)
        return false;
    auto *list = dialog->findChild<QListWidget *>(QStringLiteral("nodeList"));
    if (list->count() == 0)
        return false;
    list->setCurrentRow(0);
    return press(dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open));
}

bool applyButtonSays(const char *text)
{
    const auto *button = find<QPushButton>("apply_button");
    return button && button->text() == ApplyDesk::tr(text);
}

bool captureButtonSays(const char *text)
{
    return find<QPushButton>("ScopeCaptureNow")->text() == Connection::tr(text);
}

} // namespace

Tour::Tour(const QString &folder) : m_folder(folder)
{
    m_timer.setInterval(tickMs);
    connect(&m_timer, &QTimer::timeout, this, &Tour::step);
}

void Tour::start()
{
    // The wiki is not part of the tour: the offline help shows at once.
    if (qEnvironmentVariableIsEmpty("VELBRIN_WIKI"))
        qputenv("VELBRIN_WIKI", "http://127.0.0.1:9");
    plan();
    m_atThisStop.start();
    m_timer.start();
}

// --- The stops ----------------------------------------------------------------------------------------------------

void Tour::plan()
{
    add(tr("make the folder %1").arg(m_folder), [this] {
        const bool made = QDir().mkpath(m_folder);
        if (!made)
            fail(tr("it cannot be made"));
        return made;
    });
    add(tr("accept the disclaimer"), [] { return answer(Disclaimer::tr("I Agree")); });
    add(tr("see the window"), [] { return window() && window()->isVisible() && !QApplication::activeModalWidget(); });
    add(tr("watch the drive"), [this] {
        return bool(connect(&window()->session(), &Connection::statePolled, this,
                            [this](const DriveState &state) { m_state = state; }));
    });
    addPage("connect");
    addPress(tr("search for drives"), "connect_button");
    add(tr("see a drive in the list"), [] { return nodeDialog() != nullptr; });
    addScreenshot(QStringLiteral("choose-drive"), "nodeList");
    add(tr("choose the first drive"), openFirstNode);
    add(tr("connect"), [] { return find<QPushButton>("disconnect_button")->isEnabled(); });
    add(tr("read the settings"), [] { return find<QSpinBox>("KPP")->value() > 0; });
    planPages();
    planEdit();
    planTestMove();
    planEnd();
}

void Tour::planPages()
{
    for (const PageInfo &page : pageTable()) {
        addPage(page.name);
        addScreenshot(QLatin1String(page.name));
    }
}

void Tour::planEdit()
{
    addPage("tuning");
    add(tr("edit a gain"), [] {
        auto *gain = find<QSpinBox>("KPP");
        gain->setFocus();
        gain->setValue(gain->value() + 10);
        return true;
    });
    add(tr("see the change announced"), [] { return applyButtonSays("Apply settings (parameters changed)"); });
    addScreenshot(QStringLiteral("tuning-changed"));
    addPress(tr("apply"), "apply_button");
    add(tr("see it applied"), [] { return applyButtonSays("Apply settings [Alt+A]"); });
}

void Tour::planTestMove()
{
    addPage("connect");
    addPress(tr("enable the drive"), "enable_drive");
    add(tr("see the drive run"), [this] { return runs(); });
    addPage("testing");
    add(tr("choose a sample rate"), [] {
        auto *rates = find<QComboBox>("ScopeSampleRate");
        rates->setCurrentText(QLatin1String(captureRate));
        return rates->currentText() == QLatin1String(captureRate);
    });
    addPress(tr("start a capture"), "ScopeCaptureNow");
    add(tr("see the capture wait"), [] { return captureButtonSays("Scope waiting.."); });
    add(tr("type a target"), [] {
        find<QSpinBox>("stimulusTarget1")->setValue(testMoveTarget);
        return true;
    });
    addPress(tr("move to the target"), "setAbs1");
    add(tr("see the setpoint"),
        [] { return find<QLabel>("setpointNow")->text().contains(QString::number(testMoveTarget)); });
    add(tr("see the capture done"), [] { return captureButtonSays("Start capture"); });
    addSettling(tr("let the plot settle"));
    addScreenshot(QStringLiteral("testing-capture"));
    addPage("connect");
    addPress(tr("disable the drive"), "disable_drive");
    add(tr("see the drive stopped"), [this] { return !runs(); });
}

void Tour::planEnd()
{
    addPress(tr("disconnect"), "disconnect_button");
    add(tr("leave the change unsaved"), [] { return answer(ApplyDesk::tr("Discard changes")); });
    add(tr("see the drive disconnected"), [] { return find<QPushButton>("connect_button")->isEnabled(); });
    add(tr("close the window"), [] { return QMetaObject::invokeMethod(window(), "close", Qt::QueuedConnection); });
}

bool Tour::runs() const
{
    return (m_state.statusRegister & statusBitRun) != 0;
}

void Tour::add(const QString &what, const std::function<bool()> &done)
{
    m_stops.push_back({what, done});
}

void Tour::addPress(const QString &what, const char *button)
{
    add(what, [button] { return press(find<QPushButton>(button)); });
}

void Tour::addPage(const char *name)
{
    add(tr("show page %1").arg(QLatin1String(name)), [index = pageIndex(name)] {
        find<QListWidget>("pageSelector")->setCurrentRow(index);
        return true;
    });
    addSettling(tr("let page %1 settle").arg(QLatin1String(name)));
}

void Tour::addSettling(const QString &what)
{
    add(what, [this] { return m_atThisStop.elapsed() > settleMs; });
}

void Tour::addScreenshot(const QString &name, const char *dialog)
{
    const QString file = m_folder + QLatin1Char('/') + name + QLatin1String(".png");
    add(tr("save %1").arg(file), [file, dialog] {
        QWidget *shown = dialog ? QApplication::activeModalWidget() : window();
        return shown && shown->grab().save(file, "PNG");
    });
}

// --- Walking ------------------------------------------------------------------------------------------------------

void Tour::step()
{
    if (m_failed)
        return endFailed();
    if (m_next == m_stops.size()) {
        m_timer.stop();
        return QCoreApplication::exit(0);
    }
    if (!findsNoMessage())
        return;
    const Stop &stop = m_stops[m_next];
    if (stop.done()) {
        ++m_next;
        m_atThisStop.start();
    } else if (m_atThisStop.elapsed() > stopLimitMs) {
        fail(tr("nothing happened for %1 s").arg(stopLimitMs / 1000));
    }
}

/// Any message is a failure: nothing on the tour deserves one.
bool Tour::findsNoMessage()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        const auto *messages = qobject_cast<ErrorWindow *>(widget);
        if (!messages || !messages->isVisible())
            continue;
        fail(messages->findChild<QTextEdit *>()->toPlainText());
        return false;
    }
    return true;
}

void Tour::fail(const QString &reason)
{
    m_failed = true;
    const QString next = m_next < m_stops.size() ? m_stops[m_next].what : QString();
    std::fprintf(stderr, "The tour failed at \"%s\": %s\n", qPrintable(next), qPrintable(reason));
    if (window())
        window()->grab().save(m_folder + QLatin1String("/failed.png"), "PNG");
}

/// Modal boxes have event loops of their own, so ending takes as many ticks as there are boxes.
void Tour::endFailed()
{
    if (auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
        box->reject();
    QCoreApplication::exit(1);
}
