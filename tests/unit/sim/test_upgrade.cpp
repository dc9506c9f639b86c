// Firmware-upgrade mode: what a bootloader does with words, and what survives a power cut.
#include "drivebench.h"

#include "firmwarewriter.h"

#include <map>
#include <sstream>

using namespace std::chrono_literals;
using namespace sim;

namespace {

class Upgrade : public DriveBench
{
protected:
    void SetUp() override { drive.powerUpInUpgradeMode(); }
};

} // namespace

TEST_F(Upgrade, ShowsOnlyTheBootloadersRegisters)
{
    EXPECT_EQ(drive.address(), 255);
    for (const auto &[address, value] : {std::pair(2, 0), std::pair(3, 25), std::pair(552, 0), std::pair(6010, 1260),
                                         std::pair(6011, 1260), std::pair(6020, 11000)})
        EXPECT_EQ(drive.read(address), value) << address;
    for (const int normalOnly : {202, 553, 950, 2533, 5011, 6014, 6055}) {
        EXPECT_EQ(drive.read(normalOnly), 0) << normalOnly;
        EXPECT_EQ(errorsOfWriting(normalOnly, 1), ErrorUnknownRegister) << normalOnly;
    }
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

TEST_F(Upgrade, EachBootloaderTakesItsCommandsAndTellsFailedVerification)
{
    // Erase, word uploaded, Program, Core programmed, Verify, pRotect, Start; "-" behind a command: refused,
    // "!": taken, and verification failed.
    const std::map<char, int> commands = {{'E', Bootloader::Erase},       {'P', Bootloader::Program},
                                          {'C', Bootloader::ProgramCore}, {'V', Bootloader::Verify},
                                          {'R', Bootloader::Protect},     {'S', Bootloader::Start}};
    const struct
    {
        const char *what, *profile;
        int version;
        const char *steps;
    } rows[] = {
        {"a whole upgrade", "keta", 1260, "E w P V R S"},
        {"in two parts", "keta", 1260, "E w P w P V"},
        {"without an erase", "keta", 1260, "w P V!"},
        {"onto protected flash; an erase lifts that", "keta", 1260, "E w P R V w P V! E w P V"},
        {"nothing to start", "keta", 1260, "E S- V!"},
        {"cannot verify, starts what it was given", "keta", 1209, "E w P V- S"},
        {"cannot protect", "keta", 1259, "E w P V R-"},
        {"has no core", "keta", 1260, "w C-"},
        {"has one", "torva", 1260, "E w P w C V"},
    };
    for (const auto &row : rows) {
        VirtualDrive other(*findProfile(row.profile));
        other.powerUpInUpgradeMode();
        other.bootloader().setVersion(row.version);
        std::istringstream steps(row.steps);
        for (std::string step; steps >> step;) {
            const bool isTaken = step == "w" ? other.write(reg::UpgradePipe, 1) == Outcome::Done
                                             : other.write(reg::UpgradeCommand, commands.at(step[0])) == Outcome::Done;
            const bool isFailed = other.isInUpgradeMode() && other.read(reg::Faults) == Bootloader::VerificationFailed;
            EXPECT_EQ(isTaken, step.back() != '-') << row.what << ", " << step;
            EXPECT_EQ(isFailed, step.back() == '!') << row.what << ", " << step;
        }
    }
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

TEST(FirmwareWriter, WritesTheFormatByteForByte)
{
    EXPECT_EQ(firmwareFile(4000, {0x0201}, {0x0403, 0x0605}),
              (Bytes{'T', 'D', 'F', 'W', 0x2C, 0x01, 0xA0, 0x0F, 2, 0,    0,    0, 4,
                     0,   0,   0,   1,   2,    3,    4,    5,    6, 0x2C, 0x02, 0, 0}));
}
