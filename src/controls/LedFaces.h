#pragma once

#include <QPixmap>

// The lamp colours a 16 x 16 LED face can show; Flat is the face of a signal the board lacks.
enum class LedLamp
{
    Grey,
    Green,
    Red,
    Flat
};
// The ground the lamp sits on: grey for the digital I/O monitor, white for the system I/O one.
enum class LedGround
{
    Grey,
    White
};

// Draws the 16 x 16 LED faces of the monitors' lamps once and hands out shared copies.
class LedFaces
{
public:
    static constexpr int kSize = 16;

    static QPixmap face(LedLamp lamp, LedGround ground);
    static QColor groundColor(LedGround ground);
    static QColor lampColor(LedLamp lamp);

private:
    static QPixmap draw(LedLamp lamp, LedGround ground);
};
