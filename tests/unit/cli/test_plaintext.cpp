#include "plaintext.h"

#include "printqt.h"

#include <gtest/gtest.h>

TEST(PlainText, ReadsLikeTheRichText)
{
    const std::pair<const char *, const char *> cases[] = {
        {"", ""},
        {"nothing special", "nothing special"},
        {"one<br>two<br/>three<BR />four", "one\ntwo\nthree\nfour"},
        {"end<br><br>next paragraph<br>", "end\nnext paragraph"},
        {"<p>first</p><p align=\"center\">second</p>", "first\nsecond"},
        {"with <b>bold</b> and <i>italic</i><font style=\"color:#e00\"> !</font>", "with bold and italic !"},
        {"two\n lines of   source", "two lines of source"},
        {"48.0&nbsp;V &plusmn;3 &deg;C &lt;b&gt; &amp;nbsp; &#9679; &unknown;", "48.0 V ±3 °C <b> &nbsp; ● &unknown;"},
        {"no \x1b[2J and no &#7; reach a terminal", "no ?[2J and no ? reach a terminal"},
        {"what \u202Esraeppa&#8294; is what it is", "what ?sraeppa? is what it is"},
        {"from 3 < 4 to 5 > 4", "from 3 < 4 to 5 > 4"},
        {"See <a href=\"https://wiki.example/a\">https://wiki.example/a</a>.", "See https://wiki.example/a."},
        {"See <a href=\"https://wiki.example/a\">the page</a>.", "See the page (https://wiki.example/a)."},
        {"ID 3 <a href=https://wiki.example/f>?</a>", "ID 3 (https://wiki.example/f)"},
    };
    for (const auto &[html, text] : cases)
        EXPECT_EQ(plainText(QString::fromUtf8(html)), QString::fromUtf8(text));
}
