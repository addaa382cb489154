#pragma once

#include "AxisUnitScale.h"
#include "BoardFamily.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <tuple>
#include <vector>

// Every axis' unit scale and the one switch that shows figures in units, kept in the program's
// settings file (sections "Units.RL.0.1" for RL card 0 axis 1, and "Units" with "Show"). The
// revision changes with every change, so a window that caches what it shows compares one
// number per poll.
class AxisUnits
{
public:
    bool shown() const { return m_shown; }
    void setShown(bool shown);

    // The axis' scale; not set when it has none.
    AxisUnitScale scale(BoardFamily family, int card, int axis) const;
    // The scale figures are shown with: the axis' scale while units are shown, else none.
    AxisUnitScale shownScale(BoardFamily family, int card, int axis) const
    {
        return m_shown ? scale(family, card, axis) : AxisUnitScale();
    }
    // The shown scales of a card's first axisCount axes.
    std::vector<AxisUnitScale> shownScales(BoardFamily family, int card, int axisCount) const;
    // A scale that is not set removes the axis' scale.
    void setScale(BoardFamily family, int card, int axis, const AxisUnitScale& scale);
    int revision() const { return m_revision; }

    // "Units.RL.0.1"
    static QByteArray sectionName(BoardFamily family, int card, int axis);
    // Reads the switch and every well-formed axis section; a section whose pulses per unit is
    // not a positive number is no scale.
    static AxisUnits read(const QString& settingsFilePath);
    // Writes the switch, or the scales of one card's axes (an axis without a scale keeps
    // its section with empty values), leaving every other line of the file as it was.
    bool writeShown(const QString& settingsFilePath) const;
    bool writeCard(const QString& settingsFilePath, BoardFamily family, int card,
                   int axisCount) const;

private:
    using Key = std::tuple<int, int, int>;

    std::map<Key, AxisUnitScale> m_scales;
    bool m_shown = false;
    int m_revision = 0;
};
