#pragma once

#include "DigitalIoModel.h"
#include "DigitalPointPage.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <QTimer>

class CardSelectorRow;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QTabBar;

// The digital I/O tool window: the general inputs and outputs of one card of the active
// family, 32 points a page, with the page words, output patterns and the input filter.
class COV_DIoWnd : public ToolView
{
    Q_OBJECT

public:
    explicit COV_DIoWnd(const ToolContext& context, QWidget* parent = nullptr);

    ToolKind kind() const override { return ToolDigitalIo; }
    QTimer* pollTimer() override { return &m_timer; }
    void handleUserMessage(UserMessage message, int wParam) override;

    // The 10 ms poll: the input word gathered last time, then the inputs, then the outputs.
    // Returns how many lamps and buttons changed.
    int tick();
    QTimer& timer() { return m_timer; }
    const DigitalIoModel& model() const { return m_model; }

protected:
    void askBeforeClose() override;

private:
    QWidget* createSide(DigitalPointPage::Side side);
    QWidget* createButtonColumn();
    QWidget* createFilterGroup();
    void connectControls();

    void fillCardCombo();
    void setUp();
    // caption holds the page number as %1.
    void fillTabs(QTabBar* tabs, const QString& caption, int page);
    void showOutputWord();
    void onOutputWordEntered();
    void onLockToggled(bool locked);
    void setFilterParameters();
    void checkUnsavedFilter();

    ToolContext m_context;
    DigitalIoModel m_model;
    QTimer m_timer;
    int m_card = 0;
    QString m_shownInputWord;

    CardSelectorRow* m_cardRow = nullptr;
    QTabBar* m_inputTabs = nullptr;
    QTabBar* m_outputTabs = nullptr;
    COV_DiWnd* m_inputPage = nullptr;
    COV_DoWnd* m_outputPage = nullptr;
    QLineEdit* m_inputWord = nullptr;
    QLineEdit* m_outputWord = nullptr;
    QCheckBox* m_outputDisable = nullptr;
    QPushButton* m_odd = nullptr;
    QPushButton* m_even = nullptr;
    QPushButton* m_allOn = nullptr;
    QPushButton* m_allOff = nullptr;
    QComboBox* m_filterEnable = nullptr;
    QComboBox* m_filterTime = nullptr;
    QPushButton* m_setPrm = nullptr;
    QPushButton* m_close = nullptr;
};
