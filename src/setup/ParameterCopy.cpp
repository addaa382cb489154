#include "ParameterCopy.h"

#include "BoardApi.h"

void ParameterCopy::copy(int page, const Source& source, const Target& target)
{
    switch (page) {
    case SystemIoPage:
        copySystemIo(source, target);
        break;
    case MotionPage:
        copyMotion(source, target);
        break;
    case FilterPage:
        copyFilter(source, target);
        break;
    default:
        break;
    }
}

void ParameterCopy::copySystemIo(const Source& source, const Target& target)
{
    BoardApi& b = m_board;
    const BoardFamily from = source.family;
    const CardNo card = source.card;
    const AxisNo axis = source.axis;
    nrx_u16 almUse = 0, almLevel = 0, inposUse = 0, inposLevel = 0, limitStop = 0, limitLevel = 0,
            clearUse = 0, clearLevel = 0;
    b.GetSvAlm(from, card, axis, &almUse, &almLevel);
    b.GetSvInpos(from, card, axis, &inposUse, &inposLevel);
    b.GetHlmt(from, card, axis, &limitStop, &limitLevel);
    const nrx_u16 org = b.GetOrg(from, card, axis);
    const nrx_u16 encoderZ = b.GetEncoderZ(from, card, axis);
    b.GetSvCClr(from, card, axis, &clearUse, &clearLevel);
    const nrx_u16 clearTime = b.GetSvCClrTime(from, card, axis);
    const nrx_u16 emergency = b.GetEmergency(from, card);

    const BoardFamily to = target.family;
    for (AxisNo i : target.axes) {
        b.SetSvAlm(to, target.card, i, almUse, almLevel);
        b.SetSvInpos(to, target.card, i, inposUse, inposLevel);
        b.SetHlmt(to, target.card, i, limitStop, limitLevel);
        b.SetOrg(to, target.card, i, org);
        b.SetEncoderZ(to, target.card, i, encoderZ);
        // The counter-clear use goes as read; the page itself always writes use 1.
        b.SetSvCClr(to, target.card, i, clearUse, clearLevel);
        b.SetSvCClrTime(to, target.card, i, clearTime);
    }
    // The EMG level is the card's, so it follows even when no axis is ticked.
    b.SetEmergency(to, target.card, emergency);
}

void ParameterCopy::copyMotion(const Source& source, const Target& target)
{
    BoardApi& b = m_board;
    const BoardFamily from = source.family;
    const CardNo card = source.card;
    const AxisNo axis = source.axis;
    const nrx_u16 rangeMode = b.GetRangeMode(from, card, axis);
    const nrx_u16 fixedRange = b.GetFixedRange(from, card, axis);
    const nrx_u16 speedMode = b.GetSpeedMode(from, card, axis);
    const nrx_u16 pulseMode = b.GetPulseMode(from, card, axis);
    const nrx_u16 encoderDir = b.GetEncoderDir(from, card, axis);
    const nrx_u16 encoderMode = b.GetEncoderMode(from, card, axis);
    const nrx_u16 homeDir = b.GetHomeDir(from, card, axis);
    const nrx_u16 compCountMode = b.GetCompCountMode(from, card, axis);
    nrx_i32 plus = 0, minus = 0, command = 0, actual = 0;
    nrx_u16 limitUse = 0, ringUse = 0;
    b.GetSlmt(from, card, axis, &plus, &minus, &limitUse);
    b.GetCounterRing(from, card, axis, &command, &actual, &ringUse);

    const BoardFamily to = target.family;
    for (AxisNo i : target.axes) {
        b.SetRangeMode(to, target.card, i, rangeMode);
        b.SetFixedRange(to, target.card, i, fixedRange);
        b.SetSpeedMode(to, target.card, i, speedMode);
        b.SetPulseMode(to, target.card, i, pulseMode);
        b.SetEncoderDir(to, target.card, i, encoderDir);
        b.SetEncoderMode(to, target.card, i, encoderMode);
        b.SetHomeDir(to, target.card, i, homeDir);
        b.SetCompCountMode(to, target.card, i, compCountMode);
        b.SetSlmt(to, target.card, i, plus, minus, limitUse);
        b.SetCounterRing(to, target.card, i, command, actual, ringUse);
    }
}

void ParameterCopy::copyFilter(const Source& source, const Target& target)
{
    BoardApi& b = m_board;
    const BoardFamily from = source.family;
    const CardNo card = source.card;
    const AxisNo axis = source.axis;
    const nrx_u16 time = b.GetFilterTime(from, card, axis);
    const nrx_u16 sensor = b.GetFilterSensor(from, card, axis);
    const nrx_u16 servo = b.GetFilterSvIF(from, card, axis);
    const nrx_u16 encoderZ = b.GetFilterEncoderZ(from, card, axis);
    const nrx_u16 external = b.GetFilterExt(from, card, axis);
    const bool sourceHasStop = from == BoardFamily::RN;
    const nrx_u16 stop = sourceHasStop ? b.GetFilterStop(from, card, axis) : 0;

    const BoardFamily to = target.family;
    for (AxisNo i : target.axes) {
        b.SetFilterTime(to, target.card, i, time);
        b.SetFilterSensor(to, target.card, i, sensor);
        b.SetFilterSvIF(to, target.card, i, servo);
        b.SetFilterEncoderZ(to, target.card, i, encoderZ);
        b.SetFilterExt(to, target.card, i, external);
        if (to == BoardFamily::RN) {
            // Only RN boards have a stop filter. From another family the value comes from the
            // RN board at the source's card number and the target's axis: a mix kept as it is.
            const nrx_u16 value = sourceHasStop ? stop : b.GetFilterStop(BoardFamily::RN, card, i);
            b.SetFilterStop(to, target.card, i, value);
        }
    }
}
