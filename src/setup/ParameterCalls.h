#pragma once

// Every stored parameter, listed once, grouped by the board call pair that reads and writes it.
// ParameterCatalog expands the list into the call names, the reads and the writes and the
// catalogue that the pages, copy, export, import and compare all read.
//
//   CALL(pair, page)  BoardApi's Get<pair> and Set<pair>, edited on ParameterPage::page.
//                     Whether it is card-wide (the getter takes no axis) and which families
//                     have it (the families that export the getter) come from nrx_contract.h.
//   P(name, domain)   One value the call carries, in the call's argument order. The name is
//                     the parameter's key in parameter files; the domain is built by the
//                     helpers in ParameterCatalog.cpp: oneOf(texts by code; lists with words
//                     are named there, where the translation tools find them), between(min, max),
//                     anyNumber, notNegative, and hidden(...) for a value the page writes
//                     without a control for it.
//
// The calls stand per page in the order the page reads and writes them; copy and export
// follow that order.
//
// To add a parameter: add its P line under its call, at its place in the call's arguments.
// For a new call pair, add a CALL line with its P lines where its page handles it (the pair
// must already be in nrx_contract.h). Then give the page its control; nothing else changes.

/* clang-format off */
#define ORVANE_FOR_EACH_STORED_PARAMETER(CALL, P) \
    /* System IO, in the page's order. */ \
    CALL(SvAlm, SystemIo) \
        P(AlarmUse, oneOf(kEnable)) \
        P(AlarmLevel, oneOf(kLevels)) \
    CALL(SvInpos, SystemIo) \
        P(InpositionUse, oneOf(kEnable)) \
        P(InpositionLevel, oneOf(kLevels)) \
    CALL(Hlmt, SystemIo) \
        P(LimitStopMode, oneOf(kLimitStops)) \
        P(LimitLevel, oneOf(kLevels)) \
    CALL(Org, SystemIo) \
        P(OriginLevel, oneOf(kLevels)) \
    CALL(EncoderZ, SystemIo) \
        P(EncoderZLevel, oneOf(kLevels)) \
    CALL(SvCClr, SystemIo) \
        /* The page always writes use 1 and has no control for it. */ \
        P(CounterClearUse, hidden(oneOf(kEnable))) \
        P(CounterClearLevel, oneOf(kLevels)) \
    CALL(SvCClrTime, SystemIo) \
        P(CounterClearTime, oneOf({"0.01", "0.02", "0.1", "0.2", "1", "2", "10", "20"})) \
    CALL(Emergency, SystemIo) \
        P(EmergencyLevel, oneOf(kLevels)) \
    /* Motion Parameter. */ \
    CALL(RangeMode, MotionParameter) \
        P(RangeMagnification, between(1, 500)) \
    CALL(FixedRange, MotionParameter) \
        P(RangeMode, oneOf(kRangeModes)) \
    CALL(SpeedMode, MotionParameter) \
        P(SpeedMode, oneOf(kSpeedModes)) \
    CALL(PulseMode, MotionParameter) \
        P(PulseMode, oneOf(kPulseModes)) \
    CALL(EncoderDir, MotionParameter) \
        P(EncoderDirection, oneOf(kDirections)) \
    CALL(EncoderMode, MotionParameter) \
        P(EncoderMode, oneOf(kEncoderModes)) \
    CALL(HomeDir, MotionParameter) \
        P(OriginDirection, oneOf(kDirections)) \
    CALL(CompCountMode, MotionParameter) \
        P(CompareCounter, oneOf(kCompareCounters)) \
    CALL(Slmt, MotionParameter) \
        P(SoftLimitPlus, anyNumber) \
        P(SoftLimitMinus, anyNumber) \
        P(SoftLimitUse, oneOf(kUse)) \
    CALL(CounterRing, MotionParameter) \
        P(CounterRingCommand, anyNumber) \
        P(CounterRingActual, anyNumber) \
        P(CounterRingUse, oneOf(kUse)) \
    /* Filter. */ \
    CALL(FilterTime, Filter) \
        P(FilterTime, oneOf({"0.002", "0.256", "0.512", "1.024", "2.048", "4.096", "8.192", \
                             "16.384"})) \
    CALL(FilterSensor, Filter) \
        P(FilterSensor, oneOf(kEnable)) \
    CALL(FilterSvIF, Filter) \
        P(FilterServo, oneOf(kEnable)) \
    CALL(FilterEncoderZ, Filter) \
        P(FilterEncoderZ, oneOf(kEnable)) \
    CALL(FilterExt, Filter) \
        P(FilterExternal, oneOf(kEnable)) \
    CALL(FilterStop, Filter) \
        P(FilterStop, oneOf(kEnable)) \
    /* The single-axis window's pages. */ \
    CALL(HomeMode, Home) \
        P(HomeMode, oneOf(kHomeModes)) \
    CALL(HomeOffset, Home) \
        P(HomeOffset, anyNumber) \
    CALL(HomeSpeed, Home) \
        P(HomeLowSpeed, notNegative) \
        P(HomeHighSpeed, notNegative) \
        P(HomeAccDecTime, notNegative) \
    CALL(PosSpeed, PointToPoint) \
        P(PosInitialSpeed, notNegative) \
        P(PosDriveSpeed, notNegative) \
        P(PosAccelTime, notNegative) \
        P(PosDecelTime, notNegative) \
    CALL(JogSpeed, PointToPoint) \
        P(JogInitialSpeed, notNegative) \
        P(JogDriveSpeed, notNegative) \
        P(JogAccelTime, notNegative) \
    /* The digital I/O window's card-wide input filter. */ \
    CALL(DiFilter, DigitalIo) \
        P(InputFilter, oneOf(kEnable)) \
    CALL(DiFilterTime, DigitalIo) \
        P(InputFilterTime, oneOf({"0.001", "0.002", "0.004", "0.008", "0.016", "0.032", \
                                  "0.064", "0.128", "0.256", "0.512", "1.024", "2.048", \
                                  "4.096", "8.192", "16.384", "32.768"}))
/* clang-format on */
