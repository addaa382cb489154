#pragma once

#include "ActualSpeedCalculator.h"
#include "BoardFamily.h"
#include "ToolContext.h"

#include <QDialog>

class PlotWidget;
class QComboBox;
class QLineEdit;
class QPushButton;

// "Actual Speed Calculator": the speeds and ramp times the board produces for a requested
// position speed, beside the request and drawn as a speed profile. Reads the board, never
// writes it.
class COV_ActSpdCalDlg : public QDialog
{
    Q_OBJECT

public:
    COV_ActSpdCalDlg(const ToolContext& context, QWidget* parent = nullptr);

    // Reads the chosen axis's settings into the inputs and calculates.
    void loadAxis();
    void calculate();

    QComboBox* cardList() const { return m_cards; }
    QComboBox* axisList() const { return m_axes; }
    QComboBox* rangeModeList() const { return m_rangeMode; }
    // Inputs: drive, initial, accel, decel; outputs the same, then the range text.
    QLineEdit* input(int row) const { return m_inputs[row]; }
    QLineEdit* output(int row) const { return m_outputs[row]; }
    QLineEdit* rangeEdit() const { return m_range; }
    QLineEdit* rangeText() const { return m_rangeText; }
    PlotWidget* plot() const { return m_plot; }

private:
    QWidget* createSelectors();
    QWidget* createFields();
    QWidget* createButtons();
    void fillAxisList();
    void applyRangeMode();
    void showRange(int magnification);
    ActualSpeedCalculator::Request readRequest() const;
    void drawProfile(const ActualSpeedCalculator::Request& request,
                     const ActualSpeedCalculator::Result& result);

    ToolContext m_context;
    BoardFamily m_family;
    QComboBox* m_cards = nullptr;
    QComboBox* m_axes = nullptr;
    QComboBox* m_speedMode = nullptr;
    QComboBox* m_rangeMode = nullptr;
    QLineEdit* m_inputs[4] = {};
    QLineEdit* m_outputs[4] = {};
    QLineEdit* m_range = nullptr;
    // The magnification the board held when its card and axis were loaded.
    int m_boardRange = 100;
    QLineEdit* m_rangeText = nullptr;
    PlotWidget* m_plot = nullptr;
};
