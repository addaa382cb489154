#pragma once

#include "ParameterSet.h"

#include <QCoreApplication>

class AxisUnits;

// The axis scales a parameter file carries against the ones this PC keeps: which differ on
// axes the PC has, and putting them into the settings file.
class UnitScaleImport
{
    Q_DECLARE_TR_FUNCTIONS(UnitScaleImport)

public:
    UnitScaleImport(const ParameterSet& file, const AxisUnits& units, const CardRegistry& registry);

    // The file's scales that differ from this PC's, with the PC's in before().
    const std::vector<UnitSection>& changes() const { return m_changes; }
    AxisUnitScale before(const UnitSection& change) const;
    // Sets every changed scale and writes the cards' scales to the settings file.
    bool apply(AxisUnits& units, const QString& settingsFilePath) const;

    // "1000 pulses/mm, 3 decimals", or "pulses" for no scale.
    static QString scaleText(const AxisUnitScale& scale);

private:
    const AxisUnits& m_units;
    const CardRegistry& m_registry;
    std::vector<UnitSection> m_changes;
};
