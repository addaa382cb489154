#pragma once

#include "PtpSpeeds.h"

#include <QCoreApplication>

class PageFieldGrid;
class QComboBox;
class QLabel;
class QLineEdit;

// The motion type and speed profile rows both motion windows show: laid out on a field grid,
// filled from and read back as a speed profile, and captioned for a jog's one ramp time.
class ProfileFields
{
    Q_DECLARE_TR_FUNCTIONS(ProfileFields)

public:
    void addTo(PageFieldGrid& grid);
    void show(const PtpSpeeds& speeds);
    PtpSpeeds speeds() const;
    // A jog has one ramp time: the decel field rests and the accel caption names both.
    void showJog(bool jog);

    QComboBox* motionType = nullptr;
    QLineEdit* drive = nullptr;
    QLineEdit* initial = nullptr;
    QLineEdit* accel = nullptr;
    QLabel* accelLabel = nullptr;
    QLineEdit* decel = nullptr;
};
