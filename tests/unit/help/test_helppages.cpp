// The help pages of every language against what they explain: links, the catalogue, the window's controls, the drive's
// limits and panels.

#include "catalogue.h"
#include "driveprofile.h"
#include "helppages.h"
#include "printqt.h"
#include "statustexts.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

constexpr int shortestExplanation = 40; // characters

const char *const bitFieldNames[] = {"CEN", "CED", "FBI", "AXI", "CEP", "CIS",
                                     "FBH", "BAP", "HME", "HMS", "HMI", "HFO"};

/// What the lines in small print are made of.
struct Words
{
    const char *language, *to, *initial, *initialChoice, *bitValue;
} const languages[] = {{"en", " to ", "default ", "Default: ", " bit value "},
                       {"de", " bis ", "Vorgabe ", "Vorgabe: ", " Bitwert "}};
const Words *words = languages;

/// Once a language.
class HelpPages : public testing::TestWithParam<Words>
{
protected:
    HelpPages()
    {
        words = &GetParam();
        readIn(words->language);
    }
};

void PrintTo(const Words &printed, std::ostream *out)
{
    *out << printed.language;
}

/// A value as people write it: no exponent, no zeros at the end.
QString plain(double value)
{
    QString text = QString::number(value, 'f', 5);
    text.remove(QRegularExpression(QStringLiteral("\\.?0+$")));
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

struct Limits
{
    bool exists = false;
    QString range, initial;
};

/// As the virtual drive of this model has them.
Limits limitsOf(const SingleParam &p, const char *profile, const QString &unit)
{
    for (const sim::RegisterInfo &info : sim::registersOf(*sim::findProfile(profile))) {
        if (info.address == p.addr)
            return {true,
                    plain(p.convertToGUIScale(info.minimum)) + words->to + plain(p.convertToGUIScale(info.maximum)) +
                        unit,
                    words->initial + plain(p.convertToGUIScale(info.initial)) + unit};
    }
    return {};
}

QString expectedRange(const SingleParam &p, const QString &unit)
{
    const Limits keta = limitsOf(p, "keta-pro", unit);
    const Limits torva = limitsOf(p, "torva", unit);
    QStringList differences;
    if (torva.exists && torva.range != keta.range)
        differences << torva.range;
    if (torva.exists && torva.initial != keta.initial)
        differences << torva.initial;
    QString text = keta.range + ", " + keta.initial;
    if (!differences.isEmpty())
        text += ". Torva: " + differences.join(", ");
    return text + '.';
}

/// Every flag of a register has a definition with its name and bit.
void expectExplained(const QList<DriveFlag> &flags, int count, const QString &prefix)
{
    EXPECT_EQ(flags.size(), count);
    for (const DriveFlag &flag : flags) {
        const Definition definition = definitionOf(prefix + QString::number(flag.mask));
        EXPECT_EQ(definition.term, inLanguage("Connection", flag.label) + words->bitValue + QString::number(flag.mask));
        EXPECT_GE(definition.text.size(), shortestExplanation) << qPrintable(definition.term);
    }
}

} // namespace

INSTANTIATE_TEST_SUITE_P(In, HelpPages, testing::ValuesIn(languages),
                         [](const auto &info) { return std::string(info.param.language); });

TEST(HelpTranslations, HaveThePagesAnchorsLinksAndPicturesOfTheEnglish)
{
    readIn("de");
    const auto pages = helpPages();
    readIn("en");
    EXPECT_EQ(pages.keys(), helpPages().keys());
    for (auto page = pages.begin(); page != pages.end(); ++page) {
        const HelpPage english = helpPages().value(page.key());
        EXPECT_EQ(page->anchors, english.anchors) << qPrintable(page.key());
        QStringList links = page->references, englishLinks = english.references;
        links.replaceInStrings(QRegularExpression("^\\.\\./"), QString()); // pictures and style are shared
        links.sort(); // the order of words in a sentence is another
        englishLinks.sort();
        EXPECT_EQ(links, englishLinks) << qPrintable(page.key());
    }
}

TEST_P(HelpPages, EveryLinkPictureAndAnchorExists)
{
    int followed = 0;
    for (auto page = helpPages().begin(); page != helpPages().end(); ++page) {
        EXPECT_EQ(page->repeatedAnchors, QStringList()) << qPrintable(page.key());
        for (const QString &reference : page->references) {
            const QString file = reference.section('#', 0, 0);
            const QString anchor = reference.section('#', 1);
            const QString where = page.key() + " -> " + reference;
            EXPECT_FALSE(reference.contains(':')) << "leaves the help: " << qPrintable(where);
            if (!file.isEmpty()) {
                EXPECT_TRUE(QFileInfo(helpFolder() + file).isFile()) << qPrintable(where);
            }
            if (!anchor.isEmpty()) {
                EXPECT_TRUE(helpPages().value(file.isEmpty() ? page.key() : file).anchors.contains(anchor))
                    << qPrintable(where);
            }
            ++followed;
        }
    }
    EXPECT_GT(followed, 300);
}

