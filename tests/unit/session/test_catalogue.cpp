#include "catalogue.h"
#include "printqt.h"

#include <QSet>
#include <gtest/gtest.h>

TEST(Catalogue, NamesEveryRecordAndRegisterOnceAndNeverWritesWhatIdentifiesTheDrive)
{
    const Parameters list = driveParameterCatalogue();
    QSet<QString> names;
    QSet<int> addresses;
    QStringList readOnly, withoutAux;
    for (int i = 0; i < list.getParamCount(); ++i) {
        const SingleParam p = list.getParam(i);
        names.insert(p.name);
        addresses.insert(p.addr);
        EXPECT_TRUE(p.value == 0.0 && p.min == 0.0 && p.max == 0.0) << p.name.toStdString();
        if (p.readonly)
            readOnly.append(p.name);
        if (!p.auxFlag)
            withoutAux.append(p.name);
    }
    EXPECT_EQ(names.size(), list.getParamCount());
    EXPECT_EQ(addresses.size(), list.getParamCount());
    EXPECT_EQ(readOnly.join(' '), "TCFWVER FWVER HWTYPE HWSERIAL BUILDREVISION UID PIF");
    EXPECT_EQ(withoutAux.join(' '), "FLAGS PIF");
}

TEST(Catalogue, ConvertsByTheUnevenScalings)
{
    const std::tuple<const char *, double, double> cases[] = {
        {"TRA1", 1500, 1.5}, {"TRA2", 1024, 100}, {"PFF", 1024, 100}, {"FOC", 50, 3},         {"CAO", 16384, 100},
        {"MPC", 100, 200},   {"AXS", 100000, 1},  {"FFT", 2500, 1},   {"CM", 1, 0},           {"CM", 3, 2},
        {"FOV", 6000, 60},   {"FUV", 1200, 12},   {"MMC", 5000, 5},   {"MCC", 2500, 2.5},     {"MR", 1200, 1.2},
        {"ML", 800, 0.8},    {"HMT", 1000, 1},    {"BED", 250, 0.25}, {"BER", 250, 0.25},     {"BDD", 7, 7},
        {"KVP", 300, 300},   {"CVL", 1000, 1000}, {"HOMING", 5, 5},   {"overrideVal3", 9, 9},
    };
    const Parameters list = driveParameterCatalogue();
    for (const auto &[name, deviceValue, displayValue] : cases) {
        const SingleParam p = list.getParam(QString::fromLatin1(name));
        EXPECT_NEAR(p.convertToGUIScale(deviceValue), displayValue, 1e-9) << name;
        EXPECT_EQ(p.convertToDeviceScale(displayValue), deviceValue) << name;
    }
}
