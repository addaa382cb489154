#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

// Lays out the fields of a single-axis page's group, one row each: caption, control, unit and
// an optional button, with the same column widths on every group so the fields line up.
class PageFieldGrid
{
public:
    explicit PageFieldGrid(QWidget* group);

    // A captioned control of the caller's (a combo, a check box pair) on a row of its own.
    void addRow(const QString& caption, QWidget* control);
    void addRow(QWidget* first, QWidget* second);
    QLineEdit* addField(const QString& caption, const QString& unit, const char* name,
                        QLabel** captionOut = nullptr);
    // A button at the end of the last row.
    QPushButton* addButton(const QString& caption, const char* name);

private:
    QGridLayout* m_grid;
    int m_row = 0;
};
