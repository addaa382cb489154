#include "UnitScaleImport.h"

#include "AxisUnits.h"
#include "CardRegistry.h"

#include <set>
#include <utility>

UnitScaleImport::UnitScaleImport(const ParameterSet& file, const AxisUnits& units,
                                 const CardRegistry& registry)
    : m_units(units), m_registry(registry)
{
    for (const UnitSection& each : file.units) {
        if (each.card >= registry.cardCount(each.family) ||
            each.axis >= registry.axisCount(each.family, each.card))
            continue;
        if (units.scale(each.family, each.card, each.axis) != each.scale)
            m_changes.push_back(each);
    }
}

AxisUnitScale UnitScaleImport::before(const UnitSection& change) const
{
    return m_units.scale(change.family, change.card, change.axis);
}

bool UnitScaleImport::apply(AxisUnits& units, const QString& settingsFilePath) const
{
    std::set<std::pair<int, int>> cards;
    for (const UnitSection& each : m_changes) {
        units.setScale(each.family, each.card, each.axis, each.scale);
        cards.insert({familyIndex(each.family), each.card});
    }
    bool written = true;
    for (const auto& [family, card] : cards) {
        const BoardFamily which = kAllFamilies[static_cast<std::size_t>(family)];
        written =
            units.writeCard(settingsFilePath, which, card, m_registry.axisCount(which, card)) &&
            written;
    }
    return written;
}

QString UnitScaleImport::scaleText(const AxisUnitScale& scale)
{
    if (!scale.isSet())
        return tr("pulses");
    return tr("%1 pulses/%2, %3 decimals")
        .arg(AxisUnitScale::pulsesPerUnitText(scale.pulsesPerUnit()), scale.unit())
        .arg(scale.decimals());
}
