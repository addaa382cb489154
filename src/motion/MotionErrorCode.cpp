#include "MotionErrorCode.h"

#include <QCoreApplication>

namespace {
struct StopMessage
{
    std::int32_t code;
    const char* singleAxis;
    const char* multiAxis;
};

constexpr StopMessage kStopMessages[] = {
    {MotionErrorCode::PositiveSoftLimit,
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by positive soft limit"),
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by +soft-limit signal")},
    {MotionErrorCode::NegativeSoftLimit,
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by negative soft limit"),
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by -soft-limit signal")},
    {MotionErrorCode::PositiveLimit,
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by positive hardware limit"),
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by +limit signal")},
    {MotionErrorCode::NegativeLimit,
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by negative hardware limit"),
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by -limit signal")},
    {MotionErrorCode::AlarmInput,
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by alarm input signal"),
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by alarm input signal")},
    {MotionErrorCode::Emergency,
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by EMG signal"),
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by EMG signal")},
    {MotionErrorCode::EncoderZAlreadyStarted,
     QT_TRANSLATE_NOOP("MotionErrorCode", "Already start Encoder z-phase signal"),
     QT_TRANSLATE_NOOP("MotionErrorCode", "Already start Encoder z-phase signal")},
    {MotionErrorCode::OtherError,
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by ETC. error"),
     QT_TRANSLATE_NOOP("MotionErrorCode", "Abnormally stopped by ETC. error")},
};
} // namespace

QString MotionErrorCode::message(Wording wording) const
{
    for (const StopMessage& entry : kStopMessages) {
        if (entry.code == m_code)
            return tr(wording == Wording::SingleAxis ? entry.singleAxis : entry.multiAxis);
    }
    return {};
}

bool MotionErrorCode::isReportedWhileHoming() const
{
    return m_code == AlarmInput || m_code == Emergency || m_code == EncoderZAlreadyStarted;
}
