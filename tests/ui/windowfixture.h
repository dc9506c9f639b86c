/// \file
/// The real window with a virtual drive to connect to, a wiki on the loopback address, and somebody who answers boxes.
#ifndef VELBRIN_TESTS_WINDOWFIXTURE_H
#define VELBRIN_TESTS_WINDOWFIXTURE_H

#include "itemcodec.h"
#include "virtualbusfixture.h" // before Qt, whose keywords it uses as names

#include "loopbackhttpserver.h"
#include "mw.h"
#include "pagescript.h"
#include "printqt.h"

#include <QSignalSpy>
#include <QTest>
#include <QtWidgets> // of every kind, for the tests that include this

/// Answers every request with a small page that names its path, or with nothing at all while silent.
class LoopbackWiki : public LoopbackHttpServer
{
public:
    LoopbackWiki()
    {
        handler = [this](QTcpSocket *socket) {
            const QByteArray path = requests.last().split(' ').value(1);
            paths << path;
            if (silent)
                return;
            const QByteArray body = "<html><body>online " + path + "</body></html>";
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\nContent-Length: " +
                          QByteArray::number(body.size()) + "\r\n\r\n" + body);
            socket->disconnectFromHost();
        };
    }

    QStringList paths; ///< of all requests
    bool silent = false;
};

/// Presses the buttons that a test expects to be asked for, in order; any other modal box fails the test.
class Answerer : public QObject
{
public:
    Answerer()
    {
        connect(&m_timer, &QTimer::timeout, this, &Answerer::look);
        m_timer.start(5);
    }

    /// The next message box gets this button pressed, after it was looked at.
    void press(
        const QString &buttonText, const std::function<void(QWidget *)> &look = [](QWidget *) {})
    {
        expect([buttonText, look](QWidget *box) {
            look(box);
            const auto buttons = box->findChildren<QAbstractButton *>();
            for (QAbstractButton *button : buttons) {
                if (button->text().remove('&') != buttonText)
                    continue;
                button->click();
                return true;
            }
            return false;
        });
    }
    /// The next box gets this key.
    void pressKey(Qt::Key key)
    {
        expect([key](QWidget *box) {
            QTest::keyClick(box, key);
            return true;
        });
    }
    /// The next node dialog gets this row chosen and opened; its rows are read.
    void chooseNode(int row, QStringList *rows = nullptr)
    {
        expect([row, rows](QWidget *dialog) {
            auto *nodes = dialog->findChild<QListWidget *>("nodeList");
            if (!nodes || row >= nodes->count())
                return false;
            for (int i = 0; rows && i < nodes->count(); ++i)
                *rows << nodes->item(i)->text();
            nodes->setCurrentRow(row);
            dialog->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Open)->click();
            return true;
        });
    }
    /// The next file dialog gets this name, or is cancelled.
    void chooseFile(const QString &file)
    {
        expect([file](QWidget *widget) { return answerFileDialog(widget, file); });
    }
    /// Whatever is open is handed to `action`.
    void expect(const std::function<bool(QWidget *)> &action) { m_expected << action; }

    /// Queued, where accepting asks another question first.
    static bool answerFileDialog(QWidget *widget, const QString &file, Qt::ConnectionType how = Qt::AutoConnection)
    {
        auto *dialog = qobject_cast<QFileDialog *>(widget);
        if (!dialog)
            return false;
        if (file.isEmpty())
            return dialog->close();
        dialog->selectFile(file);
        if (auto *name = dialog->findChild<QLineEdit *>("fileNameEdit")) // unset while the folder is being read
            name->setText(file);
        return QMetaObject::invokeMethod(dialog, "accept", how);
    }
    bool isDone() const { return m_expected.isEmpty(); }
    QStringList texts; ///< of all message boxes that were open, in order

