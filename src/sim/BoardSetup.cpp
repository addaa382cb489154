#include "BoardSetup.h"

#include "IniFile.h"

#include <algorithm>
#include <cctype>
#include <functional>

namespace nrxsim {

namespace {

constexpr int32_t DefaultVersions[3] = {1020304, 1020305, 1020306};

// Reads keys of one section with fallbacks, and notes values that are no numbers.
class SectionReader
{
public:
    SectionReader(const IniFile& ini, std::vector<std::string> sections,
                  std::vector<std::string>& warnings)
        : ini_(ini), sections_(std::move(sections)), warnings_(warnings)
    {}

    template <typename T> void read(const char* key, T& target, int64_t lo, int64_t hi) const
    {
        for (const auto& section : sections_) {
            const auto text = ini_.value(section, key);
            if (!text)
                continue;
            const auto v = IniFile::toInteger(*text);
            if (!v || *v < lo || *v > hi) {
                warnings_.push_back("[" + section + "] " + key + "=" + *text + " ignored");
                return;
            }
            target = static_cast<T>(*v);
            return;
        }
    }

    void readSignal(const char* key, BoardSetup::Signal& target, int outputs) const
    {
        for (const auto& section : sections_) {
            const auto text = ini_.value(section, key);
            if (!text)
                continue;
            target = parseSignal(section, key, *text, outputs);
            return;
        }
    }

