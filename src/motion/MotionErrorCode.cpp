#include "MotionErrorCode.h"

namespace {
struct StopMessage
{
    std::int32_t code;
    const char* singleAxis;
    const char* multiAxis;
};

constexpr StopMessage kStopMessages[] = {
    {MotionErrorCode::PositiveSoftLimit, "Abnormally stopped by positive soft limit",
     "Abnormally stopped by +soft-limit signal"},
    {MotionErrorCode::NegativeSoftLimit, "Abnormally stopped by negative soft limit",
     "Abnormally stopped by -soft-limit signal"},
    {MotionErrorCode::PositiveLimit, "Abnormally stopped by positive hardware limit",
     "Abnormally stopped by +limit signal"},
    {MotionErrorCode::NegativeLimit, "Abnormally stopped by negative hardware limit",
     "Abnormally stopped by -limit signal"},
    {MotionErrorCode::AlarmInput, "Abnormally stopped by alarm input signal",
     "Abnormally stopped by alarm input signal"},
    {MotionErrorCode::Emergency, "Abnormally stopped by EMG signal",
     "Abnormally stopped by EMG signal"},
    {MotionErrorCode::EncoderZAlreadyStarted, "Already start Encoder z-phase signal",
     "Already start Encoder z-phase signal"},
    {MotionErrorCode::OtherError, "Abnormally stopped by ETC. error",
     "Abnormally stopped by ETC. error"},
};
} // namespace

QString MotionErrorCode::message(Wording wording) const
{
    for (const StopMessage& entry : kStopMessages) {
        if (entry.code == m_code)
            return QString::fromLatin1(wording == Wording::SingleAxis ? entry.singleAxis
                                                                      : entry.multiAxis);
    }
    return {};
}

bool MotionErrorCode::isReportedWhileHoming() const
{
    return m_code == AlarmInput || m_code == Emergency || m_code == EncoderZAlreadyStarted;
}
