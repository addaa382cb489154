#pragma once

#include "ScopeChannel.h"
#include "ScopeRecorder.h"

#include <QVariantMap>

#include <array>

// The scope's setup as the user's settings keep it between runs: the channels, the time base
// and the trigger.
class ScopeSetup
{
public:
    using Channels = std::array<ScopeChannel, ScopeRecorder::kChannels>;

    static QVariantMap toMap(const Channels& channels, const ScopeRecorder::Settings& settings);
    // Takes over what the map holds and leaves the rest as it was; a value out of range
    // (a file from another version) is left out.
    static void fromMap(const QVariantMap& map, Channels& channels,
                        ScopeRecorder::Settings& settings);
};
