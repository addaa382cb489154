#pragma once

#include <QCoreApplication>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QWidget;

// The controls of the multi-axis window, laid out on it in four columns: the axis list, the
// profile and positions, the counters and gantry check, and the buttons.
class MultiAxisForm
{
    Q_DECLARE_TR_FUNCTIONS(MultiAxisForm)

public:
    explicit MultiAxisForm(QWidget* window);

    QComboBox* cardCombo = nullptr;
    QListWidget* axisList = nullptr;
    QCheckBox* allAxes = nullptr;
    QComboBox* motionTypeCombo = nullptr;
    QLineEdit* drive = nullptr;
    QLineEdit* initial = nullptr;
    QLineEdit* accel = nullptr;
    QLineEdit* decel = nullptr;
    QLabel* accelLabel = nullptr;
    QCheckBox* setAll = nullptr;
    QPushButton* setPrm = nullptr;
    QCheckBox* repeat = nullptr;
    QCheckBox* infinite = nullptr;
    QLineEdit* count = nullptr;
    QLineEdit* delay = nullptr;
    QLineEdit* position1 = nullptr;
    QLineEdit* position2 = nullptr;
    QLabel* position2Label = nullptr;
    QCheckBox* applyAll = nullptr;
    QPushButton* apply = nullptr;
    QLineEdit* setCommand = nullptr;
    QLineEdit* setActual = nullptr;
    QLineEdit* repeatCount = nullptr;
    QLineEdit* cycleTime = nullptr;
    QCheckBox* gantryBox = nullptr;
    QComboBox* gantrySource = nullptr;
    QLineEdit* errorLimitEdit = nullptr;
    QPushButton* eStop = nullptr;
    QPushButton* sStop = nullptr;
    QPushButton* servo = nullptr;
    QPushButton* minus = nullptr;
    QPushButton* plus = nullptr;
    QPushButton* alarmReset = nullptr;
    QPushButton* counterClear = nullptr;
    QPushButton* parameterSetup = nullptr;
    QPushButton* scope = nullptr;
    QPushButton* close = nullptr;
    QPushButton* commandButton = nullptr;
    QPushButton* actualButton = nullptr;

private:
    QWidget* createAxisColumn();
    QWidget* createProfileGroup();
    QWidget* createRepeatGroup();
    QWidget* createCounterGroup();
    QWidget* createGantryGroup();
    QWidget* createButtonColumn();
};
