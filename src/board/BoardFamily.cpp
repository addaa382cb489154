#include "BoardFamily.h"

#include "nrx_contract.h"

namespace {

struct FamilyNames
{
    const char* shortName;
    const char* prefix;
    const char* stem;
    const char* controller;
};

#define ORVANE_FAMILY_NAMES_(index, shortName, prefix, stem, controller)                           \
    FamilyNames{#shortName, prefix, stem, #controller},
constexpr FamilyNames kNames[kFamilyCount] = {NRX_FOR_EACH_FAMILY(ORVANE_FAMILY_NAMES_)};
#undef ORVANE_FAMILY_NAMES_

constexpr const char* kDisplayNames[kFamilyCount] = {"NRX-RLxxxV", "NRX-RMxxxV", "NRX-RNxxxV"};

} // namespace

const char* familyDisplayName(BoardFamily family)
{
    return isKnownFamily(family) ? kDisplayNames[familyIndex(family)] : "";
}

const char* familyControllerName(BoardFamily family)
{
    return isKnownFamily(family) ? kNames[familyIndex(family)].controller : "";
}

const char* familyShortName(BoardFamily family)
{
    return isKnownFamily(family) ? kNames[familyIndex(family)].shortName : "";
}

const char* familyExportPrefix(BoardFamily family)
{
    return isKnownFamily(family) ? kNames[familyIndex(family)].prefix : "";
}

const char* familyLibraryStem(BoardFamily family)
{
    return isKnownFamily(family) ? kNames[familyIndex(family)].stem : "";
}