TEST_P(HelpPages, AllAreReachedFromTheFirstAndLeadBackToIt)
{
    const QString start = QStringLiteral("Velbrin.htm");
    QStringList reached{start};
    for (int i = 0; i < reached.size(); ++i) {
        for (const QString &reference : helpPages().value(reached[i]).references) {
            const QString file = reference.section('#', 0, 0);
            if (file.endsWith(".htm") && !reached.contains(file))
                reached.append(file);
        }
    }
    for (auto page = helpPages().begin(); page != helpPages().end(); ++page) {
        EXPECT_TRUE(reached.contains(page.key())) << qPrintable(page.key());
        EXPECT_TRUE(page.key() == start || page->references.contains(start)) << qPrintable(page.key());
    }
}

TEST_P(HelpPages, TheMakersWikiPagesHaveACopy)
{
    for (const char *wikiPage : {"Using_SinCos_encoder", "Using_resolver_feedback_device", "Fault_location",
                                 "Device_connection_troubleshooting", "Firmware"})
        EXPECT_TRUE(helpPages().contains(QString(wikiPage) + ".htm")) << wikiPage;
}

TEST_P(HelpPages, EverySettingIsExplainedOnce)
{
    QStringList names;
    for (const char *name : bitFieldNames)
        names << name;
    const Parameters catalogue = driveParameterCatalogue();
    for (int i = 0; i < catalogue.getParamCount(); ++i)
        names << catalogue.getParam(i).name;
    for (const QString &name : names) {
        const Definition definition = definitionOf(name);
        EXPECT_GE(definition.text.size() - definition.range.size(), shortestExplanation) << qPrintable(name);
    }
}

TEST_P(HelpPages, ControlsAreNamedAsInTheWindowWithAllTheirChoices)
{
    ASSERT_GT(formControls().size(), 60);
    const QStringList index = helpPages().value("Parameter_index.htm").references;
    for (auto control = formControls().begin(); control != formControls().end(); ++control) {
        const Definition definition = definitionOf(control.key());
        EXPECT_EQ(definition.term, control->label);
        EXPECT_TRUE(index.contains(QString(definition.page).append('#') + control.key()))
            << "not in the index: " << qPrintable(control.key());
        for (const QString &choice : control->choices)
            EXPECT_TRUE(definition.range.contains(choice)) << qPrintable(control.key() + ": " + choice);
    }
}

TEST_P(HelpPages, RangesAndDefaultsAreThoseOfTheDrive)
{
    int compared = 0;
    const Parameters catalogue = driveParameterCatalogue();
    for (int i = 0; i < catalogue.getParamCount(); ++i) {
        const SingleParam p = catalogue.getParam(i);
        const FormControl control = formControls().value(p.name);
        const QString range = definitionOf(p.name).range;
        if (control.kind == QLatin1String("QComboBox")) {
            for (const sim::RegisterInfo &info : sim::registersOf(*sim::findProfile("keta-pro"))) {
                if (info.address == p.addr) {
                    const int index = static_cast<int>(p.convertToGUIScale(info.initial));
                    EXPECT_TRUE(range.endsWith(words->initialChoice + control.choices.value(index) + '.'))
                        << qPrintable(p.name + ": " + range);
                }
            }
        } else if (control.kind == QLatin1String("WholeNumberBox") || control.kind == QLatin1String("DecimalBox")) {
            EXPECT_EQ(range, expectedRange(p, control.unit.isEmpty() ? QString() : ' ' + control.unit))
                << qPrintable(p.name);
            ++compared;
        }
    }
    EXPECT_GT(compared, 35);
}

TEST_P(HelpPages, EveryFaultAndStatusBitAndInputIsExplained)
{
    expectExplained(faultFlagsOf(DriveState()), 15, "fault-");
    expectExplained(statusFlagsOf(DriveState()), 13, "status-");
    QStringList terms;
    for (const Definition &definition : helpPages().value("Testing tab.htm").definitions)
        terms << definition.term.split(", ");
    for (const DriveFlag &flag : inputFlagsOf(DriveState()))
        EXPECT_TRUE(terms.contains(inLanguage("Connection", flag.label))) << qPrintable(flag.label);
}
