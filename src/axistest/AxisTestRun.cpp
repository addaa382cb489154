#include "AxisTestRun.h"

#include "BoardApi.h"
#include "MotionErrorCode.h"
#include "OrvaneLog.h"

#include <algorithm>
#include <cmath>

AxisTestRun::AxisTestRun(BoardApi& board, AxisTestSettings settings, AxisTestSink& sink)
    : m_board(board), m_settings(std::move(settings)), m_sink(sink)
{}

QString AxisTestRun::refusal()
{
    const AxisTestSettings& s = m_settings;
    if (s.axes.empty())
        return tr("No axis is chosen.");
    if (s.axes.size() > 1 && s.kind != AxisTestKind::RunIn)
        return tr("Only a run-in tests several axes at once.");
    std::vector<AxisNo> sorted = s.axes;
    std::sort(sorted.begin(), sorted.end());
    if (std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end())
        return tr("An axis is named twice.");
    if (s.runs < 1 || s.runs > 10000)
        return tr("The number of runs must be from 1 to 10000.");
    if (s.dwellMs < 0 || s.dwellMs > 600000)
        return tr("The dwell must be from 0 to 600000 ms.");
    if (s.speed < 0)
        return tr("The speed must be a positive number of pulses per second.");
    if (s.kind == AxisTestKind::Positioning) {
        if (s.targets < 2 || s.targets > 1000)
            return tr("The number of targets must be from 2 to 1000.");
        if (std::llabs(static_cast<long long>(s.to) - s.from) < s.targets)
            return tr("The travel is too short for %1 targets.").arg(s.targets);
        if (s.overrun < 0)
            return tr("The overrun must not be negative.");
    }
    if (s.kind == AxisTestKind::RunIn) {
        if (s.cycles < 0 || s.durationS < 0 || (s.cycles == 0 && s.durationS == 0))
            return tr("A run-in needs a number of cycles or a duration.");
        const std::size_t needed = s.pattern == RunInPattern::Relative ? 1 : 2;
        if (s.points.size() < needed)
            return tr("The move pattern needs at least %1 position(s).").arg(needed);
    }

    for (const AxisNo axis : s.axes) {
        if (s.servoOn)
            m_board.PutSvOn(s.family, s.card, axis, 1);
        if (m_board.GetSvOn(s.family, s.card, axis) == 0)
            return tr("The servo of axis %1 is off.").arg(axis);
        if (m_board.Done(s.family, s.card, axis) != 0)
            return tr("Axis %1 is moving.").arg(axis);
        nrx_i32 plus = 0, minus = 0;
        nrx_u16 use = 0;
        m_board.GetSlmt(s.family, s.card, axis, &plus, &minus, &use);
        if (use == 0)
            continue;
        // Every place the test sends the axis to, overruns included.
        std::vector<long long> places;
        const nrx_i32 here = m_board.GetCommandPos(s.family, s.card, axis);
        if (s.kind == AxisTestKind::Positioning) {
            places = {std::min<long long>(s.from, s.to) - s.overrun,
                      std::max<long long>(s.from, s.to) + s.overrun};
        } else if (s.kind == AxisTestKind::RunIn) {
            if (s.pattern == RunInPattern::Relative)
                places = {here, static_cast<long long>(here) + s.points.front()};
            else
                places.assign(s.points.begin(), s.points.end());
        }
        for (const long long place : places) {
            if (place > plus || place < minus)
                return tr("Position %1 of axis %2 is outside its soft limits (%3 to %4).")
                    .arg(place)
                    .arg(axis)
                    .arg(minus)
                    .arg(plus);
        }
    }
    return {};
}

bool AxisTestRun::start(std::int64_t nowMs)
{
    m_startMs = m_nowMs = m_cycleStartMs = nowMs;
    const QString refused = refusal();
    if (!refused.isEmpty()) {
        m_fault = refused;
        emitEvent(tr("Refused: %1").arg(refused));
        return false;
    }
    const AxisTestSettings& s = m_settings;
    if (s.speed > 0) {
        for (const AxisNo axis : s.axes) {
            Profile saved;
            m_board.GetPosSpeed(s.family, s.card, axis, &saved.initial, &saved.drive, &saved.accel,
                                &saved.decel);
            m_savedSpeeds.push_back(saved);
            m_board.SetPosSpeed(s.family, s.card, axis, std::min(saved.initial, s.speed), s.speed,
                                saved.accel, saved.decel);
        }
    }
    if (s.kind == AxisTestKind::Positioning) {
        m_targets = PositioningStatistics::targetsOver(s.from, s.to, s.targets);
        std::sort(m_targets.begin(), m_targets.end());
        for (const std::int32_t target : m_targets)
            m_measured.push_back({double(target), {}, {}});
    }
    m_cycleWorst.assign(s.axes.size(), 0.0);
    m_outcome = Outcome::Running;
    qCInfo(lcMotion).noquote() << "Axis test started on" << familyShortName(s.family) << "card"
                               << s.card << "axis" << s.axes.front();
    emitEvent(QStringLiteral("started"));
    tick(nowMs);
    return true;
}

