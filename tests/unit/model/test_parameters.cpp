#include "devicemodel.h"
#include "makerlinks.h"
#include "withvalues.h"

#include <gtest/gtest.h>

#include <QSettings>

#include <cmath>

TEST(SingleParam, RoundsHalvesAwayFromZero)
{
    const SingleParam plain;
    EXPECT_EQ(plain.convertToDeviceScale(2.5), 3);
    EXPECT_EQ(plain.convertToDeviceScale(-2.5), -3);
}

TEST(SingleParam, IsSupportedByModelsWhoseNameBeginsWithAPiece)
{
    SingleParam p;
    const auto fits = [&p](const char *devices, const char *model) {
        p.devices = QString::fromLatin1(devices);
        return p.supportedInDevice(QString::fromLatin1(model));
    };
    EXPECT_TRUE(fits("Keta", "KETA Pro"));
    EXPECT_TRUE(fits("Keta Pro", "KETA Pro HC"));
    EXPECT_FALSE(fits("Torva", "KETA Pro"));
    EXPECT_FALSE(fits("Keta Pro", "KETA HC"));
    EXPECT_TRUE(fits("Keta Pro,torva", "TORVA R"));
    EXPECT_FALSE(fits("Keta, Torva", "TORVA")) << "pieces are not trimmed";
    EXPECT_TRUE(fits("Keta,", "TORVA")) << "an empty piece fits every model";
}

TEST(SingleParam, CutsValuesOfAnySizeToAnInteger)
{
    EXPECT_EQ(truncateToInt32(-2.9), -2);
    EXPECT_EQ(truncateToInt32(1e300), 2147483647);
    EXPECT_EQ(truncateToInt32(-INFINITY), -2147483647 - 1);
    EXPECT_EQ(truncateToInt32(NAN), 0);
}

TEST(Parameters, AreFoundByExactNameAndFirstMatch)
{
    Parameters list;
    for (const char *name : {"KVP", "KVI", "KVP"})
        list.addParameter(list.getParamCount(), name, 1.0, 0.0, false, true, "Keta");
    EXPECT_EQ(list.getParamCount(), 3);
    EXPECT_EQ(list.getParam("KVP").addr, 0);
    EXPECT_EQ(list.getParam(2).addr, 2);
    EXPECT_EQ(list.getParam("kvp").name, "NULL");
}

TEST(Parameters, ReplacingTellsWhetherTheValueChanged)
{
    Parameters list = withValues({}, {{"KVP", 0}});
    const Parameters before = list;
    SingleParam p = list.getParam("KVP");
    p.group = "ELMODE";
    EXPECT_FALSE(list.replaceParam(p));
    EXPECT_EQ(list.getParam("KVP").group, "ELMODE");
    p.value = 3;
    EXPECT_TRUE(list.replaceParam(p));
    p.value = NAN;
    EXPECT_TRUE(list.replaceParam(p, 0));
    EXPECT_TRUE(list.replaceParam(p, 0)) << "not a number is never equal to itself";
    p.name = "unknown";
    EXPECT_FALSE(list.replaceParam(p));
    EXPECT_EQ(before.getParam("KVP").group, "") << "copies are independent";
}

TEST(Parameters, ListAsTableOfFourPairsToARow)
{
    const Parameters list = withValues({}, {{"HWSERIAL", 123456.9},
                                            {"UID", 48879.0},
                                            {"BUILDREVISION", -1.0},
                                            {"KVP", 1234567.0},
                                            {"FOC", 16.666666666666668}});
    EXPECT_EQ(list.getParamsHTMLList(), "<h2>Parameters</h2><table class=\"paramslist\">"
                                        "<tr><td>HWSERIAL</td><td>123456</td><td>UID</td><td>beef</td>"
                                        "<td>BUILDREVISION</td><td>ffffffff</td><td>KVP</td><td>1.23457e+06</td></tr>\n"
                                        "<tr><td>FOC</td><td>16.6667</td></tr>\n</table>");
    EXPECT_EQ(Parameters().getParamsHTMLList(), "<h2>Parameters</h2><table class=\"paramslist\"></table>");
}

TEST(DeviceModel, NamesEveryModelAndSubmodel)
{
    const std::pair<int, const char *> models[] = {
        {4099, "TORVA"},    {5000, "TORVA R"},      {6012, "TORVA S"},
        {11000, "KETA"},    {11001, "KETA Pro"},    {11002, "KETA Unknown submodel"},
        {11200, "KETA HC"}, {11211, "KETA Pro HC"}, {11400, "KETA Pro (ID 11400)"}};
    for (const auto &[type, name] : models) {
        EXPECT_EQ(deviceModelName(type, false), name);
        EXPECT_EQ(deviceModelName(type, true), QStringLiteral("Tarnwell Devices ") + name);
    }
    EXPECT_EQ(deviceModelName(11205, true), "Tarnwell Devices KETA Unknown HC submodel");
    EXPECT_EQ(deviceModelName(12345, true), "Unknown device type: 12345");
    EXPECT_EQ(deviceModelName(0, false), "Unknown device type: 0");
}

TEST(DeviceModel, FamilyDecidesCapabilitiesAndBaseFrequency)
{
    for (const int type : {11000, 11001, 11200, 11400, 4000, 5000, 6000}) {
        const bool keta = type >= 11000;
        for (int capability = 0; capability <= 5; ++capability)
            EXPECT_EQ(modelHasCapability(type, DeviceCapability(capability)), keta ? capability < 4 : capability == 4)
                << type;
        EXPECT_EQ(baseFrequencyOfModel(type, 1.0F), keta ? 20000.0F : 17500.0F);
    }
    EXPECT_FALSE(modelHasCapability(0, DeviceCapability::MeasureRL));
    EXPECT_EQ(baseFrequencyOfModel(9000, 123.0F), 123.0F);
    EXPECT_TRUE(isKetaProModel(11001) && isKetaProModel(11201) && isKetaProModel(11400));
    EXPECT_FALSE(isKetaProModel(11000) || isKetaProModel(11200) || isKetaProModel(4000));
}

TEST(MakerLinks, EnvironmentGoesBeforeSettingsGoBeforeDefaults)
{
    EXPECT_EQ(makerWikiPage("/wiki/Velbrin"), "https://wiki.tarnwell.example/wiki/Velbrin");
    EXPECT_EQ(makerUpdateServer(), "http://update.tarnwell.example");
    {
        QSettings settings("Tarnwell Devices", "Velbrin");
        settings.setValue("wikiBase", "http://intranet/");
    }
    EXPECT_EQ(makerWikiPage("/wiki/Velbrin"), "http://intranet/wiki/Velbrin");
    qputenv("VELBRIN_WIKI", "http://127.0.0.1:8080");
    EXPECT_EQ(makerWikiBase(), "http://127.0.0.1:8080");
    qunsetenv("VELBRIN_WIKI");
    QSettings("Tarnwell Devices", "Velbrin").remove("wikiBase");
    EXPECT_EQ(makerWikiBase(), "https://wiki.tarnwell.example");
}
