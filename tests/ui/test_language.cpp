// The window in another language: nothing left out, nothing that cannot be translated, nothing cut off.
#include "windowfixture.h"

#include "disclaimer.h"
#include "language.h"
#include "translations.h"

#include <QLocale>
#include <QMetaProperty>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <gmock/gmock.h>

namespace {

/// What has to be the same in every language, in any order.
QStringList fixedParts(const QString &text)
{
    static const QRegularExpression part(
        "%\\d|%[A-Z_]{3,}|<[^>]+>|&(?=\\w)(?!\\w+;)|\\[[A-Z0-9]{2,5}\\]|\\[(Alt|Esc|F)[^\\]]*\\]");
    QStringList parts;
    for (auto match = part.globalMatch(text); match.hasNext();)
        parts << match.next().captured();
    parts.sort();
    return parts << QString(text.startsWith(' ') ? "begins with a blank" : "");
}

/// Puts marks around every text, and remembers those that the German translation does not have.
class Marks : public QTranslator
{
public:
    Marks() { EXPECT_TRUE(m_german.load("velbrin_de", builtInTranslations)); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment, int n) const override
    {
        const bool isToolkits = context[0] == 'Q' && qstrcmp(context, "QuickFileIcons") != 0;
        if (!isToolkits && qstrcmp(source, "") != 0 && m_german.translate(context, source, comment, n).isNull())
            notGerman << QLatin1String(context) + ": " + source;
        return QString(QChar(0x27e6)) + source + QChar(0x27e7);
    }
    mutable QSet<QString> notGerman;

private:
    QTranslator m_german;
};

/// Everything that somebody may read in a widget, or have read out.
QStringList textsIn(const QWidget *widget)
{
    static const QList<QByteArray> properties =
        QByteArray("text title windowTitle toolTip statusTip whatsThis accessibleName accessibleDescription "
                   "placeholderText suffix prefix specialValueText plainText")
            .split(' ');
    QStringList texts;
    for (const QByteArray &property : properties) {
        if (!qobject_cast<const QAbstractSpinBox *>(widget->parent()) || property != "text")
            texts << widget->property(property.constData()).toString();
    }
    for (const QAction *action : widget->actions())
        texts << action->text() << action->toolTip();
    const auto *combo = qobject_cast<const QComboBox *>(widget);
    const auto *view = qobject_cast<const QAbstractItemView *>(widget);
    const QAbstractItemModel *model = combo ? combo->model() : view ? view->model() : nullptr;
    for (int row = 0; model && row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column)
            texts << model->index(row, column).data().toString()
                  << model->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
}

/// Without marked texts and what is no word: markup, settings' names, keys, numbers and symbols of units.
QString unmarked(QString text)
{
    // What drive and port are called, file formats, and symbols that are the same everywhere.
    static const QRegularExpression allowed(
        "/dev/|\\b(Tarnwell|Devices|KETA|TORVA|Velbrin|COM1|tty\\w*|mm|ms|min|Hz|kHz|mH|VDC|PWM|"
        "CSV|Ctrl|Alt|Esc|Return)\\b|\\[\\w+\\]|\\b[A-Z][A-Z0-9]{1,4}\\b|&\\w+;|https?://\\S+");
    static const QRegularExpression innermost(QString("%1[^%1%2]*%2").arg(QChar(0x27e6)).arg(QChar(0x27e7)));
    for (QString before; before != text;) {
        before = text;
        text.remove(innermost);
    }
    text.remove(QRegularExpression("<style.*</style>", QRegularExpression::DotMatchesEverythingOption));
    text.remove(QRegularExpression("<[^>]*>")).remove(allowed);
    static const QRegularExpression word("\\p{L}{2,}");
    return text.contains(word) ? text.simplified() : QString();
}

class Language : public WindowFixture
{
protected:
    void TearDown() override
    {
        WindowFixture::TearDown();
        speak("en");
    }
    QList<QWidget *> widgets() const
    {
        QList<QWidget *> all;
        for (QWidget *top : QApplication::topLevelWidgets())
            all << top << top->findChildren<QWidget *>();
        return all;
    }
    /// Labels and buttons that have less room than their text needs.
    QStringList cutOff() const
    {
        QStringList cut;
        for (const QWidget *widget : widgets()) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            if (!widget->isVisible() || widget->property("text").toString().isEmpty() ||
                !(label || qobject_cast<const QAbstractButton *>(widget)))
                continue;
            const bool wraps = label && label->wordWrap();
            const int wanted = wraps ? widget->heightForWidth(widget->width()) : widget->minimumSizeHint().width();
            if (wanted > (wraps ? widget->height() : widget->width()))
                cut << widget->objectName() + ": " + widget->property("text").toString();
        }
        return cut;
    }
    void collectUnmarked()
    {
        for (const QWidget *widget : widgets()) {
            for (const QString &text : textsIn(widget)) {
                if (m_seen.contains(text))
                    continue;
                m_seen << text;
                if (!unmarked(text).isEmpty())
                    m_unmarked << widget->objectName() + ": " + unmarked(text);
            }
        }
    }
    QSet<QString> m_seen;
    QSet<QString> m_unmarked;
};

} // namespace

