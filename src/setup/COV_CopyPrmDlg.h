#pragma once

#include "BoardFamily.h"
#include "ToolContext.h"

#include <QDialog>
#include <QTimer>

#include <vector>

class CardTypeSelector;
class QCheckBox;
class QComboBox;
class QTableWidget;

// "Copy Parameter": copies one page of parameters from one axis to the ticked axes of another
// card, also of another family; opened by the parameter setup window for its current page.
class COV_CopyPrmDlg : public QDialog
{
    Q_OBJECT

public:
    COV_CopyPrmDlg(const ToolContext& context, CardNo card, AxisNo axis, int page,
                   QWidget* parent = nullptr);

    // "OK": copies, has the parameter setup window reload and closes.
    void copyAndClose();
    // Keeps " To All" in step with the rows; the handler of the dialog's timer.
    void syncToAll();

    CardTypeSelector* sourceSelector() const { return m_source; }
    QComboBox* sourceAxisList() const { return m_sourceAxes; }
    CardTypeSelector* targetSelector() const { return m_target; }
    QTableWidget* axisRows() const { return m_rows; }
    QCheckBox* toAllBox() const { return m_toAll; }
    int targetAxisCount() const { return m_targetAxisCount; }
    void setRowTicked(int row, bool ticked);

private:
    QWidget* createSourceGroup(CardNo card, AxisNo axis);
    QWidget* createTargetGroup(CardNo card);
    void fillSourceAxes(BoardFamily family, int card, int selection);
    void fillRows();
    void tickAll(bool ticked);
    void onTargetCardChosen();
    std::vector<AxisNo> tickedAxes() const;

    ToolContext m_context;
    int m_page;
    CardTypeSelector* m_source = nullptr;
    QComboBox* m_sourceAxes = nullptr;
    CardTypeSelector* m_target = nullptr;
    QTableWidget* m_rows = nullptr;
    QCheckBox* m_toAll = nullptr;
    QTimer m_syncTimer;
    int m_targetCard = 0;
    int m_targetAxisCount = 0;
    bool m_settingAll = false; // while " To All" ticks or unticks every row
};
