#pragma once

#include "ToolContext.h"

#include <QDialog>

class CardTypeSelector;

// "System Reset": resets one card after a question and has every open tool window reload.
class COV_SysRstDlg : public QDialog
{
    Q_OBJECT

public:
    COV_SysRstDlg(const ToolContext& context, QWidget* parent = nullptr);

    void reset();

    CardTypeSelector* selector() const { return m_selector; }

private:
    ToolContext m_context;
    CardTypeSelector* m_selector = nullptr;
};
