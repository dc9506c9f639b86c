// Firmware-upgrade mode: what a bootloader does with words, and what survives a power cut.
#include "drivebench.h"

#include "firmwarewriter.h"

using namespace std::chrono_literals;
using namespace sim;

namespace {

class Upgrade : public DriveBench
{
protected:
    void SetUp() override { drive.powerUpInUpgradeMode(); }
    void program(std::initializer_list<int> words)
    {
        for (const int word : words)
            drive.write(reg::UpgradePipe, word);
        drive.write(reg::UpgradeCommand, Bootloader::Program);
    }
    std::int32_t verify()
    {
        drive.write(reg::UpgradeCommand, Bootloader::Verify);
        return drive.read(reg::Faults);
    }
};

} // namespace

TEST_F(Upgrade, ShowsOnlyTheBootloadersRegisters)
{
    EXPECT_EQ(drive.address(), 255);
    EXPECT_EQ(drive.read(2), 0);
    EXPECT_EQ(drive.read(6010), 1260);
    EXPECT_EQ(drive.read(6011), 1260);
    EXPECT_EQ(drive.read(6020), 11000);
    EXPECT_EQ(drive.read(3), 25);
    EXPECT_EQ(drive.read(552), 0);
    for (const int normalOnly : {202, 553, 950, 2533, 5011, 6014, 6055}) {
        EXPECT_EQ(drive.read(normalOnly), 0) << normalOnly;
        EXPECT_EQ(errorsOfWriting(normalOnly, 1), ErrorUnknownRegister) << normalOnly;
    }
}

TEST_F(Upgrade, ProgrammedWordsAreKeptInOrderAndVerify)
{
    drive.write(reg::UpgradeCommand, Bootloader::Erase);
    program({1, 2, 0xFFFF});
    program({0xEEEE});
    EXPECT_EQ(drive.bootloader().programmedWords(), (std::vector<std::uint16_t>{1, 2, 0xFFFF, 0xEEEE}));
    EXPECT_EQ(verify(), 0);
}

TEST_F(Upgrade, UploadAnswersOneOutcomeAnItem)
{
    drive.write(reg::UpgradeCommand, Bootloader::Erase);
    drive.write(reg::ReturnControl, 3);
    EXPECT_EQ(ask({0x80, 0xC0, 0x40, 0x12, 0x34, 0x40, 0xEE, 0xEE, 0x80, 0xBF, 0x40, 0x00, 0x02}),
              (Bytes{0xC1, 0xC1, 0xC1, 0xC1, 0xC1}));
    EXPECT_EQ(drive.bootloader().programmedWords(), (std::vector<std::uint16_t>{0x1234, 0xEEEE}));
    EXPECT_EQ(ask({0x40, 0x00, 0x63}), (Bytes{0xC2})) << "191 := 99";
}

TEST_F(Upgrade, ProgrammingWithoutAnEraseOrOntoProtectedFlashFailsVerification)
{
    program({1});
    EXPECT_EQ(verify(), Bootloader::VerificationFailed);
    drive.write(reg::UpgradeCommand, Bootloader::Erase);
    program({1});
    drive.write(reg::UpgradeCommand, Bootloader::Protect);
    EXPECT_EQ(verify(), 0) << "an erase starts afresh, and protecting afterwards is fine";
    program({2});
    EXPECT_EQ(verify(), Bootloader::VerificationFailed);
    drive.write(reg::UpgradeCommand, Bootloader::Erase);
    program({3});
    EXPECT_EQ(verify(), 0) << "an erase lifts the protection";
}

TEST_F(Upgrade, StartsAtTheOneTimeAddressUntilRestarted)
{
    drive.write(reg::UpgradeCommand, Bootloader::Erase);
    EXPECT_EQ(errorsOfWriting(reg::UpgradeCommand, Bootloader::Start), ErrorValueNotAllowed) << "nothing to start yet";
    program({1});
    verify();
    drive.write(reg::UpgradeCommand, Bootloader::Start);
    EXPECT_FALSE(drive.isInUpgradeMode());
    EXPECT_EQ(drive.address(), 16);
    EXPECT_EQ(drive.read(6010), 1078);
    drive.write(reg::Command, 2);
    EXPECT_EQ(drive.address(), 5);
}

TEST_F(Upgrade, OldBootloadersNeitherVerifyNorProtect)
{
    drive.bootloader().setVersion(1209);
    drive.write(reg::UpgradeCommand, Bootloader::Erase);
    program({1});
    EXPECT_EQ(errorsOfWriting(reg::UpgradeCommand, Bootloader::Verify), ErrorValueNotAllowed);
    EXPECT_EQ(errorsOfWriting(reg::UpgradeCommand, Bootloader::Start), 0) << "starts what it was given";
    drive.powerUpInUpgradeMode();
    drive.bootloader().setVersion(1259);
    EXPECT_EQ(errorsOfWriting(reg::UpgradeCommand, Bootloader::Verify), 0);
    EXPECT_EQ(errorsOfWriting(reg::UpgradeCommand, Bootloader::Protect), ErrorValueNotAllowed);
}

TEST_F(Upgrade, CutOffUpgradeComesUpInUpgradeModeAndCanBeRescued)
{
    drive.write(reg::UpgradeCommand, Bootloader::Erase);
    program({1, 2});
    const Flash kept = drive.flash();
    VirtualDrive again(*findProfile("keta"));
    again.powerUp(kept);
    EXPECT_EQ(again.address(), 255);
    EXPECT_EQ(again.read(552), 0x120);
    again.write(reg::UpgradeCommand, Bootloader::Erase);
    EXPECT_EQ(again.read(552), 0);
    again.write(reg::UpgradePipe, 7);
    again.write(reg::UpgradeCommand, Bootloader::Program);
    again.write(reg::UpgradeCommand, Bootloader::Verify);
    again.powerUp(again.flash());
    EXPECT_EQ(again.address(), 5);
}

TEST_F(Upgrade, FactoryEraseResetsTheSettings)
{
    Flash flash = drive.flash();
    flash.settings[reg::VelocityP] = 1234;
    drive.powerUp(flash);
    drive.write(reg::Command, 64);
    drive.write(reg::UpgradeCommand, Bootloader::EraseAndResetSettings);
    EXPECT_EQ(drive.flash().settings.at(reg::VelocityP), 360);
}

TEST_F(Upgrade, OnlyTwoProcessorDrivesTakeACoreImage)
{
    EXPECT_EQ(errorsOfWriting(reg::UpgradeCommand, Bootloader::ProgramCore), ErrorValueNotAllowed);
    VirtualDrive torva(*findProfile("torva"));
    torva.powerUpInUpgradeMode();
    torva.write(reg::UpgradePipe, 0x0102);
    torva.write(reg::UpgradePipe, 0xF00D);
    EXPECT_EQ(torva.write(reg::UpgradeCommand, Bootloader::ProgramCore), Outcome::Done);
    EXPECT_EQ(torva.bootloader().coreWords(), (std::vector<std::uint16_t>{0x0102, 0xF00D}));
}

TEST(FirmwareWriter, WritesTheFormatByteForByte)
{
    EXPECT_EQ(firmwareFile(4000, {0x0201}, {0x0403, 0x0605}),
              (Bytes{'T', 'D', 'F', 'W', 0x2C, 0x01, 0xA0, 0x0F, 2, 0,    0,    0, 4,
                     0,   0,   0,   1,   2,    3,    4,    5,    6, 0x2C, 0x02, 0, 0}));
}
