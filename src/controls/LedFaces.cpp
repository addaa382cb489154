#include "LedFaces.h"

#include <QPainter>
#include <QRadialGradient>

#include <array>

QColor LedFaces::groundColor(LedGround ground)
{
    return ground == LedGround::White ? QColor(255, 255, 255) : QColor(212, 208, 200);
}

QColor LedFaces::lampColor(LedLamp lamp)
{
    switch (lamp) {
    case LedLamp::Green:
        return QColor(0, 220, 0);
    case LedLamp::Red:
        return QColor(230, 0, 0);
    case LedLamp::Grey:
    case LedLamp::Flat:
        break;
    }
    return QColor(150, 150, 150);
}

QPixmap LedFaces::draw(LedLamp lamp, LedGround ground)
{
    QPixmap pixmap(kSize, kSize);
    if (lamp == LedLamp::Flat) {
        // An absent signal shows no lamp at all, whatever the monitor's ground.
        pixmap.fill(QColor(192, 192, 192));
        return pixmap;
    }
    pixmap.fill(groundColor(ground));
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = lampColor(lamp);
    QRadialGradient gradient(QPointF(6.0, 6.0), 7.0);
    gradient.setColorAt(0.0, colour.lighter(170));
    gradient.setColorAt(1.0, colour.darker(130));
    painter.setBrush(gradient);
    painter.setPen(QPen(QColor(80, 80, 80), 1.0));
    painter.drawEllipse(QRectF(1.5, 1.5, 13.0, 13.0));
    return pixmap;
}

QPixmap LedFaces::face(LedLamp lamp, LedGround ground)
{
    // Four lamps on two grounds, drawn on first use; QPixmap copies share the image.
    static std::array<QPixmap, 8> cache;
    const std::size_t slot = static_cast<std::size_t>(lamp) * 2 + static_cast<std::size_t>(ground);
    if (cache[slot].isNull())
        cache[slot] = draw(lamp, ground);
    return cache[slot];
}