int AxisTestRun::planned() const
{
    switch (m_settings.kind) {
    case AxisTestKind::Home:
        return m_settings.runs;
    case AxisTestKind::Positioning:
        return m_settings.runs * m_settings.targets * 2;
    case AxisTestKind::RunIn:
        return m_settings.durationS > 0 ? 0 : m_settings.cycles;
    }
    return 0;
}

std::int64_t AxisTestRun::timeLeftMs() const
{
    if (m_settings.kind == AxisTestKind::RunIn && m_settings.durationS > 0)
        return std::max<std::int64_t>(0, m_settings.durationS * 1000LL - elapsedMs());
    if (m_done == 0 || planned() == 0)
        return -1;
    return elapsedMs() * (planned() - m_done) / m_done;
}

void AxisTestRun::tick(std::int64_t nowMs)
{
    m_nowMs = nowMs;
    if (!running())
        return;
    if (m_settings.kind == AxisTestKind::RunIn && m_waiting) {
        for (std::size_t i = 0; i < m_settings.axes.size(); ++i) {
            const double error = followingError(m_settings.axes[i]);
            m_cycleWorst[i] = std::max(m_cycleWorst[i], error);
            m_worstFollowing = std::max(m_worstFollowing, error);
            if (m_settings.tolerance > 0 && error > m_settings.tolerance && !m_cycleFaulted) {
                m_cycleFaulted = true; // once a cycle, when the test goes on past it
                m_fault = tr("Following error of %1 pulses on axis %2, over the tolerance of %3")
                              .arg(error)
                              .arg(m_settings.axes[i])
                              .arg(m_settings.tolerance);
                onFault(0);
                if (!running())
                    return;
            }
        }
    }
    while (running()) {
        if (m_waiting) {
            if (busy())
                return;
            m_waiting = false;
            const std::int32_t code = stopCode();
            if (m_current && m_current->kind == Step::Kind::Home) {
                const AxisNo axis = m_settings.axes.front();
                AxisTestRecord run;
                run.kind = AxisTestRecord::Kind::Home;
                run.timeMs = elapsedMs();
                run.run = m_run;
                run.axis = axis;
                run.command = m_board.GetCommandPos(m_settings.family, m_settings.card, axis);
                run.actual = m_board.GetActualPos(m_settings.family, m_settings.card, axis);
                run.value = run.actual;
                run.durationMs = m_nowMs - m_stepStartMs;
                run.code = code;
                m_homeRuns.push_back(run);
                m_sink.record(run);
                ++m_done;
            }
            if (code < 0) {
                onFault(code);
                if (!running())
                    return;
            }
            continue;
        }
        if (m_dwellUntil >= 0) {
            if (m_nowMs < m_dwellUntil)
                return;
            m_dwellUntil = -1;
        }
        if (m_plan.empty() && !planMore()) {
            bool pass = !m_anyFault;
            const double tolerance = m_settings.tolerance;
            if (tolerance > 0 && m_settings.kind == AxisTestKind::Home)
                pass = pass && homeFigures().range <= tolerance;
            if (tolerance > 0 && m_settings.kind == AxisTestKind::Positioning)
                pass = pass && positioning().axis().a <= tolerance;
            finish(pass ? Outcome::Passed : Outcome::Failed, {});
            return;
        }
        m_current = m_plan.front();
        m_plan.pop_front();
        begin(*m_current);
        if (m_waiting || m_dwellUntil >= 0)
            return; // the board or the clock must move first
    }
}

bool AxisTestRun::planMore()
{
    const AxisTestSettings& s = m_settings;
    switch (s.kind) {
    case AxisTestKind::Home:
        if (m_run >= s.runs)
            return false;
        ++m_run;
        planHome();
        return true;
    case AxisTestKind::Positioning:
        if (m_run >= s.runs)
            return false;
        ++m_run;
        planPositioningRun();
        return true;
    case AxisTestKind::RunIn:
        if (s.cycles > 0 && m_run >= s.cycles)
            return false;
        if (s.durationS > 0 && elapsedMs() >= s.durationS * 1000LL)
            return false;
        ++m_run;
        m_cycleStartMs = m_nowMs;
        m_cycleFaulted = false;
        planCycle();
        return true;
    }
    return false;
}

void AxisTestRun::planHome()
{
    m_plan.push_back({Step::Kind::Home, {}, false, -1, 0});
    m_plan.push_back({Step::Kind::Move, {m_settings.away}, true, -1, 0});
}

