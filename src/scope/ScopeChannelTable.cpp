#include "ScopeChannelTable.h"

#include "CardRegistry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>

namespace {

// An axis packed into one combo item: family, card and axis.
int packAxis(BoardFamily family, int card, int axis)
{
    return familyIndex(family) * 100 + card * 10 + axis;
}

QIcon swatch(const QColor& colour)
{
    QPixmap pixmap(12, 12);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

} // namespace

ScopeChannelTable::ScopeChannelTable(const CardRegistry& registry, QWidget* parent)
    : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(2);
    const QStringList titles{QString(),   tr("Axis"), tr("Signal"),
                             tr("Scale"), tr("Low"),  tr("High")};
    for (int column = 0; column < titles.size(); ++column)
        grid->addWidget(new QLabel(titles[column]), 0, column);
    for (int i = 0; i < kChannels; ++i) {
        Row& row = m_rows[static_cast<size_t>(i)];
        const QString number = QString::number(i + 1);
        row.enabled = new QCheckBox(tr("Ch %1").arg(number));
        row.enabled->setIcon(swatch(colour(i)));
        row.enabled->setObjectName(QStringLiteral("channel%1").arg(number));
        row.enabled->setToolTip(tr("Record this channel; the swatch is its colour"));
        row.axis = new QComboBox;
        row.axis->setObjectName(QStringLiteral("axis%1").arg(number));
        row.axis->setToolTip(tr("Board family, card and axis (card.axis)"));
        fillAxes(row.axis, registry);
        row.signal = new QComboBox;
        row.signal->setObjectName(QStringLiteral("signal%1").arg(number));
        for (int s = 0; s < ScopeChannel::kSignalCount; ++s)
            row.signal->addItem(ScopeChannel::signalName(static_cast<ScopeChannel::Signal>(s)));
        row.signal->setToolTip(tr("Following Error is command minus actual position"));
        row.scale = new QComboBox;
        row.scale->setObjectName(QStringLiteral("scale%1").arg(number));
        row.scale->addItems({tr("Auto"), tr("Fixed")});
        row.scale->setToolTip(tr("Fit the channel's values, or show Low to High"));
        row.low = new QLineEdit(QStringLiteral("0"));
        row.high = new QLineEdit(QStringLiteral("10000"));
        for (QLineEdit* edit : {row.low, row.high}) {
            edit->setValidator(new QDoubleValidator(edit));
            edit->setMaximumWidth(80);
        }
        applyScaleMode(row);
        const std::array<QWidget*, 6> cells{row.enabled, row.axis, row.signal,
                                            row.scale,   row.low,  row.high};
        for (int column = 0; column < static_cast<int>(cells.size()); ++column)
            grid->addWidget(cells[static_cast<size_t>(column)], i + 1, column);

        connect(row.enabled, &QCheckBox::toggled, this, [this] { emit channelsChanged(); });
        connect(row.axis, &QComboBox::activated, this, [this] { emit channelsChanged(); });
        connect(row.signal, &QComboBox::activated, this, [this] { emit channelsChanged(); });
        connect(row.scale, &QComboBox::currentIndexChanged, this, [this, i] {
            applyScaleMode(m_rows[static_cast<size_t>(i)]);
            emit scalesChanged();
        });
        for (QLineEdit* edit : {row.low, row.high})
            connect(edit, &QLineEdit::editingFinished, this, [this] { emit scalesChanged(); });
    }
    grid->setColumnStretch(6, 1);
}

QColor ScopeChannelTable::colour(int index)
{
    static const QColor colours[kChannels] = {QColor(0, 70, 220), QColor(210, 30, 30),
                                              QColor(0, 140, 60), QColor(170, 0, 170)};
    return colours[index & 3];
}

void ScopeChannelTable::fillAxes(QComboBox* combo, const CardRegistry& registry)
{
    for (const BoardFamily family : kAllFamilies) {
        for (int card = 0; card < registry.cardCount(family); ++card) {
            for (int axis = 0; axis < registry.axisCount(family, card); ++axis)
                combo->addItem(QStringLiteral("%1 %2.%3")
                                   .arg(QString::fromLatin1(familyShortName(family)))
                                   .arg(card)
                                   .arg(axis),
                               packAxis(family, card, axis));
        }
    }
}

void ScopeChannelTable::applyScaleMode(const Row& row)
{
    const bool fixed = row.scale->currentIndex() == 1;
    row.low->setEnabled(fixed);
    row.high->setEnabled(fixed);
}

ScopeChannel ScopeChannelTable::channel(int index) const
{
    const Row& row = m_rows[static_cast<size_t>(index)];
    ScopeChannel channel;
    const int packed = row.axis->currentData().toInt();
    channel.enabled = row.enabled->isChecked() && row.axis->currentIndex() >= 0;
    channel.family = static_cast<BoardFamily>(packed / 100);
    channel.card = packed / 10 % 10;
    channel.axis = packed % 10;
    channel.signal = static_cast<ScopeChannel::Signal>(std::max(0, row.signal->currentIndex()));
    return channel;
}

bool ScopeChannelTable::setChannel(int index, const ScopeChannel& channel)
{
    const Row& row = m_rows[static_cast<size_t>(index)];
    const int item = row.axis->findData(packAxis(channel.family, channel.card, channel.axis));
    if (item < 0)
        return false;
    row.axis->setCurrentIndex(item);
    row.signal->setCurrentIndex(channel.signal);
    row.enabled->setChecked(channel.enabled);
    emit channelsChanged();
    return true;
}

ScopeChannelTable::Scale ScopeChannelTable::scale(int index) const
{
    const Row& row = m_rows[static_cast<size_t>(index)];
    Scale scale;
    scale.automatic = row.scale->currentIndex() == 0;
    scale.low = row.low->text().toDouble();
    scale.high = row.high->text().toDouble();
    return scale;
}
