#include "ParameterText.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>
#include <map>
#include <set>

namespace {

const QString kHeader = QStringLiteral("Header");
const QString kUnitsPrefix = QStringLiteral("Units.");
// Keys that describe a card rather than set it; they are not written to a board.
const QStringList kCardKeys{QStringLiteral("Model"), QStringLiteral("Firmware"),
                            QStringLiteral("LibraryVersion"), QStringLiteral("Axes")};
const QStringList kHeaderKeys{QStringLiteral("FormatVersion"),  QStringLiteral("Created"),
                              QStringLiteral("Family"),         QStringLiteral("Card"),
                              QStringLiteral("Model"),          QStringLiteral("Firmware"),
                              QStringLiteral("LibraryVersion"), QStringLiteral("Cards")};

void line(QByteArray& out, const QString& text)
{
    out += text.toUtf8();
    out += '\n';
}

void describe(QByteArray& out, const CardDescription& card)
{
    line(out, QStringLiteral("Model=") + QString::fromStdString(card.model));
    line(out, QStringLiteral("Firmware=") + QString::fromStdString(card.firmware));
    line(out, QStringLiteral("LibraryVersion=") + QString::fromStdString(card.libraryVersion));
}

// The counts let a reader tell a file cut at a section boundary from a whole one.
void describeCard(QByteArray& out, const CardDescription& card, int axes)
{
    describe(out, card);
    line(out, QStringLiteral("Axes=%1").arg(axes));
}

// What a section header names; family unset for an unknown name.
struct SectionName
{
    bool header = false;
    std::optional<BoardFamily> family;
    int card = -1;
    int axis = -1;
};

SectionName parseSectionName(const QString& text)
{
    SectionName name;
    if (text == kHeader) {
        name.header = true;
        return name;
    }
    const QStringList parts = text.split(QLatin1Char('.'));
    if (parts.size() < 2 || parts.size() > 3)
        return name;
    auto number = [](const QString& part, const char* prefix) {
        const QLatin1String p(prefix);
        if (!part.startsWith(p) || part.size() != p.size() + 1)
            return -1;
        const int n = part.back().digitValue();
        return n < kMaxCards ? n : -1;
    };
    const int card = number(parts[1], "Card");
    const int axis = parts.size() == 3 ? number(parts[2], "Axis") : -1;
    if (card < 0 || (parts.size() == 3 && axis < 0))
        return name;
    for (BoardFamily family : kAllFamilies) {
        if (parts[0] == QLatin1String(familyShortName(family)))
            name.family = family;
    }
    name.card = card;
    name.axis = axis;
    return name;
}

std::optional<std::int32_t> parseNumber(const QString& text)
{
    bool ok = false;
    const qlonglong n = text.toLongLong(&ok, 10);
    if (!ok || n < std::numeric_limits<std::int32_t>::min() ||
        n > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return static_cast<std::int32_t>(n);
}

// Reads a text line by line, collecting faults as it goes.
class Reader
{
public:
    explicit Reader(std::vector<ParameterFault>& faults) : m_faults(faults) {}

    ParameterSet run(const QByteArray& text)
    {
        // UTF-16 shows as one "not text" per line otherwise: name it once.
        const bool utf16 =
            text.startsWith("\xFF\xFE") || text.startsWith("\xFE\xFF") ||
            (text.size() >= 4 && text.left(64).count('\0') * 3 >= text.left(64).size());
        if (utf16) {
            fault(0, ParameterText::tr("UTF-16 text: save the file as UTF-8"));
            return std::move(m_set);
        }
        QByteArrayList lines = text.split('\n');
        if (!lines.isEmpty() && lines.back().isEmpty())
            lines.removeLast();
        if (!lines.isEmpty() && lines.front().startsWith("\xEF\xBB\xBF"))
            lines.front().remove(0, 3);
        for (int i = 0; i < lines.size(); ++i)
            readLine(i + 1, lines[i]);
        finish();
        return std::move(m_set);
    }

private:
    void fault(int lineNo, const QString& text) { m_faults.push_back({lineNo, text}); }

    void readLine(int lineNo, QByteArray raw)
    {
        if (raw.endsWith('\r'))
            raw.chop(1);
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString decoded = decoder.decode(raw);
        bool control = false;
        for (QChar c : decoded)
            control = control || (c.unicode() < 0x20 && c != QLatin1Char('\t'));
        if (decoder.hasError() || control)
            return fault(lineNo, ParameterText::tr("not text (binary or damaged data)"));
        QString text = decoded.trimmed();
        if (text.isEmpty() || text.startsWith(QLatin1Char(';')) ||
            text.startsWith(QLatin1Char('#')))
            return;
        if (text.startsWith(QLatin1Char('[')))
            return readSection(lineNo, text);
        const auto equals = text.indexOf(QLatin1Char('='));
        if (equals <= 0)
            return fault(
                lineNo,
                QStringLiteral("\"%1\" is neither [Section] nor Name=value").arg(text.left(40)));
        const QString key = text.left(equals).trimmed();
        QString value = text.mid(equals + 1);
        const auto comment = value.indexOf(QLatin1Char(';'));
        if (comment >= 0)
            value.truncate(comment);
        readValue(lineNo, key, value.trimmed());
    }

    void readSection(int lineNo, const QString& text)
    {
        // Until a section is known good, its lines are skipped: its own fault says enough.
        m_current = Current{};
        m_current.ignored = true;
        if (!text.endsWith(QLatin1Char(']')))
            return fault(lineNo, QStringLiteral("section name not closed by \"]\""));
        const QString inner = text.mid(1, text.size() - 2).trimmed();
        const QString shown = inner.left(40);
        if (!m_sectionLines.emplace(inner, lineNo).second)
            return fault(lineNo, ParameterText::tr("section [%1] given twice (first on line %2)")
                                     .arg(shown)
                                     .arg(m_sectionLines[inner]));
        if (inner.startsWith(kUnitsPrefix))
            return readUnitsSection(lineNo, inner);
        const SectionName name = parseSectionName(inner);
        m_current.ignored = !name.header && !name.family;
        if (name.header) {
            m_current.header = true;
            m_headerLine = lineNo;
            return;
        }
        if (!name.family)
            return fault(lineNo, ParameterText::tr("unknown section [%1]").arg(shown));
        m_current.section = m_set.sections.size();
        m_set.sections.push_back({*name.family, name.card, name.axis, lineNo, {}});
        if (name.axis < 0)
            m_set.cards.push_back({*name.family, name.card, {}, {}, {}, -1});
    }

    void readValue(int lineNo, const QString& key, const QString& value)
    {
        const QString shownKey = key.left(40);
        if (m_current.ignored)
            return;
        if (!m_current.header && !m_current.section && !m_current.units)
            return fault(lineNo, ParameterText::tr("%1 comes before any section").arg(shownKey));
        if (!m_current.keys.emplace(key, lineNo).second)
            return fault(lineNo, ParameterText::tr("%1 given twice (first on line %2)")
                                     .arg(shownKey)
                                     .arg(m_current.keys[key]));
        if (m_current.header)
            return readHeaderValue(lineNo, key, value);
        if (m_current.units)
            return readUnitsValue(lineNo, key, value);

        ParameterSection& section = m_set.sections[*m_current.section];
        // A key given with a bad value has its own fault; it is not missing as well.
        m_named[*m_current.section].insert(key);
        if (section.axis < 0 && kCardKeys.contains(key)) {
            CardDescription& card = m_set.cards.back();
            if (key == QLatin1String("Axes")) {
                const auto axes = parseNumber(value);
                card.axes = axes.value_or(-1);
                if (!axes || *axes < 0 || *axes > kMaxAxes)
                    fault(lineNo, QStringLiteral("Axes: \"%1\" is not 0 .. %2")
                                      .arg(value.left(20))
                                      .arg(kMaxAxes));
                return;
            }
            std::string* field[] = {&card.model, &card.firmware, &card.libraryVersion};
            *field[kCardKeys.indexOf(key)] = value.toStdString();
            return;
        }
        const ParameterInfo* info = ParameterCatalog::find(key.toStdString());
        const bool cardLevel = section.axis < 0;
        if (info == nullptr)
            return fault(lineNo, ParameterText::tr("unknown parameter %1").arg(shownKey));
        if ((info->level == ParameterLevel::Card) != cardLevel)
            return fault(lineNo, cardLevel
                                     ? ParameterText::tr("%1 belongs in an axis section").arg(key)
                                     : ParameterText::tr("%1 belongs in a card section").arg(key));
        if (!info->existsIn(section.family))
            return fault(lineNo, ParameterText::tr("%1 boards have no %2")
                                     .arg(QLatin1String(familyShortName(section.family)), key));
        const auto number = parseNumber(value);
        if (!number)
            return fault(
                lineNo,
                QStringLiteral("%1: \"%2\" is not a whole number").arg(key, value.left(40)));
        if (!info->accepts(*number))
            return fault(lineNo, ParameterText::tr("%1: %2 is out of range (%3 .. %4)")
                                     .arg(key)
                                     .arg(*number)
                                     .arg(info->minimum)
                                     .arg(info->maximum));
        section.values.push_back({info, *number});
    }

    // "[Units.RL.Card0.Axis1]": the axis' scale, whose parameters the file must also hold.
    void readUnitsSection(int lineNo, const QString& inner)
    {
        const SectionName name = parseSectionName(inner.mid(kUnitsPrefix.size()));
        if (!name.family || name.axis < 0)
            return fault(lineNo, ParameterText::tr("unknown section [%1]").arg(inner.left(40)));
        m_current.ignored = false;
        m_current.units = m_unitTexts.size();
        m_unitTexts.push_back({*name.family, name.card, name.axis, lineNo, {}});
        m_unitValues.emplace_back();
    }

    void readUnitsValue(int lineNo, const QString& key, const QString& value)
    {
        UnitValues& values = m_unitValues[*m_current.units];
        if (key == QLatin1String("Unit")) {
            values.unit = value;
        } else if (key == QLatin1String("PulsesPerUnit")) {
            values.pulses = AxisUnitScale::parsePulsesPerUnit(value);
            if (!values.pulses)
                fault(lineNo, ParameterText::tr("PulsesPerUnit: \"%1\" is not a positive number")
                                  .arg(value.left(40)));
            values.pulsesGiven = true;
        } else if (key == QLatin1String("Decimals")) {
            const auto decimals = parseNumber(value);
            if (!decimals || *decimals < 0 || *decimals > AxisUnitScale::kMaxDecimals)
                return fault(lineNo, ParameterText::tr("Decimals: \"%1\" is not 0 .. %2")
                                         .arg(value.left(20))
                                         .arg(AxisUnitScale::kMaxDecimals));
            values.decimals = *decimals;
        } else {
            fault(lineNo, ParameterText::tr("unknown unit key %1").arg(key.left(40)));
        }
    }

    void finishUnits()
    {
        for (std::size_t i = 0; i < m_unitTexts.size(); ++i) {
            UnitSection& units = m_unitTexts[i];
            const UnitValues& values = m_unitValues[i];
            const QString name = QString::fromStdString(units.name());
            if (!values.pulsesGiven)
                fault(units.line, ParameterText::tr("[%1] lacks PulsesPerUnit").arg(name));
            if (!m_set.section(units.family, units.card, units.axis))
                fault(units.line, ParameterText::tr("[%1] has no axis section").arg(name));
            if (!values.pulses)
                continue;
            units.scale = AxisUnitScale(values.unit, *values.pulses, values.decimals);
            m_set.units.push_back(units);
        }
    }

    void readHeaderValue(int lineNo, const QString& key, const QString& value)
    {
        if (!kHeaderKeys.contains(key))
            return fault(lineNo, ParameterText::tr("unknown header key %1").arg(key.left(40)));
        if (key == QLatin1String("Cards")) {
            m_cards = parseNumber(value).value_or(-1);
            m_cardsLine = lineNo;
        }
        if (key == QLatin1String("FormatVersion")) {
            m_formatVersion = true;
            if (parseNumber(value) != ParameterText::kFormatVersion)
                fault(lineNo, ParameterText::tr("format version %1 is not one this program reads")
                                  .arg(value.left(20)));
        }
    }

    void finish()
    {
        if (m_headerLine == 0)
            fault(0, ParameterText::tr("no [Header] section: not an Orvane parameter file"));
        else if (!m_formatVersion)
            fault(m_headerLine, ParameterText::tr("the header lacks FormatVersion"));
        if (m_set.sections.empty())
            fault(0, ParameterText::tr("the file holds no card"));
        else if (m_cardsLine == 0 || m_cards != static_cast<int>(m_set.cards.size()))
            fault(m_cardsLine != 0 ? m_cardsLine : m_headerLine,
                  ParameterText::tr("the header counts %1 card(s), the file holds %2")
                      .arg(m_cards)
                      .arg(m_set.cards.size()));
        for (const CardDescription& card : m_set.cards) {
            const int held = m_set.axisCount(card.family, card.card);
            const ParameterSection* own = m_set.section(card.family, card.card, -1);
            const QString name = QString::fromStdString(own->name());
            if (card.axes < 0)
                fault(own->line, ParameterText::tr("[%1] lacks Axes").arg(name));
            else if (card.axes != held)
                fault(own->line, ParameterText::tr("[%1] counts %2 axes, the file holds %3")
                                     .arg(name)
                                     .arg(card.axes)
                                     .arg(held));
        }
        for (std::size_t i = 0; i < m_set.sections.size(); ++i) {
            ParameterSection& section = m_set.sections[i];
            if (section.axis >= 0 && !m_set.section(section.family, section.card, -1))
                fault(section.line, ParameterText::tr("[%1] has no card section")
                                        .arg(QString::fromStdString(section.name())));
            reportMissing(section, m_named[i]);
            sortByCatalogue(section);
        }
        finishUnits();
    }

    // A file cut short or trimmed by hand must not import half an axis.
    void reportMissing(const ParameterSection& section, const std::set<QString>& named)
    {
        QStringList missing;
        for (const ParameterInfo& info : ParameterCatalog::all()) {
            const bool cardLevel = info.level == ParameterLevel::Card;
            if (info.existsIn(section.family) && cardLevel == (section.axis < 0) &&
                named.count(QLatin1String(info.name)) == 0)
                missing << QLatin1String(info.name);
        }
        if (missing.isEmpty())
            return;
        const int shown = 4;
        QString list = QStringList(missing.mid(0, shown)).join(QStringLiteral(", "));
        if (missing.size() > shown)
            list += ParameterText::tr(" and %1 more").arg(missing.size() - shown);
        fault(section.line,
              ParameterText::tr("[%1] lacks %2").arg(QString::fromStdString(section.name()), list));
    }

    static void sortByCatalogue(ParameterSection& section)
    {
        std::vector<ParameterValue> sorted;
        for (const ParameterInfo& info : ParameterCatalog::all()) {
            if (const ParameterValue* value = section.find(&info))
                sorted.push_back(*value);
        }
        section.values = std::move(sorted);
    }

    struct Current
    {
        bool header = false;
        bool ignored = false;
        std::optional<std::size_t> section;
        std::optional<std::size_t> units;
        std::map<QString, int> keys;
    };
    struct UnitValues
    {
        QString unit;
        std::optional<double> pulses;
        bool pulsesGiven = false;
        int decimals = 3;
    };

    std::vector<ParameterFault>& m_faults;
    ParameterSet m_set;
    Current m_current;
    std::map<QString, int> m_sectionLines;
    std::map<std::size_t, std::set<QString>> m_named;
    std::vector<UnitSection> m_unitTexts;
    std::vector<UnitValues> m_unitValues;
    int m_headerLine = 0;
    int m_cards = -1;
    int m_cardsLine = 0;
    bool m_formatVersion = false;
};

} // namespace

QByteArray ParameterText::write(const ParameterSet& set, const QDateTime& created)
{
    QByteArray out;
    line(out, QStringLiteral("; Orvane board parameters. One Name=value line per parameter; "
                             "the text after \";\" only names the value."));
    line(out, QStringLiteral("[Header]"));
    line(out, QStringLiteral("FormatVersion=%1").arg(kFormatVersion));
    line(out, QStringLiteral("Created=") + created.toString(Qt::ISODate));
    bool oneFamily = !set.cards.empty();
    for (const CardDescription& card : set.cards)
        oneFamily = oneFamily && card.family == set.cards.front().family;
    line(out, QStringLiteral("Family=") +
                  (oneFamily ? QLatin1String(familyShortName(set.cards.front().family))
                             : QLatin1String("All")));
    if (set.cards.size() == 1) {
        line(out, QStringLiteral("Card=%1").arg(set.cards.front().card));
        describe(out, set.cards.front());
    } else {
        line(out, QStringLiteral("Card=All"));
    }
    line(out, QStringLiteral("Cards=%1").arg(set.cards.size()));
    for (const ParameterSection& section : set.sections) {
        line(out, QString());
        line(out, QStringLiteral("[%1]").arg(QString::fromStdString(section.name())));
        if (section.axis < 0) {
            if (const CardDescription* card = set.card(section.family, section.card))
                describeCard(out, *card, set.axisCount(section.family, section.card));
        }
        for (const ParameterValue& v : section.values) {
            QString text = QStringLiteral("%1=%2").arg(QLatin1String(v.info->name)).arg(v.value);
            if (const char* meaning = v.info->meaning(v.value))
                text += QStringLiteral(" ; ") + QString::fromUtf8(meaning);
            line(out, text);
        }
        if (section.axis < 0)
            continue;
        if (const UnitSection* units =
                set.unitSection(section.family, section.card, section.axis)) {
            line(out, QString());
            line(out, QStringLiteral("[%1]").arg(QString::fromStdString(units->name())));
            line(out, QStringLiteral("Unit=") + units->scale.unit());
            line(out, QStringLiteral("PulsesPerUnit=") +
                          AxisUnitScale::pulsesPerUnitText(units->scale.pulsesPerUnit()));
            line(out, QStringLiteral("Decimals=%1").arg(units->scale.decimals()));
        }
    }
    return out;
}

QString ParameterText::writeFile(const QString& path, const ParameterSet& set,
                                 const QDateTime& created)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    const QByteArray text = write(set, created);
    if (file.write(text) != text.size() || !file.commit())
        return file.errorString();
    return QString();
}

