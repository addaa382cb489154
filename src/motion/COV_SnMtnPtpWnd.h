#pragma once

#include "BoardFamily.h"
#include "MotionTypes.h"
#include "ProfileFields.h"
#include "PtpSpeeds.h"

#include <QWidget>

struct AppState;
class BoardApi;
class CounterPresets;
class PromptService;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class UnitEchoes;

// The "Point To Point" page of the single-axis window: the speed profile, repeat settings and
// positions of a move, and the cycle time and count while the host sequences it.
class COV_SnMtnPtpWnd : public QWidget
{
    Q_OBJECT

public:
    COV_SnMtnPtpWnd(AppState& state, BoardApi& board, PromptService& prompt,
                    QWidget* parent = nullptr);

    void setCardAxis(CardNo card, AxisNo axis);
    // Fills every field for the card and axis: remembered values and the board's profile.
    void load();
    bool parametersChanged(BoardFamily family) const;
    void setParameters(BoardFamily family);

    MotionType motionType() const { return m_motionType; }
    bool repeatTicked() const;
    bool infiniteTicked() const;
    void setRepeat(bool ticked);
    void setInfinite(bool ticked);

    PtpSpeeds speedFields() const;
    // Reads Count, Delay Time and the targets of the motion type into the remembered values.
    RepeatFields readFields();

    void showTimeAndCount(int elapsedMs, int cycleCount);
    void clearTimeAndCount();
    void setSequenceLocked(bool locked);
    UnitEchoes* unitEchoes() const { return m_echoes; }

signals:
    void motionTypeChanged();
    void repeatChanged();
    // The page wrote its edited speeds to the board after asking.
    void parametersWritten();

private:
    QWidget* createProfileGroup();
    QWidget* createRepeatGroup();
    QWidget* createPositionGroup();
    QWidget* createDisplayGroup();
    void connectControls();

    BoardFamily family() const;
    void applyFieldStates();
    void onMotionTypeActivated(int index);
    void onRepeatClicked(bool ticked);
    void onDriveSpeedChanged(const QString& text);

    AppState& m_state;
    BoardApi& m_board;
    PromptService& m_prompt;
    CardNo m_card = 0;
    AxisNo m_axis = 0;
    MotionType m_motionType = MotionType::Jog;
    QString m_lastValidDrive;
    bool m_restoringDrive = false;

    ProfileFields m_profile;
    QCheckBox* m_repeat = nullptr;
    QCheckBox* m_infinite = nullptr;
    QLineEdit* m_count = nullptr;
    QLineEdit* m_delay = nullptr;
    QLineEdit* m_position1 = nullptr;
    QLineEdit* m_position2 = nullptr;
    QLabel* m_position2Label = nullptr;
    CounterPresets* m_presets = nullptr;
    QLineEdit* m_repeatCount = nullptr;
    QLineEdit* m_cycleTime = nullptr;
    UnitEchoes* m_echoes = nullptr;
};