TEST(Translation, EveryTextOfTheSourcesIsThereAndWhole)
{
    QTemporaryDir folder;
    QProcess lupdate;
    lupdate.start(VELBRIN_LUPDATE, {"-locations", "none", "@" VELBRIN_BINARY_DIR "/translations/sources.lst", "-ts",
                                    folder.filePath("fresh.ts")});
    ASSERT_TRUE(lupdate.waitForFinished(60000));
    const QString said = QString::fromUtf8(lupdate.readAllStandardError());
    EXPECT_FALSE(said.contains("without context") || said.contains("lacks Q_OBJECT")) << qPrintable(said);
    const Translations fresh = readTranslations(folder.filePath("fresh.ts")),
                       german = readTranslations(VELBRIN_SOURCE_DIR "/translations/velbrin_de.ts");
    EXPECT_GT(fresh.size(), 1000);
    for (auto text = fresh.cbegin(); text != fresh.cend(); ++text) {
        const auto [context, source] = text.key();
        const Translated there = german.value(text.key());
        EXPECT_FALSE(there.text.isEmpty() || there.unfinished)
            << qPrintable(context + ": " + source) << "\nhas no German; see translations/README.md";
        EXPECT_EQ(fixedParts(source), fixedParts(there.text)) << qPrintable(context + ": " + source);
    }
}

TEST(Translation, IsChosenByWhatTheUserReadsAndDamagedOnesLeaveEnglish)
{
    EXPECT_EQ(languageFor({"de-AT", "de", "en-US"}), "de");
    EXPECT_EQ(languageFor({"fr-FR", "en-US", "de"}), "en");
    EXPECT_EQ(languageFor({"C"}), "en");
    QTemporaryDir folder;
    QFile whole(":/translations/velbrin_de.qm");
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    for (const QByteArray &damaged : {QByteArray(), bytes.left(bytes.size() / 2), QByteArray("no translation")}) {
        QFile file(folder.filePath("velbrin_de.qm"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(damaged) == damaged.size());
        file.close();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("\"de\" is missing or damaged"));
        speak("de", folder.path());
        EXPECT_EQ(shownLanguage(), "en");
        EXPECT_EQ(Disclaimer::tr("I Agree"), "I Agree");
    }
    speak("de");
    EXPECT_EQ(shownLanguage(), "de");
    EXPECT_EQ(Disclaimer::tr("I Agree"), "Ich stimme zu");
    speak("en");
}

TEST_F(Language, NoTextOfTheWindowIsBeyondTranslation)
{
    Marks marks;
    QApplication::installTranslator(&marks);
    openConnectedWindow();
    for (int page = 0; page < control<QListWidget>("pageSelector")->count(); ++page) {
        goTo(page);
        collectUnmarked();
    }
    kvp()->setValue(400);
    click("stripEnable");
    ASSERT_TRUE(waitForThreePolls());
    collectUnmarked();
    bus().set(DriveAddress, underVoltage, 6000); // the drive trips by itself, at 48 V
    ASSERT_TRUE(waitFor([this] { return m_state.faultRegister != 0; }));
    ASSERT_TRUE(waitForThreePolls());
    collectUnmarked();
    control<QLineEdit>("findText")->setText("KVP");
    click("disable_drive");
    ASSERT_TRUE(waitForThreePolls());
    collectUnmarked();
    EXPECT_THAT(QStringList(m_unmarked.values()), testing::IsEmpty());
    EXPECT_THAT(QStringList(marks.notGerman.values()), testing::IsEmpty());
    m_window.reset();
    QApplication::removeTranslator(&marks);
}

TEST_F(Language, GermanFitsIntoTheWindow)
{
    static const QRegularExpression accelerator("&(\\w)(?!\\w*;)");
    speak("de");
    openConnectedWindow();
    for (const QSize size : {QSize(1300, 730), QSize(1024, 700)}) {
        m_window->resize(size);
        for (int page = 0; page < control<QListWidget>("pageSelector")->count(); ++page) {
            goTo(page);
            QStringList cut, letters;
            EXPECT_TRUE(waitFor([&] { return (cut = cutOff()).isEmpty(); }, 2000))
                << page << size.width() << qPrintable(cut.join("; "));
            for (const QWidget *widget : widgets()) {
                const auto match = accelerator.match(widget->property("text").toString());
                if (widget->isVisible() && match.hasMatch() && !qobject_cast<const QAbstractSpinBox *>(widget))
                    letters << match.captured(1).toLower();
            }
            EXPECT_EQ(letters.removeDuplicates(), 0) << page;
        }
    }
}
