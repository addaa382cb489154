#include "COV_StBaseWnd.h"

#include "AppState.h"
#include "StatusColumnRules.h"
#include "StatusLampPage.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

COV_StBaseWnd::COV_StBaseWnd(AppState& state, BoardApi& board, QWidget* parent)
    : QWidget(parent), m_state(state), m_board(board)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(createTabs());
    layout->addWidget(createPages());
    layout->addWidget(createPagingButtons());
    layout->addStretch(1);
}

QWidget* COV_StBaseWnd::createTabs()
{
    m_tabs = new QTabBar(this);
    m_tabs->addTab(tr("Card"));
    m_tabs->addTab(tr("Drive"));
    m_tabs->setExpanding(false);
    connect(m_tabs, &QTabBar::currentChanged, this,
            [this](int index) { m_stack->setCurrentIndex(index); });
    return m_tabs;
}

QWidget* COV_StBaseWnd::createPages()
{
    m_stack = new QStackedWidget(this);
    m_cardPage = new COV_StCardWnd(StatusWordKind::Card, m_state, m_board, m_stack);
    m_drivePage = new COV_StDrvWnd(StatusWordKind::Drive, m_state, m_board, m_stack);
    m_stack->addWidget(m_cardPage);
    m_stack->addWidget(m_drivePage);
    return m_stack;
}

QPushButton* COV_StBaseWnd::createPagingButton(const QString& caption,
                                               void (COV_StBaseWnd::*action)())
{
    auto* button = new QPushButton(caption, this);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedWidth(40);
    connect(button, &QPushButton::clicked, this, [this, action] { (this->*action)(); });
    return button;
}

QWidget* COV_StBaseWnd::createPagingButtons()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(createPagingButton(QStringLiteral("<<"), &COV_StBaseWnd::pageFirst));
    layout->addWidget(createPagingButton(QStringLiteral("<"), &COV_StBaseWnd::pagePrevious));
    layout->addWidget(createPagingButton(QStringLiteral(">"), &COV_StBaseWnd::pageNext));
    layout->addWidget(createPagingButton(QStringLiteral(">>"), &COV_StBaseWnd::pageLast));
    const char* const tips[] = {
        QT_TR_NOOP("Show the first four axes"), QT_TR_NOOP("Show the previous four axes"),
        QT_TR_NOOP("Show the next four axes"), QT_TR_NOOP("Show the last four axes")};
    for (int i = 0; i < layout->count(); ++i)
        layout->itemAt(i)->widget()->setToolTip(tr(tips[i]));
    layout->addStretch(1);
    return row;
}

int COV_StBaseWnd::currentPage() const
{
    return m_tabs->currentIndex();
}

void COV_StBaseWnd::showPage(int page)
{
    m_tabs->setCurrentIndex(page);
}

StatusLampPage* COV_StBaseWnd::page(int page) const
{
    if (page == CardPage)
        return m_cardPage;
    return m_drivePage;
}

void COV_StBaseWnd::refresh()
{
    // The hidden page is not polled; its lamps keep their last state.
    page(currentPage())->refresh();
}

// The paging buttons change no lamp at once; the next tick redraws.
void COV_StBaseWnd::setFirstAxis(int firstAxis)
{
    m_firstAxis = firstAxis;
    m_cardPage->setFirstAxis(firstAxis);
    m_drivePage->setFirstAxis(firstAxis);
}

void COV_StBaseWnd::pageFirst()
{
    setFirstAxis(StatusColumnRules::pageFirst(m_firstAxis));
}
void COV_StBaseWnd::pagePrevious()
{
    setFirstAxis(StatusColumnRules::pagePrevious(m_firstAxis));
}
void COV_StBaseWnd::pageNext()
{
    setFirstAxis(StatusColumnRules::pageNext(m_firstAxis));
}
void COV_StBaseWnd::pageLast()
{
    setFirstAxis(StatusColumnRules::pageLast(m_firstAxis));
}

void COV_StBaseWnd::handleUserMessage(UserMessage message, int wParam)
{
    switch (message) {
    case UM_CONTROLLER_CHANGED:
        setFirstAxis(StatusColumnRules::groupOf(m_state.active.axis, m_firstAxis));
        for (StatusLampPage* each : {page(CardPage), page(DrivePage)}) {
            each->loadImages();
            each->resetLamps();
        }
        break;
    case UM_AXIS_CHANGED:
        // Following the operated axis is a user setting.
        if (m_state.statusFollowsOperation != 0)
            setFirstAxis(StatusColumnRules::groupOf(wParam, m_firstAxis));
        break;
    default:
        break;
    }
}
