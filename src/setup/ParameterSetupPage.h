#pragma once

#include "BoardFamily.h"
#include "PageParameters.h"

#include <QStringList>
#include <QWidget>

#include <optional>

class BoardApi;
class QComboBox;
class QGroupBox;

// One page of the parameter setup window: shows one axis's parameters of one kind, tells
// whether the board holds something else, and writes them. The host hands it card, axis and
// the card's axis count before it asks for anything; the page knows nothing of the host.
class ParameterSetupPage : public QWidget
{
    Q_OBJECT

public:
    ParameterSetupPage(BoardApi& board, ParameterPage page, QWidget* parent = nullptr)
        : QWidget(parent), m_board(board), m_page(page)
    {}

    void setCardAxis(CardNo card, AxisNo axis, int axisCount)
    {
        m_card = card;
        m_axis = axis;
        m_axisCount = axisCount;
    }

    // Reads every parameter of the page from the board and shows it, dropping edits.
    void Load(BoardFamily family);
    // Whether what the page shows differs from what the board holds.
    bool IsChanged(BoardFamily family);
    // Writes what the page shows to the board.
    void Apply(BoardFamily family);
    // The names of the parameters whose controls show an unwritten edit, in bold.
    QStringList markedEdits() const { return m_marked; }

protected:
    // What Load does for the page's own controls.
    virtual void loadShown(BoardFamily family) = 0;
    // The page's parameters as the board holds them for the current card and axis; kept as
    // the values edits are marked against.
    PageParameters boardValues(BoardFamily family) const;
    // The page's parameters as its controls show them.
    virtual PageParameters shown(BoardFamily family) = 0;

    // A drop-down list of the catalogue parameter's texts, named after the parameter.
    static QComboBox* listFor(const char* parameter);
    static QGroupBox* group(const QString& title);
    static void select(QComboBox* combo, int index);

    BoardApi& m_board;
    CardNo m_card = 0;
    AxisNo m_axis = 0;
    int m_axisCount = 0;

private:
    // Bolds the controls whose values differ from the board's as last read or written, so the
    // user sees what a leave-check is about; a control is found by its parameter's name.
    void markEdits();
    void watchEdits();

    ParameterPage m_page;
    mutable std::optional<PageParameters> m_onBoard;
    mutable BoardFamily m_boardFamily = BoardFamily::RL;
    QStringList m_marked;
    bool m_watching = false;
};
