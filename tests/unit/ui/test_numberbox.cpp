// Number fields: what is typed is what they hold, or what they held before; never a third number.
#include "numberbox.h"
#include "printqt.h"

#include <QLineEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace {

/// The boxes, each with a value of before, on desktops that write the decimal point differently.
class NumberFields : public testing::TestWithParam<QLocale::Language>
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(GetParam()));
        m_window = std::make_unique<QWidget>();
        current = new DecimalBox(m_window.get());
        current->setDecimals(3);
        current->setRange(0, 35);
        current->setSuffix(" A");
        current->setValue(13);
        gain = new WholeNumberBox(m_window.get());
        gain->setRange(0, 32767);
        gain->setValue(360);
        threshold = new DecimalBox(m_window.get());
        threshold->setRange(10, 75);
        threshold->setValue(58);
        target = new WholeNumberBox(m_window.get());
        target->setRange(-1000, 1000);
        target->setSuffix(" cnt/cycle");
        target->setValue(7);
        m_window->show();
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }
    void TearDown() override { QLocale::setDefault(QLocale::c()); }

    /// Types over what stands in the box and leaves it; returns what the user is told.
    QString type(QAbstractSpinBox *box, const QString &text)
    {
        QSignalSpy refused(NumberField::of(box), &NumberField::refused);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
        typed = box->text();
        marked = box->property("refusedText").toBool();
        box->clearFocus();
        QCoreApplication::processEvents();
        return refused.isEmpty() ? QString() : refused.last().first().toString();
    }

    DecimalBox *current = nullptr;
    DecimalBox *threshold = nullptr;
    WholeNumberBox *gain = nullptr;
    WholeNumberBox *target = nullptr;
    QString typed;
    bool marked = false;

private:
    std::unique_ptr<QWidget> m_window;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Desktops, NumberFields, testing::Values(QLocale::English, QLocale::German));

TEST_P(NumberFields, CommaAndPointAreBothTheDecimalPoint)
{
    const std::pair<const char *, double> cases[] = {
        {"1.5", 1.5}, {"1,5", 1.5}, {"1.000", 1},         {",25", 0.25}, {" 2,5", 2.5},
        {"12A", 12},  {"3,", 3},    {"0012.50000", 12.5}, {"35", 35},    {"+0,001", 0.001}};
    for (const auto &[text, value] : cases) {
        current->setValue(13);
        EXPECT_EQ(type(current, text), "") << text;
        EXPECT_EQ(current->value(), value) << text;
        EXPECT_FALSE(marked) << text;
    }
    EXPECT_EQ(current->text(), "0.001 A");
    EXPECT_EQ(readTypedNumber(QString(QChar(0x2212)) + "12", 0).value, -12); // pasted from a data sheet
    gain->setValue(30000);
    EXPECT_EQ(gain->text(), "30000"); // no group separators
}

TEST_P(NumberFields, WhatCannotBeTakenStaysAsTypedIsMarkedAndSaidOnLeaving)
{
    struct Case
    {
        QAbstractSpinBox *box;
        const char *text;
        QString told;
    };
    const Case cases[] = {
        {current, "40", "40 A is beyond the limit of 35 A; it stays at 13 A"},
        {current, "35.001", "35.001 A is beyond the limit of 35 A; it stays at 13 A"},
        {current, "-5", "-5 A is beyond the limit of 0 A; it stays at 13 A"},
        {current, "1.2345", "1.2345 has more than 3 decimals; it stays at 13 A"},
        {current, "1.000,5", "\"1.000,5\" is not a number; it stays at 13 A"},
        {current, "1e1", "\"1e1\" is not a number; it stays at 13 A"},
        {current, "500m", "\"500m\" is not a number; it stays at 13 A"},
        {gain, "40000", "40000 is beyond the limit of 32767; it stays at 360"},
        {gain, "12.7", "12.7 is not a whole number; it stays at 360"},
        {gain, "12,7", "12,7 is not a whole number; it stays at 360"},
        {gain, "2.500", "2.500 is not a whole number; it stays at 360"},
        {gain, "-5", "-5 is beyond the limit of 0; it stays at 360"},
        {gain, "99999999999999999999", "99999999999999999999 is beyond the limit of 32767; it stays at 360"},
        {target, "-1001", "-1001 cnt/cycle is beyond the limit of -1000 cnt/cycle; it stays at 7 cnt/cycle"},
    };
    for (const Case &c : cases) {
        const QString before = c.box->text();
        EXPECT_EQ(type(c.box, c.text), c.told) << c.text;
        EXPECT_TRUE(typed.startsWith(c.text)) << qPrintable(typed);
        EXPECT_TRUE(marked) << c.text;
        EXPECT_EQ(c.box->text(), before);
        EXPECT_FALSE(c.box->property("refusedText").toBool());
        EXPECT_NE(NumberField::of(c.box)->takeRefusal(), "");
        EXPECT_EQ(NumberField::of(c.box)->takeRefusal(), "");
    }
}

TEST_P(NumberFields, BeginningOfANumberIsNotMarkedAndAnEmptyFieldGetsItsValueBackSilently)
{
    EXPECT_EQ(type(threshold, "4"), "4 is beyond the limit of 10; it stays at 58");
    EXPECT_FALSE(marked); // it could have become 48
    EXPECT_EQ(type(target, "-"), "");
    EXPECT_FALSE(marked);
    EXPECT_EQ(target->value(), 7);
    target->setFocus();
    target->selectAll();
    QTest::keyClick(target, Qt::Key_Delete);
    target->clearFocus();
    EXPECT_EQ(target->text(), "7 cnt/cycle");
}

TEST_P(NumberFields, NumberBeingTypedIsNobodysValueUntilReturnOrAStep)
{
    QSignalSpy values(current, &QDoubleSpinBox::valueChanged);
    current->setFocus();
    current->selectAll();
    QTest::keyClicks(current, "4");
    EXPECT_EQ(current->value(), 13);
    EXPECT_TRUE(NumberField::of(current)->holdsNewNumber());
    QTest::keyClick(current, Qt::Key_Up);
    EXPECT_EQ(current->value(), 5);
    current->selectAll();
    QTest::keyClicks(current, "40");
    EXPECT_FALSE(NumberField::of(current)->holdsNewNumber());
    QTest::keyClick(current, Qt::Key_Up);
    EXPECT_EQ(current->value(), 5);
    current->selectAll();
    QTest::keyClicks(current, "6");
    QTest::keyClick(current, Qt::Key_Return);
    EXPECT_EQ(current->value(), 6);
    for (const auto &value : values)
        EXPECT_NE(value.first().toDouble(), 40.0);
}
