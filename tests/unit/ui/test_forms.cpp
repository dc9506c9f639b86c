// The forms against the parameter catalogue: what a slip in Designer would break without a compiler's word.
#include "bitfields.h"
#include "catalogue.h"
#include "formreader.h"
#include "longtext.h"
#include "pagetable.h"
#include "printqt.h"
#include "visibility.h"

#include <QDoubleSpinBox>
#include <QFile>
#include <QIcon>
#include <QSet>
#include <gtest/gtest.h>

namespace {

/// The forms that end up in one window: the shell and the pages, and the dialog that holds parameters.
const QMap<QString, Form> &windowForms()
{
    static const QMap<QString, Form> forms = [] {
        QMap<QString, Form> all;
        QStringList files = formsFolder().entryList({"*page.ui"});
        files << "mw.ui"
              << "overrideparams.ui";
        for (const QString &file : qAsConst(files))
            all.insert(file, readForm(file));
        return all;
    }();
    return forms;
}

const Widget *findWidget(const QString &name)
{
    for (const Form &form : windowForms())
        if (form.widgets.contains(name))
            return &*form.widgets.find(name);
    return nullptr;
}

bool isEditable(const QString &kind)
{
    return kind == QLatin1String("WholeNumberBox") || kind == QLatin1String("DecimalBox") ||
           kind == QLatin1String("QComboBox") || kind == QLatin1String("QCheckBox");
}

} // namespace

TEST(Forms, EveryParameterThatCanBeEditedHasItsControl)
{
    const QSet<QString> withoutControl{"HWTYPE", "UID", "PIF"};
    const Parameters catalogue = driveParameterCatalogue();
    for (int i = 0; i < catalogue.getParamCount(); ++i) {
        const SingleParam p = catalogue.getParam(i);
        EXPECT_TRUE(p.group.isEmpty() || findWidget(p.group)) << qPrintable(p.group);
        const auto &bitField = bitFieldControls(p.name);
        for (const BitFieldControl &part : bitField) {
            const Widget *control = findWidget(QString::fromLatin1(part.name));
            ASSERT_TRUE(control) << part.name;
            EXPECT_EQ(control->kind, part.choices == 2 ? "QCheckBox" : "QComboBox") << part.name;
            EXPECT_EQ(control->choices.size(), part.choices == 2 ? 0 : part.choices) << part.name;
        }
        if (!bitField.isEmpty() || withoutControl.contains(p.name))
            continue;
        const Widget *control = findWidget(p.name);
        ASSERT_TRUE(control) << qPrintable(p.name);
        EXPECT_EQ(control->kind == QLatin1String("QLabel"), p.readonly) << qPrintable(p.name);
        EXPECT_TRUE(p.readonly || (isEditable(control->kind) && control->kind != QLatin1String("QCheckBox")))
            << qPrintable(p.name);
    }
}

TEST(Forms, EveryRawValueSurvivesItsControl)
{
    const Parameters catalogue = driveParameterCatalogue();
    int tried = 0;
    for (int i = 0; i < catalogue.getParamCount(); ++i) {
        const SingleParam p = catalogue.getParam(i);
        const Widget *control = findWidget(p.name);
        // The toolkit's own boxes read numbers by the desktop's rules.
        EXPECT_FALSE(control && control->kind.endsWith(QLatin1String("SpinBox"))) << qPrintable(p.name);
        if (!control ||
            (control->kind != QLatin1String("WholeNumberBox") && control->kind != QLatin1String("DecimalBox")))
            continue;
        QDoubleSpinBox box;
        box.setDecimals(control->kind == QLatin1String("WholeNumberBox") ? 0 : control->properties["decimals"].toInt());
        box.setRange(-1e9, 1e9);
        for (int raw = -3000; raw <= 3000; ++raw) {
            box.setValue(p.convertToGUIScale(raw));
            ASSERT_EQ(p.convertToDeviceScale(box.value()), raw) << qPrintable(p.name);
        }
        ++tried;
    }
    EXPECT_GT(tried, 40);
}

