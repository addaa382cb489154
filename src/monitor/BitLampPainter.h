#pragma once

#include <QPixmap>
#include <QString>

// Draws the 43 x 16 bevelled bit lamps of the status pages: grey when off, green when on,
// with the bit's caption written inside.
class BitLampPainter
{
public:
    static constexpr int kWidth = 43;
    static constexpr int kHeight = 16;

    static QColor faceColor(bool lit);
    static QPixmap draw(const QString& caption, bool lit);
};
