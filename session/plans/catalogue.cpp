#include "catalogue.h"

#include "sessionregisters.h"

namespace {

struct CatalogueRow
{
    const char *name;
    int addr;
    double scaling; // several look uneven (TRA2, FOC, CAO, ...): they are what the drive counts in
    double offset;  // the drive counts its control modes from 1
    bool readonly;
    bool auxFlag;
    const char *devices;
    const char *group; // object name of the container hidden where the model lacks the parameter
};

constexpr char allModels[] = "Torva,Keta,Keta Pro";
constexpr char ketaModels[] = "Keta,Keta Pro";

// clang-format off: one parameter a line
constexpr CatalogueRow catalogue[] = {
    // name, register, scaling, offset, read-only, aux flag, devices, group
    {"TCFWVER", 6014, 1, 0, true, true, allModels, ""},
    {"FWVER", 6010, 1, 0, true, true, "Torva", "IOFWVERGROUP"},
    {"HWTYPE", 6020, 1, 0, true, true, allModels, ""},
    {"HWSERIAL", 6002, 1, 0, true, true, allModels, ""},
    {"BUILDREVISION", 6016, 1, 0, true, true, ketaModels, "BUILDREVGROUP"},
    {"CEI", 573, 1, 0, false, true, ketaModels, "ELMODE"},
    {"UID", 6003, 1, 0, true, true, ketaModels, ""},
    {"ZBO", 14, 1, 0, false, true, ketaModels, ""},
    {"TRF1", 424, 1, 0, false, true, "Keta Pro", ""},
    {"TRF2", 426, 1, 0, false, true, "Keta Pro", ""},
    {"TRA1", 425, 1000, 0, false, true, "Keta Pro", ""},
    {"TRA2", 427, 10.24, 0, false, true, "Keta Pro", ""},
    {"FBR", 565, 1, 0, false, true, allModels, ""},
    {"FBD", 493, 1, 0, false, true, allModels, ""},
    {"FB2D", 494, 1, 0, false, true, allModels, ""},
    {"TBW", 490, 1, 0, false, true, allModels, ""},
    {"KVP", 202, 1, 0, false, true, allModels, ""},
    {"KVI", 200, 1, 0, false, true, allModels, ""},
    {"KPP", 201, 1, 0, false, true, allModels, ""},
    {"VFF", 220, 1, 0, false, true, allModels, ""},
    {"AFF", 221, 1, 0, false, true, allModels, ""},
    {"PFF", 222, 10.24, 0, false, true, allModels, ""},
    {"CM", 559, 1, -1, false, true, allModels, ""},
    {"MT", 558, 1, 0, false, true, allModels, ""},
    {"AD", 230, 1, 0, false, true, allModels, ""},
    {"FLAGS", 567, 1, 0, false, false, allModels, ""},
    {"MMC", 411, 1000, 0, false, true, allModels, ""},
    {"MCC", 410, 1000, 0, false, true, allModels, ""},
    {"FOC", 421, 50.0 / 3.0, 0, false, true, allModels, ""},
    {"FOV", 569, 100, 0, false, true, allModels, ""},
    {"FUV", 570, 100, 0, false, true, allModels, ""},
    {"FPT", 555, 1, 0, false, true, allModels, ""},
    {"FVT", 556, 1, 0, false, true, allModels, ""},
    {"FEV", 496, 1, 0, false, true, allModels, ""},
    {"FMO", 568, 1, 0, false, true, allModels, ""},
    {"LSF", 498, 1, 0, false, true, allModels, ""},
    {"AXS", 491, 100000, 0, false, true, allModels, ""},
    {"AXT", 492, 1, 0, false, true, allModels, ""},
    {"FFT", 495, 2500, 0, false, true, allModels, ""},
    {"CRI", 562, 1, 0, false, true, allModels, ""},
    {"DIV", 561, 1, 0, false, true, allModels, ""},
    {"PIF", 6055, 1, 0, true, false, allModels, ""},
    {"MUL", 560, 1, 0, false, true, allModels, ""},
    {"CAL", 800, 1, 0, false, true, allModels, ""},
    {"CSD", 801, 1, 0, false, true, allModels, ""},
    {"CVL", 802, 1, 0, false, true, allModels, ""},
    {"CRV", 557, 1, 0, false, true, allModels, ""},
    {"MR", 405, 1000, 0, false, true, allModels, ""},
    {"ML", 406, 1000, 0, false, true, allModels, ""},
    {"MTC", 430, 1, 0, false, true, allModels, ""},
    {"MPC", 566, 0.5, 0, false, true, allModels, ""},
    {"MMS", 572, 1, 0, false, true, allModels, ""},
    {"CAO", 563, 163.84, 0, false, true, allModels, ""},
    {"HOMING", 806, 1, 0, false, true, allModels, ""},
    {"HMV", 804, 1, 0, false, true, allModels, ""},
    {"HMA", 803, 1, 0, false, true, allModels, ""},
    {"HMH", 808, 1, 0, false, true, allModels, ""},
    {"HMT", 415, 1000, 0, false, true, allModels, ""},
    {"HHL", 835, 1, 0, false, true, allModels, ""},
    {"HLL", 836, 1, 0, false, true, allModels, ""},
    {"HMF", 823, 1, 0, false, true, allModels, ""},
    {"overrideAddr1", 8120, 1, 0, false, true, allModels, ""},
    {"overrideAddr2", 8121, 1, 0, false, true, allModels, ""},
    {"overrideAddr3", 8122, 1, 0, false, true, allModels, ""},
    {"overrideVal1", 8125, 1, 0, false, true, allModels, ""},
    {"overrideVal2", 8126, 1, 0, false, true, allModels, ""},
    {"overrideVal3", 8127, 1, 0, false, true, allModels, ""},
    {"BED", 911, 1000, 0, false, true, allModels, ""},
    {"BER", 910, 1000, 0, false, true, allModels, ""},
    {"BDD", 912, 1, 0, false, true, allModels, ""},
};
// clang-format on

} // namespace

Parameters driveParameterCatalogue()
{
    Parameters list;
    for (const CatalogueRow &row : catalogue) {
        SingleParam p;
        p.name = QString::fromLatin1(row.name);
        p.addr = row.addr;
        p.scaling = row.scaling;
        p.offset = row.offset;
        p.readonly = row.readonly;
        p.auxFlag = row.auxFlag;
        p.devices = QString::fromLatin1(row.devices);
        p.group = QString::fromLatin1(row.group);
        list.addParameter(p);
    }
    return list;
}

bool isCommandToDrive(int address)
{
    return reg::isCommandRegister(static_cast<qint16>(address)); // as it goes on the line
}
