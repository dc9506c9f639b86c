// What a screen reader and a keyboard find in the window.
#include "windowfixture.h"

#include "panekeys.h"

#include <set>

namespace {

class Accessibility : public WindowFixture
{
protected:
    /// "role objectName" of every control under `widget` that can be seen and has no name; buttons without an action
    /// for "press", too.
    static QStringList nameless(QAccessibleInterface *node)
    {
        QStringList found;
        const QWidget *widget = qobject_cast<QWidget *>(node->object());
        if (node->state().invisible || (widget && widget->objectName() == "helpView")) // the engine speaks for itself
            return found;
        static const std::set<QAccessible::Role> controls = {
            QAccessible::PushButton, QAccessible::CheckBox, QAccessible::ComboBox, QAccessible::SpinBox,
            QAccessible::List,       QAccessible::Table,    QAccessible::Button,   QAccessible::EditableText,
            QAccessible::ButtonMenu, QAccessible::Slider,   QAccessible::Grouping, QAccessible::ListItem};
        const bool inner = widget && widget->objectName().startsWith("qt_"); // parts of a control that has the name
        if (!inner && controls.count(node->role()) && node->text(QAccessible::Name).trimmed().isEmpty())
            found << QString("role %1 %2").arg(node->role()).arg(widget ? widget->objectName() : QString());
        const bool isButton = node->role() == QAccessible::PushButton && widget && widget->isEnabled();
        if (isButton && !(node->actionInterface() &&
                          node->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction())))
            found << "no action " + widget->objectName();
        for (int i = 0; i < node->childCount(); ++i) {
            if (QAccessibleInterface *child = node->child(i); child && node->role() != QAccessible::SpinBox)
                found << nameless(child);
        }
        return found;
    }
    QStringList namelessIn(QWidget *widget) { return nameless(QAccessible::queryAccessibleInterface(widget)); }
    static QString nameOf(QWidget *widget)
    {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    }
};

} // namespace

TEST_F(Accessibility, EveryControlOfEveryPageHasANameAndAnAction)
{
    QAccessible::setActive(true);
    openWindow();
    for (const bool connected : {false, true}) {
        if (connected)
            connectToDrive();
        for (int page = 0; page < control<QListWidget>("pageSelector")->count(); ++page) {
            goTo(page);
            EXPECT_EQ(namelessIn(m_window.get()), QStringList()) << page << connected;
        }
    }
    // Drive controls, greyed as they were before the first connection and after.
    EXPECT_EQ(nameOf(button("enable_drive")), "Soft enable drive");
    EXPECT_EQ(nameOf(button("setAbs2")), "Set Abs 2");
    // The panels are read out themselves; what they are is a description.
    goTo(testingPage);
    ASSERT_TRUE(waitFor([this] { return label("statusRegister")->text().contains("Voltages good"); }))
        << qPrintable(label("statusRegister")->text());
    EXPECT_TRUE(nameOf(label("statusRegister")).contains("Voltages good"));
    for (const char *dialog : {"overrideParams", "settingFinder", "firmwareUpgradeDlg"}) {
        auto *widget = control<QDialog>(dialog);
        widget->setModal(false);
        widget->show();
        EXPECT_EQ(namelessIn(widget), QStringList()) << dialog;
        widget->close();
    }
}

TEST_F(Accessibility, NoPageOfASmallWindowIsScrolledSidewaysAndTabLeavesEachOnce)
{
    openConnectedWindow();
    m_window->resize(1024, 700);
    control<QComboBox>("MT")->setCurrentIndex(0);
    control<QSpinBox>("CVL")->setValue(20000); // the marks of long values
    goTo(3);
    ASSERT_TRUE(waitFor([this] { return control<QToolButton>("MTdrive")->isVisible(); }));
    m_answers.press("No");
    auto *pages = control<QStackedWidget>("pages");
    for (int page = 0; page < pages->count(); ++page) {
        goTo(page);
        QWidget *shown = pages->currentWidget();
        const auto *area = shown->findChild<QScrollArea *>();
        ASSERT_TRUE(area) << "what stands on page " << page << " has to stand in a scroll area";
        for (const bool withHelp : {false, true}) {
            if (control<QWidget>("helpPane")->isVisible() != withHelp)
                press(Qt::Key_F1);
            QApplication::processEvents();
            EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << page << withHelp;
        }
        int entered = 0;
        for (QWidget *stop = m_window.get(), *before = stop;; before = stop) {
            do
                stop = stop->nextInFocusChain();
            while (stop != m_window.get() && !(stop->isVisible() && stop->focusPolicy() & Qt::TabFocus));
            entered += shown->isAncestorOf(stop) && !shown->isAncestorOf(before);
            if (stop == m_window.get())
                break;
        }
        EXPECT_LE(entered, 1) << page;
    }
}

TEST_F(Accessibility, KeysWalkPanesAndPagesAndFoldTheHelpAway)
{
    openWindow();
    press(Qt::Key_5, Qt::ControlModifier);
    EXPECT_EQ(control<QListWidget>("pageSelector")->currentRow(), 4);
    kvp()->setFocus();
    QStringList walked;
    for (int presses = 0; presses < 12 && (presses == 0 || !kvp()->hasFocus()); ++presses) {
        press(Qt::Key_F6);
        for (const char *pane : {"pageSelector", "pages", "helpPane", "statusStrip"}) {
            const auto *widget = control<QWidget>(pane);
            if (widget == QApplication::focusWidget() || widget->isAncestorOf(QApplication::focusWidget()))
                walked << pane;
        }
    }
    EXPECT_TRUE(kvp()->hasFocus()) << "back where the keyboard was";
    EXPECT_TRUE(walked.contains("pageSelector") && walked.contains("pages"));
    for (const bool shown : {true, false, true}) {
        EXPECT_EQ(control<QWidget>("helpPane")->isVisible(), shown);
        press(Qt::Key_F1);
    }
}
