/// \file
/// One item of a request to the drive, as plain data: what the plans of the poll, the scope and the stream are made of.
#ifndef VELBRIN_SESSION_QUEUEITEM_H
#define VELBRIN_SESSION_QUEUEITEM_H

/// Kinds have the numbers that the bus library's queue takes. Every item yields exactly one return value.
struct QueueItem
{
    enum Kind {
        Value32 = 0, ///< 4 bytes: write a signed 30-bit value to the selected register
        Value24 = 1, ///< 3 bytes: write a signed 22-bit value to the selected register
        Address = 2, ///< 2 bytes: select the register that the following values go to
    };

    Kind kind = Value24;
    int value = 0;
};

constexpr bool operator==(const QueueItem &a, const QueueItem &b)
{
    return a.kind == b.kind && a.value == b.value;
}

#endif
