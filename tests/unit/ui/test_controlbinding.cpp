#include "controlbinding.h"
#include "numberbox.h"
#include "printqt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>
#include <gtest/gtest.h>
#include <limits>

namespace {

SingleParam param(const char *name, double value, double min, double max, double scaling = 1.0)
{
    SingleParam p;
    p.name = QString::fromLatin1(name);
    p.value = value;
    p.min = min;
    p.max = max;
    p.scaling = scaling;
    p.readonly = false;
    return p;
}

/// A window with one control of each kind, and what binds it.
class Binding : public testing::Test
{
protected:
    template <typename Control> Control *add(const char *name)
    {
        auto *control = new Control(&root);
        control->setObjectName(QString::fromLatin1(name));
        return control;
    }

    QWidget root;
    ControlBinding binding{&root};
    EditedSettings settings{Parameters()};

    /// Fills and keeps what the control made of it, as the window does.
    bool fill(const SingleParam &p, bool fromDrive = false)
    {
        Parameters list;
        list.addParameter(p);
        settings.accept(list, EditedSettings::Source::Drive);
        const ControlBinding::Filled filled = binding.fill(p, fromDrive);
        if (filled.shown)
            settings.showAs(p.name, *filled.shown);
        return filled.found;
    }
    /// What the control stands for now.
    double collect(const SingleParam &p)
    {
        if (const auto held = binding.read(p))
            settings.edit(0, *held);
        return settings.value(p.name);
    }
};

} // namespace

TEST_F(Binding, UneditedControlGivesBackExactlyWhatCameInWhateverItsDecimals)
{
    auto *box = add<QDoubleSpinBox>("FOC");
    box->setDecimals(2);
    const SingleParam p = param("FOC", 801 / (50.0 / 3), 0.6, 57.6, 50.0 / 3); // 48.06, but not to the last bit
    fill(p);
    EXPECT_EQ(collect(p), p.value);
    EXPECT_NE(box->value(), p.value);
    box->setValue(48.07);
    EXPECT_EQ(collect(p), 48.07);
    box->setValue(48.06); // undone by hand: the held value again, not the rounded one
    EXPECT_EQ(collect(p), p.value);
}

TEST_F(Binding, ValuesAreHeldWithinTheDrivesLimitsWhereTheseAreKnown)
{
    auto *box = add<QDoubleSpinBox>("MMC");
    box->setRange(1, 1000000);
    for (const auto &[value, max, held] : {std::array<double, 3>{2000000, 0, 2000000}, {40, 35, 35}, {-1, 35, 0}}) {
        const SingleParam p = param("MMC", value, 0, max);
        fill(p);
        EXPECT_EQ(collect(p), held);
        EXPECT_EQ(box->minimum(), max > 0 ? 0 : 1) << "the control's own";
    }
}

TEST_F(Binding, NumbersThatNoControlCanShowChangeNothing)
{
    auto *box = add<QSpinBox>("KVP");
    box->setRange(0, 1000);
    box->setValue(17);
    const SingleParam notANumber = param("KVP", std::numeric_limits<double>::quiet_NaN(), 0, 1000);
    EXPECT_TRUE(fill(notANumber));
    EXPECT_EQ(collect(notANumber), 17);
    fill(param("KVP", 1e300, -1e300, 1e300));
    EXPECT_EQ(box->value(), std::numeric_limits<int>::max());
}

TEST_F(Binding, ComboBoxShowsTheItemOfTheValueOrOneThatGoesAgain)
{
    auto *combo = add<QComboBox>("CRI");
    combo->addItems({"Serial only", "Pulse and direction"});
    SingleParam p = param("CRI", 7, 0, 9);
    for (double value : {7.0, 9.0, -2.0}) {
        p.value = value;
        fill(p);
        EXPECT_EQ(combo->currentText(), QStringLiteral("Value %1").arg(value));
        EXPECT_EQ(combo->count(), 3);
        EXPECT_EQ(collect(p), value);
    }
    combo->setCurrentIndex(0);
    EXPECT_EQ(collect(p), 0);
    p.value = 1;
    fill(p);
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->currentIndex(), 1);
    EXPECT_EQ(collect(p), 1);

    p.value = -1; // what the model lacks shows no choice
    fill(p);
    binding.setSupported(p.name, false);
    EXPECT_EQ(combo->currentText(), "");
    EXPECT_EQ(collect(p), -1);
    p.value = 1;
    fill(p);
    binding.setSupported(p.name, true);
    EXPECT_EQ(combo->currentText(), "Pulse and direction");
    EXPECT_EQ(combo->count(), 2);
}

