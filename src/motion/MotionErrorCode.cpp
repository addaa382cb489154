#include "MotionErrorCode.h"

QString MotionErrorCode::message(Wording wording) const
{
    const bool single = wording == Wording::SingleAxis;
    switch (m_code) {
    case PositiveSoftLimit:
        return single ? QStringLiteral("Abnormally stopped by positive soft limit")
                      : QStringLiteral("Abnormally stopped by +soft-limit signal");
    case NegativeSoftLimit:
        return single ? QStringLiteral("Abnormally stopped by negative soft limit")
                      : QStringLiteral("Abnormally stopped by -soft-limit signal");
    case PositiveLimit:
        return single ? QStringLiteral("Abnormally stopped by positive hardware limit")
                      : QStringLiteral("Abnormally stopped by +limit signal");
    case NegativeLimit:
        return single ? QStringLiteral("Abnormally stopped by negative hardware limit")
                      : QStringLiteral("Abnormally stopped by -limit signal");
    case AlarmInput:
        return QStringLiteral("Abnormally stopped by alarm input signal");
    case Emergency:
        return QStringLiteral("Abnormally stopped by EMG signal");
    case EncoderZAlreadyStarted:
        return QStringLiteral("Already start Encoder z-phase signal");
    case OtherError:
        return QStringLiteral("Abnormally stopped by ETC. error");
    default:
        return {};
    }
}

bool MotionErrorCode::isReportedWhileHoming() const
{
    return m_code == AlarmInput || m_code == Emergency || m_code == EncoderZAlreadyStarted;
}
