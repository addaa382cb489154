#pragma once

#include <QWidget>

#include <array>
#include <cstdint>

class CLedButton;
class DigitalIoModel;
class OutputButton;
class QAbstractButton;

// One page of 32 digital points: the input lamps (green when on) or the output buttons (red
// when on, a click switches the point). It draws only the positions it is told changed.
class DigitalPointPage : public QWidget
{
    Q_OBJECT

public:
    enum Side
    {
        Inputs,
        Outputs
    };
    static constexpr int kPositions = 32;

    explicit DigitalPointPage(Side side, QWidget* parent = nullptr);

    Side side() const { return m_side; }
    // Faces, captions and tooltips for the model's page on this side; every point off.
    void setUp(const DigitalIoModel& model);
    // Redraws the positions set in changed with their state in word.
    void showChanges(std::uint32_t changed, std::uint32_t word);
    // The lamp (input side) or button (output side) of a position.
    QAbstractButton* point(int position) const;
    CLedButton* lamp(int position) const;
    OutputButton* button(int position) const;
    bool isShownOn(int position) const;

signals:
    void pointClicked(int position);

private:
    void showPoint(int position, bool on);

    Side m_side;
    std::array<CLedButton*, kPositions> m_lamps{};
    std::array<OutputButton*, kPositions> m_buttons{};
};

// The digital I/O monitor's input page and output page.
using COV_DiWnd = DigitalPointPage;
using COV_DoWnd = DigitalPointPage;