TEST_F(Binding, BitFieldFillsItsControlsAndIsPutTogetherFromThem)
{
    auto *software = add<QCheckBox>("CEN");
    auto *smoothing = add<QCheckBox>("CIS");
    auto *hall = add<QComboBox>("FBH");
    hall->addItems({"Off", "Enabled (non-inverted)", "Enabled (inverted)"});
    SingleParam flags = param("FLAGS", 0x6801, 0, 65535);
    EXPECT_TRUE(fill(flags));
    EXPECT_TRUE(software->isChecked());
    EXPECT_TRUE(smoothing->isChecked());
    EXPECT_EQ(hall->currentIndex(), 2);
    EXPECT_EQ(collect(flags), 0x6801);
    software->setChecked(false);
    hall->setCurrentIndex(1);
    EXPECT_EQ(collect(flags), 0x4800);
    flags.value = 0x2402; // bits that belong to no control are dropped
    fill(flags);
    EXPECT_EQ(collect(flags), 0);
}

TEST_F(Binding, LabelsAndReadOnlyParametersGiveTheHeldValueBack)
{
    auto *serial = add<QLabel>("HWSERIAL");
    add<QSpinBox>("LOCKED");
    SingleParam p = param("HWSERIAL", 240117, 0, 536870911);
    p.readonly = true;
    EXPECT_TRUE(fill(p));
    EXPECT_EQ(serial->text(), "240117");
    EXPECT_EQ(collect(p), 240117);
    SingleParam locked = param("LOCKED", 50, 0, 10);
    locked.readonly = true;
    fill(locked);
    EXPECT_EQ(collect(locked), 50);
    EXPECT_FALSE(fill(param("UID", 5, 0, 9)));
    EXPECT_FALSE(binding.read(param("UID", 5, 0, 9)));
}

TEST_F(Binding, ParameterThatTheModelLacksIsWithdrawnAndComesBack)
{
    auto *box = add<QSpinBox>("ZBO");
    box->setRange(0, 15);
    box->setToolTip("Added to the address.");
    auto *caption = add<QLabel>("ZBOl");
    caption->setBuddy(box);
    caption->setToolTip("Added to the address.");
    const SingleParam missing = param("ZBO", -1, 0, 0);
    for (int i = 0; i < 2; ++i) { // twice: the tool tip that is kept must not be our own
        fill(missing);
        binding.setSupported(missing.name, false);
        EXPECT_FALSE(box->isEnabled());
        EXPECT_FALSE(caption->isEnabled());
        EXPECT_EQ(box->toolTip(), "not on this model");
        EXPECT_EQ(caption->toolTip(), "not on this model");
        EXPECT_FALSE(box->text().contains('1')); // what it shows is no number
        EXPECT_EQ(collect(missing), -1);
    }
    const SingleParam present = param("ZBO", 3, 0, 15);
    fill(present);
    binding.setSupported(present.name, true);
    EXPECT_TRUE(box->isEnabled() && caption->isEnabled());
    EXPECT_EQ(box->toolTip(), "Added to the address.");
    EXPECT_EQ(caption->toolTip(), "Added to the address.");
    EXPECT_EQ(box->text(), "3");
    EXPECT_EQ(std::make_pair(box->minimum(), box->maximum()), std::make_pair(0, 15));
    EXPECT_EQ(collect(present), 3);
    box->setValue(4);
    EXPECT_EQ(collect(present), 4);
}

TEST_F(Binding, DrivesOwnLimitsStandInTheToolTip)
{
    auto *box = add<DecimalBox>("MCC");
    box->setSuffix(" A");
    box->setToolTip("Current that the motor stands.");
    fill(param("MCC", 10, 0, 35)); // from a file: nobody knows what a drive accepts
    EXPECT_EQ(box->toolTip(), "Current that the motor stands.");
    for (int i = 0; i < 2; ++i) {
        fill(param("MCC", 10, 0, 35), true);
        binding.setSupported("MCC", true);
        EXPECT_EQ(box->toolTip(), "Current that the motor stands.<p>This drive: 0 to 35 A</p>");
        fill(param("MCC", 10, 0, 0), true);
        binding.setSupported("MCC", false);
        EXPECT_EQ(box->toolTip(), "not on this model");
    }
}

TEST(InfoLabels, IdentityThatWasNotReadSaysSo)
{
    for (const char *name : {"HWSERIAL", "TCFWVER", "FWVER", "BUILDREVISION"})
        for (double value : {0.0, -1.0})
            EXPECT_EQ(infoLabelText(QString::fromLatin1(name), value), "This info updated only after Connect") << name;
    EXPECT_EQ(infoLabelText(QStringLiteral("TCFWVER"), 1078), "1078");
    EXPECT_EQ(infoLabelText(QStringLiteral("BUILDREVISION"), 27576290), "1A4C7E2");
    EXPECT_EQ(infoLabelText(QStringLiteral("OTHER"), -3), "-3");
}
