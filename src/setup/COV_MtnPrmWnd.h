#pragma once

#include "ParameterSetupPage.h"

#include <array>

class PromptService;
class QCheckBox;
class QLabel;
class QLineEdit;

// The "Motion Parameter" page: speed range magnification, speed profile, command pulse form,
// feedback counter, origin direction, comparator source, soft limits and counter ring.
class COV_MtnPrmWnd : public ParameterSetupPage
{
    Q_OBJECT

public:
    COV_MtnPrmWnd(BoardApi& board, PromptService& prompt, QWidget* parent = nullptr);

    void loadShown(BoardFamily family) override;

protected:
    PageParameters shown(BoardFamily family) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* createRangeGroup();
    // Object names: the group's prefix, then the suffixes of its two edits.
    using Names = std::array<const char*, 3>;
    QWidget* createLimitGroup(const QString& title, const Names& names, QCheckBox*& use,
                              QLineEdit*& first, QLineEdit*& second, const QString& firstCaption,
                              const QString& secondCaption);
    void showRange();
    // The typed magnification, checked on leaving the list (focus) or on Enter.
    void takeTypedMagnification(bool onEnter);
    void useSoftLimit(bool use);
    void useCounterRing(bool use);

    PromptService& m_prompt;
    // The family the page last loaded, for the board's magnification on a refused input.
    BoardFamily m_family = BoardFamily::RL;
    // Set while a typed magnification is checked, so its own message box is no leaving.
    bool m_checking = false;

    QComboBox* m_magnification = nullptr;
    QComboBox* m_rangeMode = nullptr;
    QLabel* m_range = nullptr;
    QList<QComboBox*> m_lists;
    QCheckBox* m_softLimitUse = nullptr;
    QLineEdit* m_softLimitPlus = nullptr;
    QLineEdit* m_softLimitMinus = nullptr;
    QCheckBox* m_ringUse = nullptr;
    QLineEdit* m_ringCommand = nullptr;
    QLineEdit* m_ringActual = nullptr;
};