void AxisTestRun::planPositioningRun()
{
    // The standard's linear cycle: up through every target from below the first, then down
    // through every target from above the last; the overrun takes out the reversal first.
    const int last = static_cast<int>(m_targets.size()) - 1;
    const auto dwellAndMeasure = [this](int target, int direction) {
        if (m_settings.dwellMs > 0)
            m_plan.push_back({Step::Kind::Dwell, {}, false, -1, 0});
        m_plan.push_back({Step::Kind::Measure, {}, false, target, direction});
    };
    m_plan.push_back({Step::Kind::Move, {m_targets.front() - m_settings.overrun}, false, -1, 0});
    for (int j = 0; j <= last; ++j) {
        m_plan.push_back({Step::Kind::Move, {m_targets[std::size_t(j)]}, false, -1, 0});
        dwellAndMeasure(j, +1);
    }
    m_plan.push_back({Step::Kind::Move, {m_targets.back() + m_settings.overrun}, false, -1, 0});
    for (int j = last; j >= 0; --j) {
        m_plan.push_back({Step::Kind::Move, {m_targets[std::size_t(j)]}, false, -1, 0});
        dwellAndMeasure(j, -1);
    }
}

void AxisTestRun::planCycle()
{
    const AxisTestSettings& s = m_settings;
    const auto moveAll = [this, &s](std::int32_t position, bool relative) {
        m_plan.push_back({Step::Kind::Move, std::vector<std::int32_t>(s.axes.size(), position),
                          relative, -1, 0});
        if (s.dwellMs > 0)
            m_plan.push_back({Step::Kind::Dwell, {}, false, -1, 0});
    };
    switch (s.pattern) {
    case RunInPattern::Relative:
        moveAll(s.points.front(), true);
        moveAll(-s.points.front(), true);
        break;
    case RunInPattern::Absolute:
        moveAll(s.points[0], false);
        moveAll(s.points[1], false);
        break;
    case RunInPattern::Points:
        for (const std::int32_t point : s.points)
            moveAll(point, false);
        break;
    }
    m_plan.push_back({Step::Kind::EndCycle, {}, false, -1, 0});
}

void AxisTestRun::begin(const Step& step)
{
    const AxisTestSettings& s = m_settings;
    const auto count = static_cast<nrx_u16>(s.axes.size());
    nrx_i32 result = 0;
    switch (step.kind) {
    case Step::Kind::Move:
        if (count == 1 && step.relative)
            result = m_board.Inc_Move(s.family, s.card, s.axes.front(), step.positions.front());
        else if (count == 1)
            result = m_board.Abs_Move(s.family, s.card, s.axes.front(), step.positions.front());
        else if (step.relative)
            result = m_board.Multi_Inc_Move(s.family, s.card, count, s.axes.data(),
                                            step.positions.data());
        else
            result = m_board.Multi_Abs_Move(s.family, s.card, count, s.axes.data(),
                                            step.positions.data());
        break;
    case Step::Kind::Home:
        result = m_board.Home_Move(s.family, s.card, s.axes.front());
        break;
    case Step::Kind::Dwell:
        m_dwellUntil = m_nowMs + s.dwellMs;
        return;
    case Step::Kind::Measure:
        measure(step);
        return;
    case Step::Kind::EndCycle:
        endCycle();
        return;
    }
    if (result < 0) {
        // A refused call is never gone past: the next steps would start from the wrong place.
        m_anyFault = true;
        m_fault = tr("The board refused the move (result %1).").arg(result);
        emitEvent(QStringLiteral("fault: %1").arg(m_fault));
        endAtFault();
        return;
    }
    m_stepStartMs = m_nowMs;
    m_waiting = true;
}

bool AxisTestRun::busy() const
{
    for (const AxisNo axis : m_settings.axes) {
        if (m_board.Done(m_settings.family, m_settings.card, axis) != 0)
            return true;
    }
    return false;
}

std::int32_t AxisTestRun::stopCode() const
{
    for (const AxisNo axis : m_settings.axes) {
        const std::int32_t code = m_board.GetMotionErrCod(m_settings.family, m_settings.card, axis);
        if (code < 0)
            return code;
    }
    return 0;
}

double AxisTestRun::followingError(AxisNo axis) const
{
    const auto command = m_board.GetCommandPos(m_settings.family, m_settings.card, axis);
    const auto actual = m_board.GetActualPos(m_settings.family, m_settings.card, axis);
    return std::abs(double(command) - double(actual));
}

