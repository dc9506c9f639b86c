#include "busrecord.h"

namespace {

BusState buses[ZB_MAX_BUSES];

} // namespace

void resetReceiveSide(BusState &bus)
{
    bus.previousReceiveState = ReceiveCommandId;
    bus.receiveState = ReceiveCommandId;
    bus.expectedPayloadSize = payloadSizeUnknown;
    bus.payloadIndex = 0;
    bus.receivedCommandId = 0;
    bus.receivedAddress = noAddress;
    bus.runningChecksum = 0;
    bus.receivedChecksum = noChecksum;
    bus.queueOverflow = 0;
    bus.queueWriteLength = 0;
    bus.returnReadIndex = 0;
}

BusState *busRecord(ZbHandle handle)
{
    return handle >= 0 && handle < ZB_MAX_BUSES ? &buses[handle] : nullptr;
}

BusState *openBus(ZbHandle handle)
{
    BusState *bus = busRecord(handle);
    return bus && bus->open ? bus : nullptr;
}

void zbBusesInit()
{
    for (BusState &bus : buses) {
        bus.open = 0;
        bus.packetComplete = 0;
        resetReceiveSide(bus);
    }
}
