#include "ScopeSetup.h"

#include <QVariantList>

QVariantMap ScopeSetup::toMap(const Channels& channels, const ScopeRecorder::Settings& settings)
{
    QVariantList list;
    for (const ScopeChannel& channel : channels) {
        list << QVariantMap{{QStringLiteral("enabled"), channel.enabled},
                            {QStringLiteral("family"), familyIndex(channel.family)},
                            {QStringLiteral("card"), channel.card},
                            {QStringLiteral("axis"), channel.axis},
                            {QStringLiteral("signal"), int(channel.signal)}};
    }
    return {{QStringLiteral("channels"), list},
            {QStringLiteral("periodMs"), settings.periodMs},
            {QStringLiteral("lengthMs"), settings.lengthMs},
            {QStringLiteral("trigger"), int(settings.trigger)},
            {QStringLiteral("triggerChannel"), settings.triggerChannel},
            {QStringLiteral("edge"), int(settings.edge)},
            {QStringLiteral("level"), settings.level},
            {QStringLiteral("repeat"), settings.repeat}};
}

void ScopeSetup::fromMap(const QVariantMap& map, Channels& channels,
                         ScopeRecorder::Settings& settings)
{
    const QVariantList list = map.value(QStringLiteral("channels")).toList();
    for (int i = 0; i < int(channels.size()) && i < list.size(); ++i) {
        const QVariantMap entry = list[i].toMap();
        const int family = entry.value(QStringLiteral("family"), -1).toInt();
        const int signal = entry.value(QStringLiteral("signal"), -1).toInt();
        if (family < 0 || family >= kFamilyCount || signal < 0 ||
            signal >= ScopeChannel::kSignalCount)
            continue;
        ScopeChannel& channel = channels[size_t(i)];
        channel.enabled = entry.value(QStringLiteral("enabled")).toBool();
        channel.family = kAllFamilies[size_t(family)];
        channel.card = entry.value(QStringLiteral("card")).toInt();
        channel.axis = entry.value(QStringLiteral("axis")).toInt();
        channel.signal = ScopeChannel::Signal(signal);
    }
    settings.periodMs = map.value(QStringLiteral("periodMs"), settings.periodMs).toInt();
    settings.lengthMs = map.value(QStringLiteral("lengthMs"), settings.lengthMs).toInt();
    const int trigger = map.value(QStringLiteral("trigger"), int(settings.trigger)).toInt();
    if (trigger >= int(ScopeRecorder::Trigger::FreeRun) &&
        trigger <= int(ScopeRecorder::Trigger::Level))
        settings.trigger = ScopeRecorder::Trigger(trigger);
    const int edge = map.value(QStringLiteral("edge"), int(settings.edge)).toInt();
    if (edge >= int(ScopeRecorder::Edge::Rising) && edge <= int(ScopeRecorder::Edge::Either))
        settings.edge = ScopeRecorder::Edge(edge);
    settings.level = map.value(QStringLiteral("level"), settings.level).toDouble();
    const int channel = map.value(QStringLiteral("triggerChannel"), 0).toInt();
    if (channel >= 0 && channel < ScopeRecorder::kChannels)
        settings.triggerChannel = channel;
    settings.repeat = map.value(QStringLiteral("repeat"), settings.repeat).toBool();
}
