#include "COV_FilterSetWnd.h"

#include "BoardApi.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

namespace {
// The check-box rows: label, catalogue parameter.
struct FilterRow
{
    const char* label;
    const char* parameter;
};
constexpr FilterRow kRows[] = {
    {QT_TRANSLATE_NOOP("COV_FilterSetWnd", "+Limit\n-Limit\nOrigin"), "FilterSensor"},
    {QT_TRANSLATE_NOOP("COV_FilterSetWnd", "Inposition\nAlarm"), "FilterServo"},
    {QT_TRANSLATE_NOOP("COV_FilterSetWnd", "Encoder Z"), "FilterEncoderZ"},
    {QT_TRANSLATE_NOOP("COV_FilterSetWnd", "MPG"), "FilterExternal"},
    {QT_TRANSLATE_NOOP("COV_FilterSetWnd", "Stop"), "FilterStop"},
};
constexpr int kStopRow = 4;

QFrame* rowFrame(const QString& label, QWidget* control)
{
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    auto* layout = new QHBoxLayout(frame);
    auto* caption = new QLabel(label);
    caption->setMinimumWidth(150);
    layout->addWidget(caption);
    layout->addWidget(control, 1);
    return frame;
}
} // namespace

COV_FilterSetWnd::COV_FilterSetWnd(BoardApi& board, QWidget* parent)
    : ParameterSetupPage(board, ParameterPage::Filter, parent)
{
    auto* layout = new QVBoxLayout(this);
    m_time = listFor("FilterTime");
    layout->addWidget(rowFrame(tr("Filter Time [msec]"), m_time));
    for (const FilterRow& row : kRows) {
        auto* box = new QCheckBox(tr(" Enable"));
        box->setObjectName(QLatin1String(row.parameter));
        m_boxes.append(box);
        // The three sensors share one row, as they share one board setting.
        QFrame* frame = rowFrame(tr(row.label), box);
        layout->addWidget(frame);
        if (&row == &kRows[kStopRow])
            m_stopRow = frame;
    }
    layout->addStretch();
    m_stopRow->setObjectName(QStringLiteral("stopRow"));
}

QString COV_FilterSetWnd::sensorCaption(AxisNo axis)
{
    return axis == 0 ? tr("Enable\n(with EMG)") : tr("Enable");
}

QString COV_FilterSetWnd::externalCaption(BoardFamily family, AxisNo axis)
{
    if (family != BoardFamily::RN)
        return tr("Enable");
    return axis == 0 ? tr("Enable\n(with SYNC)") : tr("Enable\n");
}

void COV_FilterSetWnd::loadShown(BoardFamily family)
{
    m_stopRow->setVisible(family == BoardFamily::RN);
    const PageParameters board = boardValues(family);
    select(m_time, board.value("FilterTime"));
    for (int i = 0; i < m_boxes.size(); ++i)
        m_boxes.at(i)->setChecked(board.value(kRows[i].parameter) != 0);
    m_boxes.at(0)->setText(sensorCaption(m_axis));
    m_boxes.at(3)->setText(externalCaption(family, m_axis));
}

PageParameters COV_FilterSetWnd::shown(BoardFamily family)
{
    PageParameters values(ParameterPage::Filter, family);
    values.set("FilterTime", m_time->currentIndex());
    for (int i = 0; i < m_boxes.size(); ++i)
        values.set(kRows[i].parameter, m_boxes.at(i)->isChecked() ? 1 : 0);
    return values;
}