    BoardSetup::Signal parseSignal(const std::string& section, const std::string& key,
                                   const std::string& text, int outputs) const
    {
        BoardSetup::Signal s;
        if (text.size() > 2 && std::toupper(static_cast<unsigned char>(text[0])) == 'D' &&
            std::toupper(static_cast<unsigned char>(text[1])) == 'O') {
            const auto bit = IniFile::toInteger(text.substr(2));
            if (bit && *bit >= 0 && *bit < outputs) {
                s.fromOutput = true;
                s.value = static_cast<int>(*bit);
                return s;
            }
        } else if (text == "0" || text == "1") {
            s.value = text == "1";
            return s;
        }
        warnings_.push_back("[" + section + "] " + key + "=" + text + " ignored");
        return s;
    }

private:
    const IniFile& ini_;
    std::vector<std::string> sections_;
    std::vector<std::string>& warnings_;
};

// Refusals to rehearse: "Fail.SetPosSpeed=-1" in the family's section.
void readForcedResults(const IniFile& file, const std::string& family, BoardSetup& setup)
{
    for (int op = 0; op < kBoardOpCount; ++op) {
        const std::string key = std::string("Fail.") + kBoardOps[op].name;
        const auto text = file.value(family, key);
        if (!text)
            continue;
        const auto value = IniFile::toInteger(*text);
        if (value && *value >= INT32_MIN && *value <= INT32_MAX)
            setup.forcedResults[static_cast<std::size_t>(op)] = static_cast<int32_t>(*value);
        else
            setup.warnings.push_back("[" + family + "] " + key + "=" + *text + " ignored");
    }
}

// Keys the file may hold, in lower case, by the kind of section.
constexpr const char* FamilyKeys[] = {"cards", "version", "loadresult"};
constexpr const char* CardKeys[] = {"axes",           "io",      "firmware", "info", "emergency",
                                    "emergencylevel", "loopback"};
constexpr const char* AxisKeys[] = {
    "start",        "pluslimit",      "minuslimit",   "limitlevel",    "origin",
    "originwidth",  "originlevel",    "zperiod",      "zoffset",       "zlevel",
    "alarm",        "alarmlevel",     "inposlevel",   "servolag",      "slip",
    "needsservoon", "servobandwidth", "servodamping", "inposwindow",   "inpossettle",
    "inpostimeout", "followinglimit", "backlash",     "positionnoise", "homejitter"};

bool listed(const std::string& key, const char* const* begin, const char* const* end)
{
    return std::find(begin, end, key) != end;
}

// "<stem><number>" with a number in [0, count).
bool numbered(const std::string& text, const std::string& stem, int count)
{
    if (text.compare(0, stem.size(), stem) != 0 || text.size() == stem.size())
        return false;
    const auto n = IniFile::toInteger(text.substr(stem.size()));
    return n && *n >= 0 && *n < count && std::isdigit(static_cast<unsigned char>(text.back()));
}

bool knownOperation(const std::string& key)
{
    for (const auto& op : kBoardOps) {
        std::string name(op.name);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
        if (key == "fail." + name)
            return true;
    }
    return false;
}

// Notes sections and keys of this family (and [Axes]) that nothing reads: a misspelt name.
void reportUnknownNames(const IniFile& file, const std::string& familyName,
                        std::vector<std::string>& warnings)
{
    std::string family = familyName;
    std::transform(family.begin(), family.end(), family.begin(),
                   [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    const std::string others[] = {"rl", "rm", "rn"};
    for (const auto& [section, keys] : file.sections()) {
        const auto dot = section.find('.');
        const std::string head = section.substr(0, dot);
        const std::string rest = dot == std::string::npos ? "" : section.substr(dot + 1);
        std::function<bool(const std::string&)> known;
        if (section == family) {
            known = [](const std::string& k) {
                return listed(k, std::begin(FamilyKeys), std::end(FamilyKeys)) || knownOperation(k);
            };
        } else if (section == "axes" ||
                   (head == family && rest.find('.') != std::string::npos &&
                    numbered(rest.substr(0, rest.find('.')), "card", MaxCards) &&
                    numbered(rest.substr(rest.find('.') + 1), "axis", MaxAxes))) {
            known = [](const std::string& k) {
                return listed(k, std::begin(AxisKeys), std::end(AxisKeys));
            };
        } else if (head == family && numbered(rest, "card", MaxCards)) {
            known = [](const std::string& k) {
                return listed(k, std::begin(CardKeys), std::end(CardKeys)) ||
                       numbered(k, "input", MaxIoPoints);
            };
        } else if (section.empty() ||
                   (head != family &&
                    std::find(std::begin(others), std::end(others), head) != std::end(others))) {
            continue; // another family's, or lines before the first section
        } else {
            warnings.push_back("[" + section + "] unknown section");
            continue;
        }
        for (const auto& entry : keys) {
            if (!known(entry.first))
                warnings.push_back("[" + section + "] " + entry.first + " unknown key");
        }
    }
}

} // namespace

const char* BoardSetup::familyName(int familyIndex)
{
    static const char* names[3] = {"RL", "RM", "RN"};
    return names[std::clamp(familyIndex, 0, 2)];
}

BoardSetup::Card BoardSetup::card(int axes, int io, int32_t firmware, int32_t info)
{
    Card c;
    c.axes = axes;
    c.io = io;
    c.firmware = firmware;
    c.info = info;
    for (int i = 0; i < MaxIoPoints; ++i)
        c.inputs[i] = Signal{true, i};
    return c;
}

BoardSetup BoardSetup::builtIn(int familyIndex)
{
    BoardSetup setup;
    setup.familyIndex = familyIndex;
    setup.version = DefaultVersions[std::clamp(familyIndex, 0, 2)];
    switch (familyIndex) {
    case 0:
        setup.cards = {card(4, 16, 0x21, 0), card(2, 24, 0x21, 1)};
        break;
    case 1:
        setup.cards = {card(8, 64, 0x32, 0)};
        break;
    default:
        setup.cards = {card(4, 64, 0x13, 0), card(8, 24, 0x13, 1)};
        break;
    }
    return setup;
}

BoardSetup BoardSetup::read(int familyIndex, const IniFile* file)
{
    if (!file)
        return builtIn(familyIndex);

    BoardSetup setup;
    setup.familyIndex = familyIndex;
    setup.fromFile = true;
    setup.version = DefaultVersions[std::clamp(familyIndex, 0, 2)];
    const std::string family = familyName(familyIndex);
    if (!file->hasSection(family))
        return setup; // the file describes no board of this family
    reportUnknownNames(*file, family, setup.warnings);

    SectionReader familyKeys(*file, {family}, setup.warnings);
    int cardCount = 1;
    familyKeys.read("Cards", cardCount, 0, MaxCards);
    familyKeys.read("Version", setup.version, 0, INT32_MAX);
    int32_t forced = 0;
    familyKeys.read("LoadResult", forced, INT32_MIN, -1);
    if (forced < 0)
        setup.forcedLoadResult = forced;
    readForcedResults(*file, family, setup);

    for (int c = 0; c < cardCount; ++c) {
        const std::string cardSection = family + ".Card" + std::to_string(c);
        Card cd = card(4, 16, 0x21, c);
        SectionReader cardKeys(*file, {cardSection}, setup.warnings);
        cardKeys.read("Axes", cd.axes, 1, MaxAxes);
        cardKeys.read("IO", cd.io, 0, MaxIoPoints);
        cardKeys.read("Firmware", cd.firmware, 0, INT32_MAX);
        cardKeys.read("Info", cd.info, INT32_MIN, INT32_MAX);
        cardKeys.readSignal("Emergency", cd.emergency, cd.io);
        cardKeys.read("EmergencyLevel", cd.emergencyLevel, 0, 1);
        int loopback = 1;
        cardKeys.read("Loopback", loopback, 0, 1);
        for (int i = 0; i < MaxIoPoints; ++i) {
            cd.inputs[i] = Signal{loopback != 0, loopback ? i : 0};
            cardKeys.readSignal(("Input" + std::to_string(i)).c_str(), cd.inputs[i], cd.io);
        }
        for (int a = 0; a < cd.axes; ++a) {
            Axis& ax = cd.axis[a];
            SectionReader k(*file, {cardSection + ".Axis" + std::to_string(a), "Axes"},
                            setup.warnings);
            constexpr int64_t far = INT32_MAX;
            k.read("Start", ax.start, -far, far);
            k.read("PlusLimit", ax.plusLimit, -far, far);
            k.read("MinusLimit", ax.minusLimit, -far, far);
            k.read("LimitLevel", ax.limitLevel, 0, 1);
            k.read("Origin", ax.origin, -far, far);
            k.read("OriginWidth", ax.originWidth, 0, far);
            k.read("OriginLevel", ax.originLevel, 0, 1);
            k.read("ZPeriod", ax.zPeriod, 0, far);
            k.read("ZOffset", ax.zOffset, -far, far);
            k.read("ZLevel", ax.zLevel, 0, 1);
            k.readSignal("Alarm", ax.alarm, cd.io);
            k.read("AlarmLevel", ax.alarmLevel, 0, 1);
            k.read("InposLevel", ax.inposLevel, 0, 1);
            k.read("ServoLag", ax.servoLag, 0, 1000);
            k.read("Slip", ax.slip, 0, 1000);
            k.read("NeedsServoOn", ax.needsServoOn, 0, 1);
            k.read("ServoBandwidth", ax.servoBandwidth, 0, 1000);
            k.read("ServoDamping", ax.servoDamping, 10, 1000);
            k.read("InposWindow", ax.inposWindow, 0, far);
            k.read("InposSettle", ax.inposSettle, 0, 60000);
            k.read("InposTimeout", ax.inposTimeout, 1, 600000);
            k.read("FollowingLimit", ax.followingLimit, 0, far);
            k.read("Backlash", ax.backlash, 0, far);
            k.read("PositionNoise", ax.positionNoise, 0, far);
            k.read("HomeJitter", ax.homeJitter, 0, far);
        }
        setup.cards.push_back(cd);
    }
    return setup;
}

} // namespace nrxsim