ParameterSet ParameterText::read(const QByteArray& text, std::vector<ParameterFault>& faults)
{
    return Reader(faults).run(text);
}

ParameterSet ParameterText::readFile(const QString& path, std::vector<ParameterFault>& faults)
{
    // Far more than every card of every family takes; anything larger is not ours.
    constexpr qint64 kLargest = 4 * 1024 * 1024;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        faults.push_back({0, tr("cannot read %1: %2").arg(path, file.errorString())});
        return {};
    }
    // A device or pipe reports no size and may never end: it is no parameter file.
    if (!QFileInfo(path).isFile()) {
        faults.push_back({0, tr("%1 is not a regular file").arg(path)});
        return {};
    }
    const QByteArray text = file.read(kLargest + 1);
    if (text.size() > kLargest) {
        faults.push_back({0, tr("%1 is too large for a parameter file").arg(path)});
        return {};
    }
    return read(text, faults);
}

void ParameterText::merge(std::vector<ParameterFault>& faults,
                          const std::vector<ParameterFault>& more)
{
    faults.insert(faults.end(), more.begin(), more.end());
    std::stable_sort(
        faults.begin(), faults.end(),
        [](const ParameterFault& a, const ParameterFault& b) { return a.line < b.line; });
}

QString ParameterText::faultList(const std::vector<ParameterFault>& faults)
{
    // A damaged file can fault on every line; the first few hundred say enough.
    constexpr std::size_t kShown = 200;
    QStringList lines;
    for (std::size_t i = 0; i < faults.size() && i < kShown; ++i) {
        const ParameterFault& f = faults[i];
        lines << (f.line > 0 ? tr("Line %1: %2").arg(f.line).arg(f.text) : f.text);
    }
    if (faults.size() > kShown)
        lines << tr("... and %1 more fault(s)").arg(faults.size() - kShown);
    return lines.join(QLatin1Char('\n'));
}
