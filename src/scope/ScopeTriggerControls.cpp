#include "ScopeTriggerControls.h"

#include <QComboBox>
#include <QDoubleValidator>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

namespace {

QComboBox* makeCombo(const char* name, const QString& tip, QWidget* parent)
{
    auto* combo = new QComboBox(parent);
    combo->setObjectName(QLatin1String(name));
    combo->setToolTip(tip);
    return combo;
}

} // namespace

ScopeTriggerControls::ScopeTriggerControls(QWidget* parent) : QWidget(parent)
{
    m_mode = makeCombo("trigger",
                       tr("Free Run records at once; Axis Starts waits for the trigger "
                          "channel's axis to start moving, Level for the trigger channel to "
                          "cross the level; both keep 10 % before the trigger"),
                       this);
    m_mode->addItems({tr("Free Run"), tr("Axis Starts"), tr("Level")});
    m_channel = makeCombo("triggerChannel", tr("Channel that triggers"), this);
    for (int i = 1; i <= ScopeRecorder::kChannels; ++i)
        m_channel->addItem(tr("Ch %1").arg(i));
    m_edge = makeCombo("triggerEdge", tr("Which way the channel crosses the level"), this);
    m_edge->addItems({tr("Rising"), tr("Falling"), tr("Either")});
    m_level = new QLineEdit(QStringLiteral("0"), this);
    m_level->setObjectName(QStringLiteral("triggerLevel"));
    m_level->setToolTip(tr("The level, in the trigger channel's unit as plotted"));
    auto* validator = new QDoubleValidator(m_level);
    validator->setLocale(QLocale::c());
    m_level->setValidator(validator);
    m_level->setMaximumWidth(
        m_level->fontMetrics().horizontalAdvance(QStringLiteral("-0000000.000")));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(tr("Trigger"), this));
    for (QWidget* widget : std::initializer_list<QWidget*>{m_mode, m_channel, m_edge, m_level})
        layout->addWidget(widget);

    connect(m_mode, &QComboBox::currentIndexChanged, this, [this] {
        emit modeChanged();
        emit levelChanged();
    });
    connect(m_channel, &QComboBox::currentIndexChanged, this, [this] { emit levelChanged(); });
    connect(m_level, &QLineEdit::textChanged, this, [this] { emit levelChanged(); });
    setRunning(false);
}

ScopeRecorder::Trigger ScopeTriggerControls::mode() const
{
    return static_cast<ScopeRecorder::Trigger>(m_mode->currentIndex());
}

int ScopeTriggerControls::channel() const
{
    return m_channel->currentIndex();
}

ScopeRecorder::Edge ScopeTriggerControls::edge() const
{
    return static_cast<ScopeRecorder::Edge>(m_edge->currentIndex());
}

double ScopeTriggerControls::level() const
{
    return QLocale::c().toDouble(m_level->text().trimmed());
}

void ScopeTriggerControls::setLevel(double level, int decimals)
{
    m_level->setText(QString::number(level, 'f', std::max(0, decimals)));
}

void ScopeTriggerControls::setTrigger(ScopeRecorder::Trigger mode, int channel,
                                      ScopeRecorder::Edge edge)
{
    m_mode->setCurrentIndex(int(mode));
    m_channel->setCurrentIndex(channel);
    m_edge->setCurrentIndex(int(edge));
}

void ScopeTriggerControls::setRunning(bool running)
{
    const ScopeRecorder::Trigger trigger = mode();
    m_mode->setEnabled(!running);
    m_channel->setEnabled(!running && trigger != ScopeRecorder::Trigger::FreeRun);
    const bool level = !running && trigger == ScopeRecorder::Trigger::Level;
    m_edge->setEnabled(level);
    m_level->setEnabled(level);
}