TEST(Forms, EveryInputExplainsItselfAndIsReachedByTheTabKey)
{
    for (auto form = windowForms().begin(); form != windowForms().end(); ++form)
        for (auto widget = form->widgets.begin(); widget != form->widgets.end(); ++widget) {
            if (!isEditable(widget->kind))
                continue;
            EXPECT_TRUE(form->tabStops.contains(widget.key()) || widget.key() == QLatin1String("stimuluspresets"))
                << qPrintable(widget.key());
            // Channels are named by their check box; every other input needs a sentence.
            EXPECT_TRUE(!widget->properties["toolTip"].isEmpty() ||
                        widget.key().startsWith(QLatin1String("scope"), Qt::CaseInsensitive) ||
                        widget.key() == QLatin1String("stimuluspresets"))
                << qPrintable(widget.key());
        }
}

TEST(Forms, CaptionsNameTheirControlAndBelongToIt)
{
    int captions = 0;
    for (const Form &form : windowForms())
        for (auto widget = form.widgets.begin(); widget != form.widgets.end(); ++widget) {
            const QString buddy = widget->properties.value("buddy");
            const QString text = widget->properties.value("text");
            EXPECT_TRUE(buddy.isEmpty() || form.widgets.contains(buddy)) << qPrintable(widget.key());
            if (!text.startsWith('[') || widget->kind == QLatin1String("QCheckBox"))
                continue;
            ++captions;
            EXPECT_FALSE(buddy.isEmpty()) << qPrintable(text);
            EXPECT_EQ(widget->properties["toolTip"], form.widgets[buddy].properties["toolTip"]) << qPrintable(text);
            EXPECT_TRUE(text.startsWith('[' + buddy + ']') || buddy.startsWith(QLatin1String("stimulus")))
                << qPrintable(text);
            EXPECT_EQ(QString(text).remove("&&").count('&'), 0) << "swallowed ampersand: " << qPrintable(text);
        }
    EXPECT_GT(captions, 50);
}

TEST(Forms, EveryObjectOfAVisibilityRuleIsThere)
{
    for (const ObjectVisibility &object : visibilityOf(VisibilityInputs()))
        EXPECT_TRUE(findWidget(object.objectName)) << qPrintable(object.objectName);
}

TEST(Pages, FormPictureAndHelpOfEachRowAreThereAndOnlyPagesWithSettingsApply)
{
    Q_INIT_RESOURCE(graphics); // the pictures stand in a static library
    const Parameters catalogue = driveParameterCatalogue();
    for (const PageInfo &page : pageTable()) {
        const QString form = QString(page.form).toLower() + ".ui";
        ASSERT_TRUE(windowForms().contains(form)) << page.form;
        EXPECT_FALSE(QIcon(QString::fromLatin1(page.icon)).pixmap(64, 64).isNull()) << page.icon;
        EXPECT_TRUE(QFile::exists(QString(VELBRIN_SOURCE_DIR) + page.helpFile)) << page.helpFile;
        bool hasSettings = false;
        for (int i = 0; i < catalogue.getParamCount(); ++i)
            hasSettings |= isEditable(windowForms()[form].widgets.value(catalogue.getParam(i).name).kind);
        EXPECT_EQ(page.hasSettings, hasSettings) << page.name;
    }
}

TEST(LongText, IsAsHighAsALabelAlsoWhenTextOrFontHaveChanged)
{
    LongText longText;
    QLabel label;
    const auto expectSame = [&](const QString &text, int points) {
        for (QLabel *each : {&label, static_cast<QLabel *>(&longText)}) {
            QFont font = each->font();
            font.setPointSize(points);
            each->setFont(font);
            each->setWordWrap(true);
            each->setText(text);
        }
        for (int width : {150, 400, 150})
            EXPECT_EQ(longText.heightForWidth(width), label.heightForWidth(width)) << width << ' ' << points;
    };
    expectSame("<p>one of its <b>lines</b></p>", 10);
    expectSame(QString("<p>one of its <b>lines</b></p>").repeated(9), 10);
    expectSame(QString("<p>one of its <b>lines</b></p>").repeated(9), 18);
}
