#pragma once

#include "ScopeChannel.h"

#include <QColor>
#include <QWidget>

#include <array>

class CardRegistry;
class QCheckBox;
class QComboBox;
class QLineEdit;

// The scope's four channel rows: on/off with the channel's colour, the axis (family, card,
// axis), the signal, and the scale (automatic, or fixed between two values).
class ScopeChannelTable : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kChannels = 4;
    struct Scale
    {
        bool automatic = true;
        double low = 0.0;
        double high = 0.0;
    };

    explicit ScopeChannelTable(const CardRegistry& registry, QWidget* parent = nullptr);

    static QColor colour(int index);
    ScopeChannel channel(int index) const;
    // Selects the axis and signal of a row and switches it on; false when the axis is not
    // installed.
    bool setChannel(int index, const ScopeChannel& channel);
    Scale scale(int index) const;

signals:
    // Which axes and signals are read changed.
    void channelsChanged();
    // Only a scale changed: a redraw, no new recording.
    void scalesChanged();

private:
    struct Row
    {
        QCheckBox* enabled = nullptr;
        QComboBox* axis = nullptr;
        QComboBox* signal = nullptr;
        QComboBox* scale = nullptr;
        QLineEdit* low = nullptr;
        QLineEdit* high = nullptr;
    };

    void fillAxes(QComboBox* combo, const CardRegistry& registry);
    void applyScaleMode(const Row& row);

    std::array<Row, kChannels> m_rows;
};
