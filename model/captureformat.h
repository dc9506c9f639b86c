/// \file
/// Names of the block's members that come in rows: shared by its writer and its reader, nobody else's business.
#ifndef VELBRIN_MODEL_CAPTUREFORMAT_H
#define VELBRIN_MODEL_CAPTUREFORMAT_H

#include "capture.h"

namespace captureformat {

constexpr char name[] = "velbrin-capture";

struct IdentityField
{
    const char *name;
    int DriveIdentity::*field;
};

constexpr IdentityField identityFields[] = {
    {"type", &DriveIdentity::type},
    {"serial", &DriveIdentity::serial},
    {"address", &DriveIdentity::address},
    {"firmware", &DriveIdentity::firmware},
    {"ioFirmware", &DriveIdentity::ioFirmware},
    {"buildRevision", &DriveIdentity::buildRevision},
};

struct MotionKind
{
    const char *name;
    CaptureMotion::Kind kind;
};

constexpr MotionKind motionKinds[] = {
    {"none", CaptureMotion::Kind::None},
    {"step", CaptureMotion::Kind::Step},
    {"squareWave", CaptureMotion::Kind::SquareWave},
};

template <typename Value> struct NumberField
{
    const char *name;
    double Value::*field;
};

constexpr NumberField<CaptureMotion> motionFields[] = {
    {"from", &CaptureMotion::from},
    {"to", &CaptureMotion::to},
    {"fromTime", &CaptureMotion::fromTime},
    {"toTime", &CaptureMotion::toTime},
};

constexpr NumberField<SingleParam> settingFields[] = {
    {"value", &SingleParam::value},     {"min", &SingleParam::min},       {"max", &SingleParam::max},
    {"scaling", &SingleParam::scaling}, {"offset", &SingleParam::offset},
};

} // namespace captureformat

#endif
