/// \file
/// Names for the drive registers that the session itself uses, and for the codes written to them. The registers behind
/// the drive's settings stand in the parameter catalogue (catalogue.h).
#ifndef VELBRIN_SESSION_SESSIONREGISTERS_H
#define VELBRIN_SESSION_SESSIONREGISTERS_H

namespace reg {

// --- Bus: how items are answered ----------------------------------------------------------------------------------
constexpr int OperatingMode = 2;      ///< 0 while the drive runs its bootloader, otherwise not 0
constexpr int ProtocolVersion = 3;    ///< newest bus protocol that the drive speaks
constexpr int ProtocolCompatible = 4; ///< companion of ProtocolVersion, compared together with it
constexpr int BufferFree = 6;         ///< free bytes of the command buffer
constexpr int StreamPeriod = 8;       ///< time from one buffered setpoint to the next, 0.1 ms
constexpr int ReturnSelector = 9;     ///< register returned after every item
constexpr int ReturnLength = 10;      ///< length control: one of the Returns... codes
constexpr int ErrorBits = 13;         ///< what writes went wrong since it was last cleared; write 0 to clear
constexpr int BusWatchdog = 15;       ///< 0 switches the bus watchdog off

constexpr int ErrorCommandFailed = 1; ///< in ErrorBits

constexpr int MinimumFlag = 0x4000; ///< added to a register in the selector: its minimum instead of its value
constexpr int MaximumFlag = 0x8000; ///< added to a register in the selector: its maximum instead of its value

constexpr int Returns30Bits = 0;  ///< 4 bytes an item, signed
constexpr int Returns22Bits = 1;  ///< 3 bytes an item, signed
constexpr int Returns14Bits = 2;  ///< 2 bytes an item, signed
constexpr int ReturnsOutcome = 3; ///< 1 byte an item: 1 done, 2 refused
constexpr int OutcomeRefused = 2;

// --- Identity -----------------------------------------------------------------------------------------------------
constexpr int SerialNumber = 6002;
constexpr int UniqueId = 6003;
constexpr int FirmwareVersion = 6010; ///< the bootloader's version in firmware-upgrade mode
constexpr int FirmwareCompatible = 6011;
constexpr int CoreVersion = 6014;
constexpr int CoreCompatible = 6015;
constexpr int DeviceType = 6020; ///< type id, e.g. 11000

// --- Live values --------------------------------------------------------------------------------------------------
constexpr int FaultRegister = 552; ///< writing 0 clears it
constexpr int StatusRegister = 553;
constexpr int BusVoltage = 950;         ///< 0.01 V
constexpr int OutputCurrent = 951;      ///< 1/560 A
constexpr int DeviceTemperature = 952;  ///< degrees Celsius
constexpr int ActualCurrentLimit = 953; ///< 1/1000 A
constexpr int LastLimitReason = 954;    ///< code, see limitReasonText
constexpr int VelocityFeedback = 955;   ///< counts per control cycle, signed
constexpr int PositionFeedback = 956;   ///< counts
constexpr int SetpointInUse = 957;      ///< setpoint units
constexpr int AnalogIn1 = 958;          ///< 1/1000 V, like the three that follow
constexpr int AnalogIn2 = 959;
constexpr int AnalogEncoderA = 960;
constexpr int AnalogEncoderB = 961;
constexpr int DigitalInputs = 962;
constexpr int ControlInputs = 963;
constexpr int FaultLocation1 = 964;
constexpr int FaultLocation2 = 965;
constexpr int DebugValue1 = 971; ///< debug values 2 to 6 follow

// Faults of a drive in firmware-upgrade mode.
constexpr int FaultFlashCheckFailed = 0x80;    ///< verification of the flash failed
constexpr int FaultUpgradeInterrupted = 0x120; ///< the whole register after an upgrade was cut off

// --- Commands -----------------------------------------------------------------------------------------------------
constexpr int IncrementalSetpoint = 550;
constexpr int AbsoluteSetpoint = 551;
constexpr int SystemCommand = 554; ///< takes one of the Command... codes
constexpr int SoftEnable = 2533;   ///< 1 enables, 0 disables
constexpr int ForceEnable = 2534;  ///< takes ForceEnableKey
constexpr int Homing = 7532;       ///< 1 starts, 0 aborts

constexpr int CommandSaveToFlash = 1;
constexpr int CommandRestart = 2;
constexpr int CommandStopStream = 4;
constexpr int CommandRestartToDFU = 64;
constexpr int CommandMeasureMotor = 256;
constexpr int CommandSetZero = 512;
constexpr int ForceEnableKey = 7;

constexpr int MeasureResult = 8104; ///< outcome of CommandMeasureMotor
constexpr int MeasureSucceeded = 800;

// --- Recorder (scope) ---------------------------------------------------------------------------------------------
constexpr int ScopeState = 5011; ///< write a trigger code to arm; 0 when idle or done
constexpr int ScopeDivider = 5012;
constexpr int ScopeSources = 5020;     ///< mask of CaptureData::sourceBit
constexpr int ScopeReadAddress = 5333; ///< word of the recorder's memory that ScopeWord shows
constexpr int ScopeWord = 5334;

// --- Firmware upgrade ---------------------------------------------------------------------------------------------
constexpr int FlashCommand = 191; ///< takes one of the Flash... codes
constexpr int FlashPipe = 192;    ///< every write is one 16-bit word of the image

constexpr int FlashErase = 1;
constexpr int FlashProgramChunk = 2;
constexpr int FlashVerify = 3;
constexpr int FlashStartFirmware = 4;
constexpr int FlashProgramCore = 5;
constexpr int FlashWriteProtect = 7;
constexpr int FlashEraseAndResetSettings = 11;

/// A write to one of these moves, stops, restarts or erases a drive, or clears the fault that keeps an enabled one from
/// moving: they are no settings.
constexpr int commandRegisters[] = {IncrementalSetpoint, AbsoluteSetpoint, SystemCommand,
                                    SoftEnable,          ForceEnable,      Homing,
                                    FlashCommand,        FlashPipe,        FaultRegister};

constexpr bool isCommandRegister(int address)
{
    for (int command : commandRegisters) {
        if (command == address)
            return true;
    }
    return false;
}

} // namespace reg

#endif
