#pragma once

#include <cstdint>

// Numbers the simulated boards share with their users: stop codes and status bits.
namespace nrxsim {

// GetMotionErrCod values of an abnormal stop; 0 is a normal end.
namespace StopCode {
constexpr int32_t None = 0;
constexpr int32_t PlusSoftLimit = -600;
constexpr int32_t MinusSoftLimit = -610;
constexpr int32_t PlusLimit = -620;
constexpr int32_t MinusLimit = -630;
constexpr int32_t Alarm = -640;
constexpr int32_t Emergency = -650;
constexpr int32_t ZAlreadyActive = -660;
constexpr int32_t Other = -9999;
} // namespace StopCode

// GetCardStatus bits.
namespace CardBit {
constexpr uint16_t Org = 1u << 0;
constexpr uint16_t Ez = 1u << 1;
constexpr uint16_t Emg = 1u << 2;
constexpr uint16_t Inp = 1u << 3;
constexpr uint16_t Alm = 1u << 4;
constexpr uint16_t LimitPlus = 1u << 5;
constexpr uint16_t LimitMinus = 1u << 6;
constexpr uint16_t Run = 1u << 8;
constexpr uint16_t Err = 1u << 9;
constexpr uint16_t Home = 1u << 10;
constexpr uint16_t HomeOk = 1u << 11;
constexpr uint16_t InterpolationRun = 1u << 12; // family RN only
constexpr uint16_t CounterClear = 1u << 13;
constexpr uint16_t ServoOn = 1u << 14;
constexpr uint16_t AlarmReset = 1u << 15;
} // namespace CardBit

// GetDrvStatus bits.
namespace DriveBit {
constexpr uint16_t ComparePlus = 1u << 0;
constexpr uint16_t CompareMinus = 1u << 1;
constexpr uint16_t Ascend = 1u << 2;
constexpr uint16_t Constant = 1u << 3;
constexpr uint16_t Descend = 1u << 4;
constexpr uint16_t AccelAscend = 1u << 5;
constexpr uint16_t AccelConstant = 1u << 6;
constexpr uint16_t AccelDescend = 1u << 7;
constexpr uint16_t StopOrg = 1u << 9;
constexpr uint16_t StopEz = 1u << 10;
constexpr uint16_t StopInput = 1u << 11; // family RN only
constexpr uint16_t StopLimitPlus = 1u << 12;
constexpr uint16_t StopLimitMinus = 1u << 13;
constexpr uint16_t StopAlarm = 1u << 14;
constexpr uint16_t StopEmergency = 1u << 15;
} // namespace DriveBit

// GetErrStatus bits: the cause of the last abnormal stop, kept until the next motion.
namespace ErrorBit {
constexpr uint16_t PlusSoftLimit = 1u << 0;
constexpr uint16_t MinusSoftLimit = 1u << 1;
constexpr uint16_t PlusLimit = 1u << 2;
constexpr uint16_t MinusLimit = 1u << 3;
constexpr uint16_t Alarm = 1u << 4;
constexpr uint16_t Emergency = 1u << 5;
constexpr uint16_t ZAlreadyActive = 1u << 6;
constexpr uint16_t Other = 1u << 7;
constexpr uint16_t DuringHome = 1u << 8;
} // namespace ErrorBit

// GetMainStatus: bit b belongs to axis slot b mod 4 for the RUN, ERR and HOME groups.
namespace MainBit {
constexpr int RunShift = 0;
constexpr int ErrShift = 4;
constexpr int HomeShift = 8; // families RL and RM
// Family RN: bits 8..15 describe the axis group as a whole.
constexpr uint16_t RnEmergency = 1u << 8;
constexpr uint16_t RnInterpolationRun = 1u << 9;
constexpr uint16_t RnHoming = 1u << 10;
constexpr uint16_t RnHomeOk = 1u << 11;
constexpr uint16_t RnServoOn = 1u << 12;
constexpr uint16_t RnAlarm = 1u << 13;
constexpr uint16_t RnLimit = 1u << 14;
constexpr uint16_t RnCompare = 1u << 15;
} // namespace MainBit

// GetInputStatus: the even axis of a pair uses bits 0..7, the odd one bits 8..15.
namespace InputBit {
constexpr uint16_t Ready = 1u << 0;
constexpr uint16_t Org = 1u << 1;
constexpr uint16_t Ez = 1u << 2;
constexpr uint16_t Emg = 1u << 3; // the STOP input on family RN
constexpr uint16_t LimitPlus = 1u << 4;
constexpr uint16_t LimitMinus = 1u << 5;
constexpr uint16_t Inp = 1u << 6;
constexpr uint16_t Alm = 1u << 7;
constexpr int OddAxisShift = 8;
} // namespace InputBit

// Family indices, in the order of the contract.
namespace Family {
constexpr int RL = 0;
constexpr int RM = 1;
constexpr int RN = 2;
} // namespace Family

constexpr int MaxCards = 8;
constexpr int MaxAxes = 8;
constexpr int MaxIoPoints = 64;

} // namespace nrxsim
