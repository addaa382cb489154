#include "COV_DIoWnd.h"

#include "AppState.h"
#include "CLedButton.h"
#include "CardSelectorRow.h"
#include "FrameRelay.h"
#include "LedFaces.h"
#include "NamedButton.h"
#include "PollInterval.h"
#include "PromptService.h"
#include "PromptTexts.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>
#include <QtGlobal>

COV_DIoWnd::COV_DIoWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context), m_model(context.board)
{
    setWindowIcon(QIcon(LedFaces::face(LedLamp::Green, LedGround::Grey)));
    auto* layout = new QVBoxLayout(this);
    m_cardRow = new CardSelectorRow;
    layout->addWidget(m_cardRow);
    auto* body = new QHBoxLayout;
    body->addWidget(createSide(DigitalPointPage::Inputs));
    body->addWidget(createSide(DigitalPointPage::Outputs));
    body->addWidget(createButtonColumn());
    layout->addLayout(body, 1);
    connectControls();

    fillCardCombo();
    setUp();
    m_timer.setInterval(kPollIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
    m_timer.start();
}

QWidget* COV_DIoWnd::createSide(DigitalPointPage::Side side)
{
    const bool inputs = side == DigitalPointPage::Inputs;
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* tabs = new QTabBar;
    tabs->setObjectName(inputs ? QStringLiteral("inputTabs") : QStringLiteral("outputTabs"));
    tabs->setDrawBase(true);
    auto* page = new DigitalPointPage(side);
    page->setObjectName(inputs ? QStringLiteral("inputPage") : QStringLiteral("outputPage"));
    auto* word = new QLineEdit;
    word->setObjectName(inputs ? QStringLiteral("inputWord") : QStringLiteral("outputWord"));
    word->setReadOnly(inputs);
    word->setToolTip(inputs ? tr("The inputs of the page as a hexadecimal word")
                            : tr("The outputs of the page as a hexadecimal word; type "
                                 "a word and press Enter to write it"));
    layout->addWidget(tabs);
    layout->addWidget(page);
    layout->addSpacing(4);
    layout->addWidget(word);
    layout->addStretch();
    if (inputs) {
        m_inputTabs = tabs;
        m_inputPage = page;
        m_inputWord = word;
    } else {
        m_outputTabs = tabs;
        m_outputPage = page;
        m_outputWord = word;
    }
    return column;
}

QWidget* COV_DIoWnd::createFilterGroup()
{
    auto* group = new QGroupBox(tr(" Filter Setting "));
    auto* grid = new QGridLayout(group);
    m_filterEnable = new QComboBox;
    m_filterEnable->setObjectName(QStringLiteral("filterEnable"));
    m_filterEnable->addItems({tr("Disable"), tr("Enable")});
    m_filterEnable->setToolTip(tr("Whether the card filters its digital inputs"));
    m_filterTime = new QComboBox;
    m_filterTime->setObjectName(QStringLiteral("filterTime"));
    for (int k = 0; k < DigitalIoModel::kFilterTimes; ++k)
        m_filterTime->addItem(QString::number(0.001 * (1 << k), 'f', 3));
    m_filterTime->setToolTip(tr("How long an input must hold before it counts"));
    m_setPrm =
        makeNamedButton(tr("Set Prm"), "setPrmButton", tr("Write the filter settings to the card"));
    grid->addWidget(new QLabel(tr("Enable")), 0, 0);
    grid->addWidget(m_filterEnable, 0, 1, 1, 2);
    grid->addWidget(new QLabel(tr("Filter Time")), 1, 0);
    grid->addWidget(m_filterTime, 1, 1);
    grid->addWidget(new QLabel(tr("[msec]")), 1, 2);
    grid->addWidget(m_setPrm, 2, 0, 1, 3);
    return group;
}

QWidget* COV_DIoWnd::createButtonColumn()
{
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    m_outputDisable = new QCheckBox(tr(" Output Disable"));
    m_outputDisable->setObjectName(QStringLiteral("outputDisable"));
    m_outputDisable->setToolTip(tr("Lock every output against clicks and writes"));
    m_odd = makeNamedButton(tr("Odd"), "oddButton",
                            tr("Outputs 1, 3, 5, ... counted from one on, the rest off"));
    m_even = makeNamedButton(tr("Even"), "evenButton",
                             tr("Outputs 2, 4, 6, ... counted from one on, the rest off"));
    m_allOn = makeNamedButton(tr("All On"), "allOnButton", tr("Every output of the page on"));
    m_allOff = makeNamedButton(tr("All Off"), "allOffButton", tr("Every output of the page off"));
    m_close = makeNamedButton(tr("Close"), "closeButton");
    layout->addWidget(m_outputDisable);
    for (QPushButton* button : {m_odd, m_even, m_allOn, m_allOff})
        layout->addWidget(button);
    layout->addSpacing(8);
    layout->addWidget(createFilterGroup());
    layout->addStretch();
    layout->addWidget(m_close);
    return column;
}

void COV_DIoWnd::connectControls()
{
    connect(m_cardRow, &CardSelectorRow::cardActivated, this, [this](int index) {
        checkUnsavedFilter();
        m_card = index;
        setUp();
    });
    connect(m_inputTabs, &QTabBar::currentChanged, this, [this](int index) {
        m_model.setInputPage(index);
        m_inputPage->setUp(m_model);
    });
    connect(m_outputTabs, &QTabBar::currentChanged, this, [this](int index) {
        m_model.setOutputPage(index);
        m_outputPage->setUp(m_model);
    });
    connect(m_outputPage, &DigitalPointPage::pointClicked, this,
            [this](int position) { m_model.toggleOutput(position); });
    const std::pair<QPushButton*, DigitalIoModel::Pattern> patterns[] = {
        {m_odd, DigitalIoModel::Pattern::Odd},
        {m_even, DigitalIoModel::Pattern::Even},
        {m_allOn, DigitalIoModel::Pattern::AllOn},
        {m_allOff, DigitalIoModel::Pattern::AllOff}};
    for (const auto& [button, pattern] : patterns) {
        const DigitalIoModel::Pattern chosen = pattern;
        connect(button, &QPushButton::clicked, this,
                [this, chosen] { m_model.writePattern(chosen); });
    }
    connect(m_outputWord, &QLineEdit::returnPressed, this, [this] { onOutputWordEntered(); });
    connect(m_outputDisable, &QCheckBox::toggled, this, [this](bool on) { onLockToggled(on); });
    connect(m_setPrm, &QPushButton::clicked, this, [this] { setFilterParameters(); });
    connect(m_close, &QPushButton::clicked, this, [this] { requestClose(); });
}

void COV_DIoWnd::fillCardCombo()
{
    m_card = m_cardRow->fillActiveCards(m_context.state);
}

void COV_DIoWnd::setUp()
{
    const AppState& state = m_context.state;
    const BoardFamily family = state.active.family;
    m_model.setCard(family, m_card, state.registry.ioCount(family, m_card));
    setWindowTitle(tr("Digital IO - %1(%2)").arg(state.modelName(m_card)).arg(m_card));
    m_filterEnable->setCurrentIndex(m_model.boardFilter());
    m_filterTime->setCurrentIndex(m_model.boardFilterTime());
    fillTabs(m_inputTabs, tr("DI_%1"), m_model.inputPage());
    fillTabs(m_outputTabs, tr("DO_%1"), m_model.outputPage());
    m_inputPage->setUp(m_model);
    m_outputPage->setUp(m_model);
    m_shownInputWord.clear();
    showOutputWord();
}

void COV_DIoWnd::fillTabs(QTabBar* tabs, const QString& caption, int page)
{
    const QSignalBlocker quiet(tabs);
    while (tabs->count() > 0)
        tabs->removeTab(0);
    for (int index = 0; index < m_model.pageCount(); ++index)
        tabs->addTab(caption.arg(index));
    tabs->setCurrentIndex(page);
}

int COV_DIoWnd::tick()
{
    // The word shown is the one gathered on the previous tick.
    const QString inputWord = DigitalIoModel::formatWord(m_model.inputWord());
    if (inputWord != m_shownInputWord) {
        m_shownInputWord = inputWord;
        m_inputWord->setText(inputWord);
    }
    const std::uint32_t inputs = m_model.pollInputs();
    m_inputPage->showChanges(inputs, m_model.inputWord());
    const std::uint32_t outputs = m_model.pollOutputs();
    m_outputPage->showChanges(outputs, m_model.outputWord());
    if (m_model.outputWordChanged())
        showOutputWord();
    return static_cast<int>(qPopulationCount(inputs) + qPopulationCount(outputs));
}

void COV_DIoWnd::showOutputWord()
{
    m_outputWord->setText(DigitalIoModel::formatWord(m_model.outputWord()));
}

void COV_DIoWnd::onOutputWordEntered()
{
    // A read-only edit still reports Enter; the lock keeps the outputs as they are.
    if (m_outputWord->isReadOnly())
        return;
    std::uint32_t word = 0;
    if (!DigitalIoModel::parseWord(m_outputWord->text(), word)) {
        m_context.prompt.inform(PromptTexts::inputIncorrect());
        m_outputWord->setText(QStringLiteral("0"));
        return;
    }
    m_model.writeWord(word);
    showOutputWord();
}

void COV_DIoWnd::onLockToggled(bool locked)
{
    m_model.setLocked(locked);
    for (QPushButton* button : {m_odd, m_even, m_allOn, m_allOff})
        button->setEnabled(!locked);
    m_outputWord->setReadOnly(locked);
}

void COV_DIoWnd::setFilterParameters()
{
    m_model.setFilter(m_filterEnable->currentIndex(), m_filterTime->currentIndex());
    m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_model.card());
}

void COV_DIoWnd::checkUnsavedFilter()
{
    // The model still names the family and card the combo boxes were read from.
    if (m_model.filterDiffers(m_filterEnable->currentIndex(), m_filterTime->currentIndex()) &&
        m_context.prompt.askYesNo(PromptTexts::parametersChanged()))
        setFilterParameters();
}

void COV_DIoWnd::handleUserMessage(UserMessage message, int wParam)
{
    switch (message) {
    case UM_CONTROLLER_CHANGED:
        checkUnsavedFilter();
        fillCardCombo();
        setUp();
        break;
    case UM_VIEW_COMMAND:
        if (wParam == ToolDigitalIo)
            setUp();
        break;
    default:
        break;
    }
}

void COV_DIoWnd::askBeforeClose()
{
    checkUnsavedFilter();
}
