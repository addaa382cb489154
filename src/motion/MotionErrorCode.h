#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstdint>

// The result of GetMotionErrCod once a motion has ended, and why it names an abnormal stop,
// in the wording of the single-axis or the multi-axis window.
class MotionErrorCode
{
    Q_DECLARE_TR_FUNCTIONS(MotionErrorCode)

public:
    enum Code : std::int32_t
    {
        PositiveSoftLimit = -600,
        NegativeSoftLimit = -610,
        PositiveLimit = -620,
        NegativeLimit = -630,
        AlarmInput = -640,
        Emergency = -650,
        EncoderZAlreadyStarted = -660,
        OtherError = -9999,
    };
    enum class Wording
    {
        SingleAxis,
        MultiAxis
    };

    explicit MotionErrorCode(std::int32_t code) : m_code(code) {}

    std::int32_t code() const { return m_code; }
    // The message for a known stop code; empty for a normal end or an unknown negative code,
    // which end a motion silently.
    QString message(Wording wording) const;
    // Limit stops are part of a home search, so homing reports only alarm, EMG and Z phase.
    bool isReportedWhileHoming() const;

private:
    std::int32_t m_code;
};
