// Messages: which may be suppressed, which never.
#include "errorwindow.h"

#include <QCheckBox>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>
#include <gtest/gtest.h>

namespace {

const Message lostLine{MessageKind::LineLost,
                       "Communication error flags: <br>* BusError<br><br>Disconnected. See troubleshooting"};
// The words of a message decide nothing.
const char notice[] = "Warning: not confirmed, did not take, Communication error";

class Messages : public testing::Test
{
protected:
    QString shown() const
    {
        return window.isVisible() ? window.findChild<QTextEdit *>()->toPlainText().section('\n', 0, 0) : QString();
    }
    QCheckBox *tick() const { return window.findChild<QCheckBox *>(); }

    ErrorWindow window{nullptr};
};

} // namespace

TEST_F(Messages, ComeOneAfterAnotherAndEqualOnesOnce)
{
    for (const char *text : {"one", "two", "one", "two", ""})
        window.note(text);
    EXPECT_EQ(shown(), "one");
    window.accept();
    EXPECT_EQ(shown(), "two");
    window.accept();
    EXPECT_EQ(shown(), "");
    window.note("one");
    EXPECT_EQ(shown(), "one");
}

TEST_F(Messages, UntickedOneStaysAwayAndTheNextIsTickedAgain)
{
    window.note(notice);
    EXPECT_FALSE(tick()->isHidden());
    tick()->setChecked(false);
    window.note("another");
    window.accept();
    EXPECT_EQ(shown(), "another");
    EXPECT_TRUE(tick()->isChecked());
    window.accept();
    window.note(notice);
    EXPECT_EQ(shown(), "");
    window.note("another");
    EXPECT_EQ(shown(), "another");
}

TEST_F(Messages, LostLineDoesNotWaitBehindOrdinaryOnesAndNothingComesAfterTheEnd)
{
    for (const char *text : {"one", notice})
        window.note(text);
    window.tell(lostLine);
    window.accept();
    EXPECT_EQ(shown(), "Communication error flags: ");
    window.endMessages();
    EXPECT_EQ(shown(), "");
    window.tell(lostLine);
    EXPECT_EQ(shown(), "");
}

TEST_F(Messages, KindDecidesWhatMayBeSuppressedAndTheRestGoesToTheStatusBar)
{
    const std::pair<MessageKind, bool> kinds[] = {
        {MessageKind::Note, true},        {MessageKind::FileWarning, true},      {MessageKind::ConnectFailed, false},
        {MessageKind::Identity, false},   {MessageKind::LineLost, false},        {MessageKind::Refused, false},
        {MessageKind::NotWritten, false}, {MessageKind::UnconfirmedStop, false}, {MessageKind::Undone, false},
        {MessageKind::FileFailed, false}};
    QSignalSpy lines(&window, &ErrorWindow::vitalMessage);
    for (const auto &[kind, may] : kinds) {
        const auto before = lines.size();
        const Message message{kind, QStringLiteral("overrideAddr1 was not written %1").arg(int(kind))};
        window.tell(message);
        EXPECT_EQ(tick()->isHidden(), !may) << int(kind);
        tick()->setChecked(false);
        window.accept();
        window.tell(message);
        EXPECT_EQ(window.isVisible(), !may) << int(kind);
        EXPECT_EQ(lines.size() - before, may ? 0 : 2) << int(kind);
        window.accept();
    }
    window.tell(lostLine);
    EXPECT_EQ(lines.last().first().toString(),
              "Communication error flags: * BusError Disconnected. See troubleshooting");
}

TEST_F(Messages, AddressesAreLinksThatCanBeFollowed)
{
    EXPECT_EQ(withLinks("See http://a.example/b?c=1&amp;d. <i>https://x</i> <a href=\"http://z\">http://y</a> a<b>c"),
              "See <a href=\"http://a.example/b?c=1&amp;d\">http://a.example/b?c=1&amp;d</a>. "
              "<i><a href=\"https://x\">https://x</a></i> <a href=\"http://z\">http://y</a> a<b>c");
    QSignalSpy followed(&window, &ErrorWindow::linkActivated);
    window.note("http://a.example/b for more");
    auto *text = window.findChild<QTextEdit *>();
    const QPoint onLink = text->cursorRect().center() + QPoint(20, 0);
    QTest::mouseClick(text->viewport(), Qt::LeftButton, {}, onLink);
    ASSERT_EQ(followed.size(), 1);
    EXPECT_EQ(followed.first().first().toUrl(), QUrl("http://a.example/b"));
    QTest::mouseClick(text->viewport(), Qt::LeftButton, {}, QPoint(text->viewport()->width() - 5, 5));
    EXPECT_EQ(followed.size(), 1);
}

TEST_F(Messages, OnlyAVitalOneComesBeforeAnOpenBoxIsClosed)
{
    QDialog box;
    box.setModal(true);
    box.show();
    window.note(notice);
    QTest::qWait(150);
    EXPECT_EQ(shown(), "");
    box.close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown() == notice; }));
    window.accept();
    box.show();
    window.tell(lostLine);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.isModal()); // or it could not be closed
    window.accept();
}
