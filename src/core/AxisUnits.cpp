#include "AxisUnits.h"

#include "PrivateProfile.h"

namespace {
const QByteArray kUnitsSection = QByteArrayLiteral("Units");
const QByteArray kShow = QByteArrayLiteral("Show");
const QByteArray kUnit = QByteArrayLiteral("Unit");
const QByteArray kPulsesPerUnit = QByteArrayLiteral("PulsesPerUnit");
const QByteArray kDecimals = QByteArrayLiteral("Decimals");
constexpr int kDefaultDecimals = 3;

// "Units.RL.0.1" as family, card and axis; false for any other section.
// Revisions come from one counter, so that units read afresh never repeat a revision a
// window has cached from the ones they replace.
int nextRevision()
{
    static int last = 0;
    return ++last;
}

bool parseSection(const QByteArray& name, BoardFamily& family, int& card, int& axis)
{
    const QList<QByteArray> parts = name.split('.');
    if (parts.size() != 4 || parts[0].compare(kUnitsSection, Qt::CaseInsensitive) != 0)
        return false;
    bool found = false;
    for (BoardFamily each : kAllFamilies) {
        if (parts[1].compare(familyShortName(each), Qt::CaseInsensitive) == 0) {
            family = each;
            found = true;
        }
    }
    bool cardOk = false;
    bool axisOk = false;
    card = parts[2].toInt(&cardOk);
    axis = parts[3].toInt(&axisOk);
    return found && cardOk && axisOk && card >= 0 && axis >= 0;
}
} // namespace

void AxisUnits::setShown(bool shown)
{
    if (shown == m_shown)
        return;
    m_shown = shown;
    m_revision = nextRevision();
}

AxisUnitScale AxisUnits::scale(BoardFamily family, int card, int axis) const
{
    const auto found = m_scales.find(Key(familyIndex(family), card, axis));
    return found == m_scales.end() ? AxisUnitScale() : found->second;
}

std::vector<AxisUnitScale> AxisUnits::shownScales(BoardFamily family, int card, int axisCount) const
{
    std::vector<AxisUnitScale> scales;
    for (int axis = 0; axis < axisCount; ++axis)
        scales.push_back(shownScale(family, card, axis));
    return scales;
}

void AxisUnits::setScale(BoardFamily family, int card, int axis, const AxisUnitScale& scale)
{
    if (this->scale(family, card, axis) == scale)
        return;
    const Key key(familyIndex(family), card, axis);
    if (scale.isSet())
        m_scales[key] = scale;
    else
        m_scales.erase(key);
    m_revision = nextRevision();
}

QByteArray AxisUnits::sectionName(BoardFamily family, int card, int axis)
{
    return kUnitsSection + '.' + familyShortName(family) + '.' + QByteArray::number(card) + '.' +
           QByteArray::number(axis);
}

AxisUnits AxisUnits::read(const QString& settingsFilePath)
{
    const PrivateProfile file(settingsFilePath);
    AxisUnits units;
    units.m_shown = file.readInt(kUnitsSection, kShow, 0) != 0;
    for (const QByteArray& section : file.sectionNames()) {
        BoardFamily family = BoardFamily::RL;
        int card = 0;
        int axis = 0;
        if (!parseSection(section, family, card, axis))
            continue;
        const auto pulses = AxisUnitScale::parsePulsesPerUnit(
            QString::fromUtf8(file.readString(section, kPulsesPerUnit)));
        if (!pulses)
            continue;
        units.setScale(family, card, axis,
                       AxisUnitScale(QString::fromUtf8(file.readString(section, kUnit)), *pulses,
                                     file.readInt(section, kDecimals, kDefaultDecimals)));
    }
    return units;
}

bool AxisUnits::writeShown(const QString& settingsFilePath) const
{
    PrivateProfile file(settingsFilePath);
    return file.writeInt(kUnitsSection, kShow, m_shown ? 1 : 0);
}

bool AxisUnits::writeCard(const QString& settingsFilePath, BoardFamily family, int card,
                          int axisCount) const
{
    PrivateProfile file(settingsFilePath);
    bool written = true;
    for (int axis = 0; axis < axisCount; ++axis) {
        const AxisUnitScale each = scale(family, card, axis);
        const QByteArray section = sectionName(family, card, axis);
        // An axis that never had a scale needs no empty section.
        bool present = false;
        file.readString(section, kPulsesPerUnit, QByteArray(), &present);
        if (!each.isSet() && !present)
            continue;
        written = file.writeString(section, kUnit, each.unit().toUtf8()) && written;
        written =
            file.writeString(section, kPulsesPerUnit,
                             each.isSet()
                                 ? AxisUnitScale::pulsesPerUnitText(each.pulsesPerUnit()).toLatin1()
                                 : QByteArray()) &&
            written;
        written = file.writeInt(section, kDecimals, each.decimals()) && written;
    }
    return written;
}