void AxisTestRun::measure(const Step& step)
{
    const AxisNo axis = m_settings.axes.front();
    AxisTestRecord record;
    record.kind = AxisTestRecord::Kind::Measure;
    record.timeMs = elapsedMs();
    record.run = m_run;
    record.axis = axis;
    record.target = m_targets[std::size_t(step.target)];
    record.direction = step.direction;
    record.command = m_board.GetCommandPos(m_settings.family, m_settings.card, axis);
    record.actual = m_board.GetActualPos(m_settings.family, m_settings.card, axis);
    record.value = double(record.actual) - record.target;
    auto& measured = m_measured[std::size_t(step.target)];
    (step.direction > 0 ? measured.up : measured.down).push_back(record.value);
    m_sink.record(record);
    ++m_done;
}

void AxisTestRun::endCycle()
{
    const std::int64_t duration = m_nowMs - m_cycleStartMs;
    double worst = 0;
    for (std::size_t i = 0; i < m_settings.axes.size(); ++i) {
        AxisTestRecord record;
        record.kind = AxisTestRecord::Kind::Cycle;
        record.timeMs = elapsedMs();
        record.run = m_run;
        record.axis = m_settings.axes[i];
        record.command = m_board.GetCommandPos(m_settings.family, m_settings.card, record.axis);
        record.actual = m_board.GetActualPos(m_settings.family, m_settings.card, record.axis);
        record.durationMs = duration;
        record.value = m_cycleWorst[i];
        record.code = m_board.GetMotionErrCod(m_settings.family, m_settings.card, record.axis);
        m_sink.record(record);
        worst = std::max(worst, m_cycleWorst[i]);
        m_cycleWorst[i] = 0;
    }
    m_cycleTimes.add(m_run, double(duration));
    m_cycleTimeTotal += duration;
    m_cycleTimeLongest = std::max(m_cycleTimeLongest, duration);
    m_followingErrors.add(m_run, worst);
    ++m_done;
}

void AxisTestRun::onFault(std::int32_t code)
{
    m_anyFault = true;
    if (code < 0) {
        const QString text = MotionErrorCode(code).message(MotionErrorCode::Wording::SingleAxis);
        m_fault = text.isEmpty() ? tr("Stopped with code %1").arg(code) : text;
    }
    emitEvent(QStringLiteral("fault: %1").arg(m_fault));
    if (m_settings.kind == AxisTestKind::RunIn && !m_settings.stopAtFault)
        return;
    endAtFault();
}

void AxisTestRun::endAtFault()
{
    for (const AxisNo axis : m_settings.axes)
        m_board.Sudden_Stop(m_settings.family, m_settings.card, axis);
    finish(Outcome::Faulted, m_fault);
}

void AxisTestRun::stop(const QString& why)
{
    if (!running())
        return;
    for (const AxisNo axis : m_settings.axes)
        m_board.Sudden_Stop(m_settings.family, m_settings.card, axis);
    m_fault = why;
    finish(Outcome::Stopped, why);
}

void AxisTestRun::finish(Outcome outcome, const QString& note)
{
    restoreSpeeds();
    m_outcome = outcome;
    m_plan.clear();
    m_waiting = false;
    m_dwellUntil = -1;
    qCInfo(lcMotion).noquote() << "Axis test ended:" << outcomeKey(outcome) << note;
    emitEvent(note.isEmpty()
                  ? QString::fromLatin1(outcomeKey(outcome))
                  : QStringLiteral("%1: %2").arg(QLatin1String(outcomeKey(outcome)), note));
}

void AxisTestRun::restoreSpeeds()
{
    for (std::size_t i = 0; i < m_savedSpeeds.size(); ++i) {
        const Profile& saved = m_savedSpeeds[i];
        m_board.SetPosSpeed(m_settings.family, m_settings.card, m_settings.axes[i], saved.initial,
                            saved.drive, saved.accel, saved.decel);
    }
    m_savedSpeeds.clear();
}

void AxisTestRun::emitEvent(const QString& note)
{
    AxisTestRecord record;
    record.timeMs = elapsedMs();
    record.run = m_run;
    record.note = note;
    m_sink.record(record);
}

AxisTestRun::HomeFigures AxisTestRun::homeFigures() const
{
    HomeFigures figures;
    std::vector<double> positions;
    for (const AxisTestRecord& run : m_homeRuns)
        positions.push_back(run.value);
    if (positions.empty())
        return figures;
    const auto [low, high] = std::minmax_element(positions.begin(), positions.end());
    figures.min = *low;
    figures.max = *high;
    figures.range = figures.max - figures.min;
    figures.mean = PositioningStatistics::mean(positions);
    figures.deviation = PositioningStatistics::deviation(positions);
    return figures;
}

const char* AxisTestRun::outcomeKey(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Ready:
        return "ready";
    case Outcome::Running:
        return "running";
    case Outcome::Passed:
        return "passed";
    case Outcome::Failed:
        return "failed";
    case Outcome::Faulted:
        return "faulted";
    case Outcome::Stopped:
        return "stopped";
    }
    return "";
}
