/// \file
/// Register numbers that the virtual drive's own code refers to. Settings that only rest in the table have no name
/// here.
#ifndef VELBRIN_SIM_REGISTERS_H
#define VELBRIN_SIM_REGISTERS_H

namespace sim::reg {

// Bus and return control
constexpr int NormalMode = 2; ///< 1, or 0 in firmware-upgrade mode
constexpr int ProtocolVersion = 3;
constexpr int ProtocolCompanion = 4;
constexpr int BufferFree = 6;
constexpr int StreamPeriod = 8; ///< 0.1 ms
constexpr int ReturnSelector = 9;
constexpr int ReturnControl = 10;
constexpr int ErrorBits = 13;
constexpr int AddressOffset = 14;
constexpr int BusWatchdog = 15;
constexpr int UpgradeCommand = 191;
constexpr int UpgradePipe = 192;

// Identity
constexpr int SerialNumber = 6002;
constexpr int UniqueId = 6003;
constexpr int Firmware = 6010;
constexpr int FirmwareCompanion = 6011;
constexpr int CoreFirmware = 6014;
constexpr int CoreCompanion = 6015;
constexpr int BuildRevision = 6016;
constexpr int DeviceType = 6020;
constexpr int ControlRate = 6055;

// Settings: gains and control
constexpr int VelocityI = 200;
constexpr int VelocityP = 202;
constexpr int PositionP = 201;
constexpr int VelocityFeedForward = 220;
constexpr int AccelerationFeedForward = 221;
constexpr int PositionFeedForward = 222;
constexpr int TorqueBandwidth = 490;
constexpr int ControlMode = 559;
constexpr int Flags = 567;
constexpr int SetpointInput = 562;
constexpr int SetpointOffset = 563;
constexpr int Multiplier = 560;
constexpr int Divider = 561;
constexpr int InputLogic = 573;

// Settings: motor, feedback, limits
constexpr int MotorResistance = 405;
constexpr int MotorInductance = 406;
constexpr int ContinuousCurrent = 410;
constexpr int PeakCurrent = 411;
constexpr int HomingCurrent = 415;
constexpr int ThermalTime = 430;
constexpr int MotorType = 558;
constexpr int PolePairs = 566;
constexpr int FeedbackDevice = 493;
constexpr int VelocityFeedbackDevice = 494;
constexpr int FeedbackLines = 565;
constexpr int LimitSwitches = 498;
constexpr int VelocityLimit = 802;
constexpr int AccelerationLimit = 800;
constexpr int StopDeceleration = 801;
constexpr int RecoveryVelocity = 557;
constexpr int OverCurrentLimit = 421;
constexpr int OverSpeedLimit = 496;
constexpr int TrackingDelay = 495;
constexpr int PositionErrorLimit = 555;
constexpr int VelocityErrorLimit = 556;
constexpr int OverVoltageLimit = 569;
constexpr int UnderVoltageLimit = 570;
constexpr int BrakeReleaseDelay = 910;
constexpr int BrakeEngageDelay = 911;
constexpr int BrakeStopDelay = 912;
constexpr int Homing = 806;
constexpr int HomingVelocity = 804;
constexpr int HomingAcceleration = 803;
constexpr int HomingStopThreshold = 808;
constexpr int HomingOffset = 823;
constexpr int HighLimit = 835;
constexpr int LowLimit = 836;

// Commands and live values
constexpr int SetpointIncremental = 550;
constexpr int SetpointAbsolute = 551;
constexpr int Faults = 552;
constexpr int Status = 553;
constexpr int Command = 554;
constexpr int SoftEnable = 2533;
constexpr int ForceEnable = 2534;
constexpr int HomingCommand = 7532;
constexpr int MeasureResult = 8104;
constexpr int BusVoltage = 950;
constexpr int OutputCurrent = 951;
constexpr int Temperature = 952;
constexpr int CurrentLimit = 953;
constexpr int LimitReason = 954;
constexpr int VelocityFeedback = 955;
constexpr int PositionFeedback = 956;
constexpr int SetpointInUse = 957;
constexpr int AnalogIn1 = 958;
constexpr int AnalogIn2 = 959;
constexpr int AnalogEncoderA = 960;
constexpr int AnalogEncoderB = 961;
constexpr int DigitalInputs = 962;
constexpr int ControlInputs = 963;
constexpr int FaultLocation1 = 964;
constexpr int FaultLocation2 = 965;
constexpr int FirstDebugValue = 971; ///< of six

// Recorder
constexpr int RecorderState = 5011;
constexpr int RecorderDivider = 5012;
constexpr int RecorderSources = 5020;
constexpr int RecorderAddress = 5333;
constexpr int RecorderWord = 5334;

} // namespace sim::reg

#endif