private:
    void look()
    {
        QWidget *open = QApplication::activeModalWidget();
        // These two are modal, but ask nothing.
        if (!open || open->objectName() == "busyDialog" || open->objectName() == "firmwareUpgradeDlg" || m_answering)
            return;
        m_answering = true;
        if (auto *box = qobject_cast<QMessageBox *>(open))
            texts << box->text();
        const bool expected = !m_expected.isEmpty();
        if (!expected || !m_expected.takeFirst()(open)) {
            ADD_FAILURE() << (expected ? "cannot answer " : "nobody expected ") << qPrintable(describe(open));
            open->close();
        }
        m_answering = false;
    }
    static QString describe(QWidget *widget)
    {
        const auto *box = qobject_cast<QMessageBox *>(widget);
        return widget->windowTitle() + ": " + (box ? box->text() : widget->objectName());
    }

    QTimer m_timer;
    QList<std::function<bool(QWidget *)>> m_expected;
    bool m_answering = false;
};

class WindowFixture : public VirtualBusFixture
{
protected:
    /// Addresses in the drive.
    static constexpr int KVP = 202, feedbackDevice = 493, incrementalSetpoint = 550, absoluteSetpoint = 551,
                         faultBits = 552, systemCommand = 554, underVoltage = 570, positionRegister = 956,
                         softEnable = 2533, scopeState = 5011;
    /// Rows of the page list.
    static constexpr int tuningPage = 4, testingPage = 6;

    void SetUp() override
    {
        VirtualBusFixture::SetUp();
        qputenv("VELBRIN_WIKI", m_wiki.address().toLatin1());
        qputenv("VELBRIN_UPDATE_SERVER", m_updates.address().toLatin1());
        m_updates.answer("VELBRINREPLY NOMESSAGE");
    }
    void TearDown() override
    {
        EXPECT_TRUE(m_answers.isDone()) << "a box that was expected never came";
        m_window.reset();
        VirtualBusFixture::TearDown();
    }

    /// Opens the window as a technician would, accepting the disclaimer.
    void openWindow(const QString &settingsFile = QString())
    {
        m_answers.press(QCoreApplication::translate("Disclaimer", "I Agree"));
        MW::Options options;
        options.file = settingsFile;
        options.virtualPort = port();
        options.pauseScale = 0.01;
        options.webEngine = m_webEngine;
        m_window = std::make_unique<MW>(options);
        QObject::connect(&m_window->session(), &Connection::statePolled, m_window.get(),
                         [this](const DriveState &state) {
                             m_state = state;
                             ++m_polls;
                         });
        m_window->show();
        bringToFront();
    }
    /// A closed dialog leaves no window active where there is no window manager.
    void bringToFront()
    {
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }
    /// Chooses the drive at this address as if a bus search (which takes 2.5 s of silence) had found it.
    void startConnecting(int address = DriveAddress, int deviceType = 11000)
    {
        m_answers.chooseNode(0);
        offer({{address, false, deviceType, false}});
    }
    void offer(const QList<NodeType> &nodes)
    {
        QMetaObject::invokeMethod(m_window.get(), "availableBusNodesListReceived", Q_ARG(QList<NodeType>, nodes));
    }
    void connectToDrive(int address = DriveAddress, int deviceType = 11000)
    {
        startConnecting(address, deviceType);
        ASSERT_TRUE(waitFor([this] { return connectionText() == Connection::tr("Connected"); }))
            << qPrintable(connectionText());
        ASSERT_TRUE(waitFor([this] { return label("HWMODEL")->text().startsWith("Tarnwell"); }));
    }
    void disconnectFromDrive()
    {
        click("disconnect_button");
        ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    }
    void openConnectedWindow()
    {
        ASSERT_NO_FATAL_FAILURE(openWindow());
        connectToDrive();
    }

