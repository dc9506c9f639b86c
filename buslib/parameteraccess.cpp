// Parameter reads and writes as sequences of queue items.
#include "zetabus.h"

namespace {

// The drive answers every item with the register that the selector names, in the length that the length control says.
constexpr long returnLengthControl = 10; // 0: return values of 4 bytes
constexpr long returnSelector = 9;

constexpr int itemsPerRead = 4;
constexpr int itemsPerWrite = 2;

// Decodes `items` return values; only the last is of interest, the others answer the items around it.
ZbStatus lastReturnValue(ZbHandle handle, int items, long *value)
{
    ZbStatus status = 0;
    long decoded = 0;
    for (int i = 0; i < items; ++i)
        status |= zbGetQueuedZBCommandReturnValue(handle, &decoded);
    if (value)
        *value = decoded;
    return status;
}

} // namespace

ZbStatus zbAppendGetParamCommandToQueue(ZbHandle handle, std::int16_t parameterAddress)
{
    ZbStatus status = zbAppendZBCommandToQueue(handle, ZB_QUEUE_ADDRESS, returnLengthControl);
    status |= zbAppendZBCommandToQueue(handle, ZB_QUEUE_VALUE24, 0);
    status |= zbAppendZBCommandToQueue(handle, ZB_QUEUE_ADDRESS, returnSelector);
    status |= zbAppendZBCommandToQueue(handle, ZB_QUEUE_VALUE24, parameterAddress);
    return status;
}

ZbStatus zbGetQueuedGetParamReturnValue(ZbHandle handle, long *value)
{
    return lastReturnValue(handle, itemsPerRead, value);
}

ZbStatus zbAppendSetParamCommandToQueue(ZbHandle handle, std::int16_t parameterAddress, long value)
{
    ZbStatus status = zbAppendZBCommandToQueue(handle, ZB_QUEUE_ADDRESS, parameterAddress);
    status |= zbAppendZBCommandToQueue(handle, ZB_QUEUE_VALUE32, value);
    return status;
}

ZbStatus zbGetQueuedSetParamReturnValue(ZbHandle handle, long *value)
{
    return lastReturnValue(handle, itemsPerWrite, value);
}

ZbStatus zbRead1Parameter(ZbHandle handle, std::uint8_t address, std::int16_t paramA, long *valueA)
{
    ZbStatus status = zbAppendGetParamCommandToQueue(handle, paramA);
    status |= zbExecuteCommandQueue(handle, address);
    status |= zbGetQueuedGetParamReturnValue(handle, valueA);
    return status;
}

ZbStatus zbRead2Parameters(ZbHandle handle, std::uint8_t address, std::int16_t paramA, long *valueA,
                           std::int16_t paramB, long *valueB)
{
    ZbStatus status = zbAppendGetParamCommandToQueue(handle, paramA);
    status |= zbAppendGetParamCommandToQueue(handle, paramB);
    status |= zbExecuteCommandQueue(handle, address);
    status |= zbGetQueuedGetParamReturnValue(handle, valueA);
    status |= zbGetQueuedGetParamReturnValue(handle, valueB);
    return status;
}

ZbStatus zbRead3Parameters(ZbHandle handle, std::uint8_t address, std::int16_t paramA, long *valueA,
                           std::int16_t paramB, long *valueB, std::int16_t paramC, long *valueC)
{
    ZbStatus status = zbAppendGetParamCommandToQueue(handle, paramA);
    status |= zbAppendGetParamCommandToQueue(handle, paramB);
    status |= zbAppendGetParamCommandToQueue(handle, paramC);
    status |= zbExecuteCommandQueue(handle, address);
    status |= zbGetQueuedGetParamReturnValue(handle, valueA);
    status |= zbGetQueuedGetParamReturnValue(handle, valueB);
    status |= zbGetQueuedGetParamReturnValue(handle, valueC);
    return status;
}

ZbStatus zbSetParameter(ZbHandle handle, std::uint8_t address, std::int16_t parameter, long value)
{
    long result = 0; // the drive's return value for the write; the status is what counts
    ZbStatus status = zbAppendSetParamCommandToQueue(handle, parameter, value);
    status |= zbExecuteCommandQueue(handle, address);
    status |= zbGetQueuedSetParamReturnValue(handle, &result);
    return status;
}
