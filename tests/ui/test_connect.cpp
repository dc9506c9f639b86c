// From the port to the filled pages, and back to disconnected.
#include "windowfixture.h"

namespace {

using Connecting = WindowFixture;

class TwoFamilies : public WindowFixture
{
    sim::BusOptions busOptions() const override { return {{{"keta", 5}, {"torva", 7}}}; }
};

} // namespace

TEST_F(TwoFamilies, SearchThatFoundNobodySaysWhatToCheckAndTheNextListsBothDrivesAndOpensTheChosenOne)
{
    openWindow();
    m_answers.expect([](QWidget *dialog) {
        EXPECT_TRUE(dialog->findChild<QLabel *>("label")->text().contains("Check that"));
        EXPECT_FALSE(dialog->findChild<QListWidget *>("nodeList")->isVisible());
        for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
            if (button->isDefault())
                button->click();
        }
        return true;
    });
    QStringList rows;
    m_answers.chooseNode(1, &rows);
    offer({});
    EXPECT_EQ(button("connect_button")->text(), "Searching devices...");
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Connected"; }));
    EXPECT_EQ(rows, QStringList({"Tarnwell Devices KETA at bus address 5", "Tarnwell Devices TORVA at bus address 7"}));
    EXPECT_EQ(button("connect_button")->text(), "Connect to drive");
    ASSERT_TRUE(waitFor([this] { return label("HWMODEL")->text() == "Tarnwell Devices TORVA"; }));
    EXPECT_EQ(label("HWVER")->text(), "4000");
}

TEST_F(Connecting, FillsThePagesWithTheDrivesValuesAndLimits)
{
    bus().set(DriveAddress, KVP, 1234);
    bus().set(DriveAddress, feedbackDevice, 9); // the program knows fewer
    openConnectedWindow();
    EXPECT_EQ(label("HWMODEL")->text(), "Tarnwell Devices KETA");
    EXPECT_EQ(label("HWVER")->text(), "11000");
    EXPECT_EQ(label("TCFWVER")->text(), "1078");
    EXPECT_EQ(kvp()->value(), 1234);
    EXPECT_EQ(kvp()->maximum(), 32767);
    EXPECT_EQ(control<QDoubleSpinBox>("FOV")->value(), 58.0);
    EXPECT_EQ(control<QComboBox>("CM")->currentText(), "Position control");
    EXPECT_EQ(label("CVLrvel")->text(), "= 50 revolutions/s");
    EXPECT_EQ(control<QComboBox>("ScopeSampleRate")->itemText(0), "20000 Hz");
    for (const char *name : {"apply_button", "disconnect_button", "setAbs1", "ScopeCaptureNow", "start_homing"})
        EXPECT_TRUE(button(name)->isEnabled()) << name;
    EXPECT_FALSE(button("connect_button")->isEnabled());
    EXPECT_FALSE(control<QComboBox>("communicationInterface")->isEnabled());
    EXPECT_TRUE(waitForPending(false));
    EXPECT_EQ(control<QComboBox>("FBD")->currentText(), "Value 9");
    click("apply_button");
    EXPECT_TRUE(waitForWrite(feedbackDevice, 9)) << "as it is";
    ASSERT_TRUE(waitForMessage()); // the drive refuses it
    closeMessage();
    EXPECT_EQ(bus().read(DriveAddress, feedbackDevice), 9);

    control<QCheckBox>("stimulusEnabled")->setChecked(true);
    EXPECT_FALSE(button("setAbs1")->isEnabled());
    m_answers.press("Discard changes");
    press(Qt::Key_D, Qt::AltModifier);
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Disconnected"; }));
    for (const char *name : {"HWMODEL", "HWVER", "HWSERIAL", "TCFWVER", "FWVER", "BUILDREVISION"})
        EXPECT_EQ(label(name)->text(), "") << name;
    EXPECT_FALSE(control<QCheckBox>("stimulusEnabled")->isChecked());
    EXPECT_FALSE(button("setAbs1")->isEnabled());
    EXPECT_TRUE(button("connect_button")->isEnabled());
}

