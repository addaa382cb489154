#include "COV_SysIOSetWnd.h"

#include "BoardApi.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {
// The eleven lists in the order the page compares them.
constexpr const char* kListNames[] = {"AlarmUse",         "AlarmLevel",    "InpositionUse",
                                      "InpositionLevel",  "LimitStopMode", "LimitLevel",
                                      "OriginLevel",      "EncoderZLevel", "CounterClearLevel",
                                      "CounterClearTime", "EmergencyLevel"};

bool searchesLimit(int homeMode)
{
    return homeMode >= 4 && homeMode <= 7;
}
} // namespace

COV_SysIOSetWnd::COV_SysIOSetWnd(BoardApi& board, QWidget* parent)
    : ParameterSetupPage(board, ParameterPage::SystemIo, parent)
{
    for (const char* name : kListNames)
        m_lists.append(listFor(name));
    m_limitLevel = m_lists.at(5);
    m_originLevel = m_lists.at(6);

    // Each group stacks its lists.
    auto makeGroup = [this](const QString& title, std::initializer_list<int> lists) {
        QGroupBox* box = group(title);
        auto* layout = new QVBoxLayout(box);
        for (int i : lists)
            layout->addWidget(m_lists.at(i));
        layout->addStretch();
        return box;
    };
    auto* grid = new QGridLayout(this);
    grid->addWidget(makeGroup(tr(" Alarm "), {0, 1}), 0, 0);
    grid->addWidget(makeGroup(tr(" Inposition "), {2, 3}), 0, 1);
    grid->addWidget(makeGroup(tr(" Limit "), {4, 5}), 1, 0);
    grid->addWidget(makeGroup(tr(" Origin "), {6}), 1, 1);
    grid->addWidget(makeGroup(tr(" Encoder Z "), {7}), 2, 0);
    QGroupBox* counterClear = makeGroup(tr(" Counter Clear "), {8, 9});
    static_cast<QVBoxLayout*>(counterClear->layout())
        ->insertWidget(1, new QLabel(tr("Clear Time [msec]")));
    grid->addWidget(counterClear, 2, 1);
    grid->addWidget(makeGroup(tr(" EMG "), {10}), 3, 0);
    QGroupBox* remark = group(tr(" Remark "));
    auto* remarkLayout = new QVBoxLayout(remark);
    remarkLayout->addWidget(new QLabel(tr("Low Active : Normal Open\nHigh Active : Normal Close")));
    grid->addWidget(remark, 3, 1);
    grid->addWidget(new QLabel(tr("(Independence Axis)")), 4, 0, 1, 2);
    grid->setRowStretch(5, 1);

    m_originLevel->setToolTip(
        tr("Follows the limit level while the home mode searches a limit switch"));
    connect(m_limitLevel, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (m_homeUsesLimit)
            m_originLevel->setCurrentIndex(index);
    });
}

void COV_SysIOSetWnd::loadShown(BoardFamily family)
{
    const PageParameters board = boardValues(family);
    const int homeMode = m_board.GetHomeMode(family, m_card, m_axis);
    for (int i = 0; i < m_lists.size(); ++i)
        select(m_lists.at(i), board.value(kListNames[i]));
    m_homeUsesLimit = searchesLimit(homeMode);
    if (m_homeUsesLimit)
        m_originLevel->setCurrentIndex(m_limitLevel->currentIndex());
    m_originLevel->setEnabled(!m_homeUsesLimit);
}

PageParameters COV_SysIOSetWnd::shown(BoardFamily family)
{
    PageParameters values(ParameterPage::SystemIo, family);
    for (int i = 0; i < m_lists.size(); ++i)
        values.set(kListNames[i], m_lists.at(i)->currentIndex());
    // The counter-clear output is always written as in use.
    values.set("CounterClearUse", 1);
    return values;
}
