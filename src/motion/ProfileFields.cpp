#include "ProfileFields.h"

#include "FieldText.h"
#include "PageFieldGrid.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

void ProfileFields::addTo(PageFieldGrid& grid)
{
    motionType = new QComboBox;
    motionType->setObjectName(QStringLiteral("motionType"));
    motionType->addItems({tr("0 : Jog"), tr("1 : Relative"), tr("2 : Absolute")});
    grid.addRow(tr(" Motion Type"), motionType);
    drive = grid.addField(tr(" Drive Speed"), tr("[pps]"), "driveSpeed");
    initial = grid.addField(tr(" Initial Speed"), tr("[pps]"), "initialSpeed");
    accel = grid.addField(tr(" Accel Time"), tr("[msec]"), "accelTime", &accelLabel);
    decel = grid.addField(tr(" Decel Time"), tr("[msec]"), "decelTime");
}

void ProfileFields::show(const PtpSpeeds& speeds)
{
    setFieldNumber(drive, speeds.drive);
    setFieldNumber(initial, speeds.initial);
    setFieldNumber(accel, speeds.accelMs);
    setFieldNumber(decel, speeds.decelMs);
}

PtpSpeeds ProfileFields::speeds() const
{
    return PtpSpeeds{fieldNumber(initial), fieldNumber(drive), fieldNumber(accel),
                     fieldNumber(decel)};
}

void ProfileFields::showJog(bool jog)
{
    decel->setEnabled(!jog);
    accelLabel->setText(jog ? tr(" Acc/Dec Time") : tr(" Accel Time"));
}
