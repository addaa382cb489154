#pragma once

#include <QDialog>

#include <vector>

class PromptService;
class QComboBox;
class QLineEdit;
class QSpinBox;
struct AppState;

// "Axis Units": the unit, pulses per unit and decimals of each axis of the active card, one
// row an axis. OK checks every row first and writes nothing while one is unsound; an empty
// pulses-per-unit leaves the axis in pulses.
class COV_AxisUnitsDlg : public QDialog
{
    Q_OBJECT

public:
    COV_AxisUnitsDlg(AppState& state, PromptService& prompt, QWidget* parent = nullptr);

    int rowCount() const { return static_cast<int>(m_rows.size()); }
    QComboBox* unitField(int axis) const { return m_rows[static_cast<std::size_t>(axis)].unit; }
    QLineEdit* pulsesField(int axis) const { return m_rows[static_cast<std::size_t>(axis)].pulses; }
    QSpinBox* decimalsField(int axis) const
    {
        return m_rows[static_cast<std::size_t>(axis)].decimals;
    }

    void accept() override;

private:
    struct Row
    {
        QComboBox* unit = nullptr;
        QLineEdit* pulses = nullptr;
        QSpinBox* decimals = nullptr;
    };

    QWidget* createRows();

    AppState& m_state;
    PromptService& m_prompt;
    std::vector<Row> m_rows;
};
