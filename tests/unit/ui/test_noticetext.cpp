#include "noticetext.h"
#include "printqt.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QErrorMessage>

TEST(NoticeText, KeepsPlainMarkupAndDropsTheRest)
{
    const std::pair<const char *, const char *> notices[] = {
        {"", ""},
        {"Version 2.0 & more", "Version 2.0 & more"},
        {"<b>Update</b> required<br/>now<BR />", "<b>Update</b> required<br>now<br>"},
        {"<p style=\"font-size:900pt\">a</p >< li >b", "<p>a</p><li>b"},
        {"<table><tr><td>a</td></tr></table>", "a"},
        {"see <a href=\"http://x\">here</a><img src=x width=100000>", "see here (http://x)"},
        {"<A title=a HREF='https://x.example/a?b=1&amp;c=2'>new</A>.", "new (https://x.example/a?b=1&amp;c=2)."},
        {"<a href=\"javascript:x()\">a</a><a href=\"http://x\" onclick=\"x\"><a href=http://y>b</a>", "ab (http://x)"},
        {"<ta<b>ble>", "ble>"},
        {"< table><\ttable></ table><!-- <b> -->", " -->"},
        {"a < b", "a &lt; b"},
        {"<<b", "&lt;&lt;b"},
        {"&lt;table&gt;", "&lt;table&gt;"},
    };
    for (const auto &[html, shown] : notices)
        EXPECT_EQ(noticeText(html), shown) << html;
}

TEST(NoticeText, IsLaidOutInAMomentWhateverTheServerSends)
{
    for (const char *piece : {"x", "<table><tr><td>a", "<img src=x width=100000>", "<ul><li>a",
                              "<a href=http://x>y</a>", "<a a ", "<h1><b>", "<", "</"}) {
        const QString notice = noticeText(QString(piece).repeated((1 << 20) / int(qstrlen(piece))));
        EXPECT_LE(notice.size(), 4 * 4000 + 1) << piece;
        QErrorMessage box;
        QElapsedTimer clock;
        clock.start();
        box.showMessage(notice);
        EXPECT_LT(clock.elapsed(), 2000) << piece;
    }
}
