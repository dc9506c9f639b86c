/// \file
/// Finding out what answers.
#ifndef VELBRIN_SESSION_IDENTIFICATION_H
#define VELBRIN_SESSION_IDENTIFICATION_H

#include "operation.h"
#include "versioncheck.h"

#include <variant>

/// Why nobody could be identified, as HTML.
struct NoIdentity
{
    QString text;
};

class Identification : private Operation
{
public:
    explicit Identification(OperationContext &context) : Operation(context) {}

    /// Reads who answers at an address. Decides nothing: judging, refusing and restarting are the caller's. What would
    /// turn a drive away, restart it, or take it for a bootloader is read until two readings in a row agree, since
    /// noise must never restart a running drive.
    std::variant<DriveIdentity, NoIdentity> identify(int nodeAddress);

private:
    bool readIdentity(int nodeAddress, DriveIdentity &drive);
    bool readSameIdentityTwice(int nodeAddress, DriveIdentity &drive);
    NoIdentity noIdentity(int nodeAddress);
};

#endif