TEST_F(TwoFamilies, NoRowOfTheNodeListIsChosenButASingleOrTheLastDrives)
{
    openWindow();
    const NodeType keta{5, false, 11000, false};
    const NodeType torva{7, false, 4000, false};
    const NodeType damaged{9, false, 0, true};
    const QList<NodeType> both{keta, torva};
    // A Return that was meant for another box arrives in the list; then what is left open is cancelled.
    const auto pressReturn = [this](const QList<NodeType> &nodes, bool opens) {
        m_answers.expect([opens](QWidget *dialog) {
            QTest::qWait(10);
            QTest::keyClick(dialog->findChild<QListWidget *>("nodeList"), Qt::Key_Return);
            EXPECT_EQ(dialog->isVisible(), !opens);
            dialog->close();
            return true;
        });
        offer(nodes);
    };
    pressReturn(both, false);
    pressReturn({damaged}, false);
    EXPECT_TRUE(bus().received().empty());
    m_answers.expect([](QWidget *dialog) {
        auto *nodes = dialog->findChild<QListWidget *>("nodeList");
        QTest::qWait(10);
        QTest::keyClick(nodes, Qt::Key_Down); // the first row, not the second
        EXPECT_EQ(nodes->currentRow(), 0);
        QTest::keyClick(nodes, Qt::Key_Down);
        QTest::keyClick(nodes, Qt::Key_Return);
        EXPECT_FALSE(dialog->isVisible());
        return true;
    });
    offer(both);
    ASSERT_TRUE(waitFor([this] { return label("HWMODEL")->text() == "Tarnwell Devices TORVA"; }));
    disconnectFromDrive();
    for (const QList<NodeType> &nodes : {QList<NodeType>{keta, torva, damaged}, QList<NodeType>{torva}}) {
        pressReturn(nodes, true);
        ASSERT_TRUE(waitFor([this] { return label("HWMODEL")->text() == "Tarnwell Devices TORVA"; }));
        disconnectFromDrive();
    }
}

TEST_F(Connecting, ATypedPortIsNotCompletedAndOneThatCannotBeOpenedGivesTheButtonItsTextBackAndOneMessage)
{
    openWindow();
    auto *ports = control<QComboBox>("communicationInterface");
    ports->addItem("/dev/ttyS10"); // begins like it
    ports->setEditText("");
    bringToFront();
    QTest::keyClicks(ports, "/dev/ttyS1");
    EXPECT_EQ(ports->currentText(), "/dev/ttyS1");
    click("refreshPorts");
    EXPECT_EQ(ports->currentText(), "/dev/ttyS1");

    ports->setEditText("COM9");
    click("connect_button");
    ASSERT_TRUE(waitFor([this] { return connectionText() == "Connect failed"; }));
    EXPECT_TRUE(waitFor([this] { return button("connect_button")->text() == "Connect to drive"; }));
    ASSERT_TRUE(waitForMessage());
    EXPECT_TRUE(shownMessage().startsWith("Unable to connect."));
}

TEST_F(TwoFamilies, ModelDecidesWhatIsShownAndWhatCanBeEdited)
{
    const auto expectModel = [this](bool keta) {
        EXPECT_EQ(control<QSpinBox>("ZBO")->isEnabled(), keta);
        EXPECT_EQ(control<QSpinBox>("ZBO")->toolTip().contains("not on this model"), !keta);
        for (const char *name : {"BUILDREVGROUP", "restartToDFUMode", "measureRLbutton"})
            EXPECT_EQ(control<QWidget>(name)->isHidden(), !keta) << name;
        EXPECT_EQ(control<QWidget>("IOFWVERGROUP")->isHidden(), keta);
    };
    openWindow();
    connectToDrive(7, 4000);
    expectModel(false);
    EXPECT_TRUE(control<QWidget>("ELMODE")->isHidden());
    EXPECT_EQ(control<QComboBox>("ScopeSampleRate")->itemText(0), "17500 Hz");
    control<QDoubleSpinBox>("FUV")->setValue(69.9);
    EXPECT_FALSE(label("FUVwarning")->isHidden());
    EXPECT_TRUE(label("FUVwarning")->text().contains("70 VDC"));
    EXPECT_TRUE(waitForPending(true));

    m_answers.press("Continue without applying");
    disconnectFromDrive();
    EXPECT_TRUE(label("FUVwarning")->isHidden());
    connectToDrive();
    expectModel(true);
    click("showAdvancedSettings");
    EXPECT_FALSE(control<QSpinBox>("VFF")->isHidden());
    EXPECT_TRUE(control<QWidget>("torqueCompensationGroup")->isHidden()); // only a Pro compensates cogging
}

TEST_F(Connecting, ANewerListTakesTheOlderOnesPlaceAndCancellingItLeavesEverythingAsItWas)
{
    openWindow();
    const NodeType older{3, false, 11000, false}, newer{DriveAddress, false, 11000, false};
    m_answers.expect([&](QWidget *) { // while the older one is open
        return QMetaObject::invokeMethod(m_window.get(), "availableBusNodesListReceived", Qt::QueuedConnection,
                                         Q_ARG(QList<NodeType>, {newer}));
    });
    m_answers.expect([&](QWidget *dialog) {
        const auto *nodes = dialog->findChild<QListWidget *>("nodeList");
        EXPECT_EQ(nodes->count(), 1);
        EXPECT_EQ(nodes->item(0)->text(), "Tarnwell Devices KETA at bus address 5");
        dialog->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Cancel)->click();
        return true;
    });
    button("connect_button")->setText("Searching devices...");
    offer({older});
    ASSERT_TRUE(waitFor([this] { return m_answers.isDone(); }));
    EXPECT_EQ(button("connect_button")->text(), "Connect to drive");
    QTest::qWait(100);
    EXPECT_TRUE(bus().received().empty());
    EXPECT_EQ(connectionText(), "Not connected");
}