    template <typename T> T *control(const char *name) const
    {
        T *found = m_window->findChild<T *>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QPushButton *button(const char *name) const { return control<QPushButton>(name); }
    QLabel *label(const char *name) const { return control<QLabel>(name); }
    void click(const char *name) { button(name)->click(); }
    /// Goes to a page of the page list.
    void goTo(int page) { control<QListWidget>("pageSelector")->setCurrentRow(page); }
    /// Presses a key in the window.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        bringToFront();
        QWidget *target = QApplication::focusWidget();
        QTest::keyClick(target ? target : m_window.get(), key, modifiers);
    }
    /// Types over what stands in a field, which keeps the keyboard.
    void typeOver(QAbstractSpinBox *field, const char *text)
    {
        bringToFront();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }
    QSpinBox *kvp() const { return control<QSpinBox>("KVP"); }
    QString path(const QString &name) const { return QDir::current().filePath(name); }
    void loadFile(const QString &file)
    {
        m_answers.chooseFile(file);
        click("load_settings_from_file");
    }
    void saveFile(const QString &file)
    {
        m_answers.chooseFile(file);
        click("save_settings_to_file");
        ASSERT_TRUE(waitFor([&] { return QFile::exists(file); }));
    }
    /// Texts in the error window, which is not modal and so is nobody's to answer.
    QString shownMessage() const
    {
        const auto *errors = control<QDialog>("errorWindow");
        return errors->isVisible() ? errors->findChild<QTextEdit *>()->toPlainText() : QString();
    }
    bool waitForMessage()
    {
        return waitFor([this] { return !shownMessage().isEmpty(); });
    }
    void closeMessage() { control<QDialog>("errorWindow")->close(); }
    HelpView *view() const { return control<HelpView>("helpView"); }
    QVariant run(const QString &script) const { return runScript(view(), script); }
    QString shownText() const { return pageText(view()); }
    void showPlot() { QMetaObject::invokeMethod(m_window.get(), "plotCapture", Q_ARG(QList<CaptureData>, {})); }
    void clickLink(const char *url)
    {
        QMetaObject::invokeMethod(m_window.get(), "browserLinkClicked", Q_ARG(QUrl, QUrl(url)));
    }
    QString connectionText() const { return label("connectionStatus")->text(); }
    /// In the status bar.
    QString said() const { return m_window->statusBar()->currentMessage(); }
    QString applyText() const { return button("apply_button")->text(); }
    /// Waits until the Apply button says whether something is pending, and for no longer than a technician would.
    bool waitForPending(bool pending)
    {
        const QString text = pending ? "Apply settings (parameters changed)" : "Apply settings [Alt+A]";
        return waitFor([&] { return applyText() == text; }, 3000);
    }
    /// Waits until the drive's register has a value.
    bool driveHas(int reg, int value)
    {
        return waitFor([&] { return bus().read(DriveAddress, reg) == value; });
    }

    /// How often the drive was told to put a value into a register.
    int timesWritten(int reg, int value) const
    {
        int times = 0;
        for (const sim::ReceivedRequest &request : receivedAt(DriveAddress)) {
            int selected = -1;
            for (const sim::Item &item : sim::decodeItems(request.packet.payload)) {
                if (item.selectsAddress)
                    selected = item.value;
                else if (selected == reg && item.value == value)
                    ++times;
            }
        }
        return times;
    }
    bool waitForWrite(int reg, int value)
    {
        return waitFor([&] { return timesWritten(reg, value) > 0; });
    }

    /// Waits until whatever was asked for before has been done, what its answers made the window ask for included:
    /// one poll behind that, one that may have begun too early, one behind what they brought.
    bool waitForThreePolls()
    {
        return waitFor([this, first = m_polls] { return m_polls >= first + 3; });
    }

    DriveState m_state; ///< as polled last
    int m_polls = 0;
    /// Tests that look at help or plots switch it on; it costs each of them a second.
    HelpView::Engine m_webEngine = HelpView::Engine::Off;
    LoopbackWiki m_wiki;
    LoopbackHttpServer m_updates;
    Answerer m_answers;
    std::unique_ptr<MW> m_window;
};

#endif
