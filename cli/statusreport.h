/// \file
/// What "status" shows: the connection, the drive's identity, and its registers in words.
#ifndef STATUSREPORT_H
#define STATUSREPORT_H

#include "results.h"

class DriveClient;
class Parameters;
struct LiveState;

Results statusReport(const DriveClient &client, const Parameters &list, const LiveState &live);

#endif
