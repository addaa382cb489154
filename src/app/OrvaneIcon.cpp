#include "OrvaneIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

QPixmap OrvaneIcon::pixmap(int size)
{
    QPixmap image(size, size);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 64.0, size / 64.0);

    // The same picture as packaging/orvane.svg: a pulse train over a dark blue tile, with the
    // motion it commands drawn as an orange ramp.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x1f, 0x3a, 0x68));
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 12, 12);

    QPainterPath pulses;
    pulses.moveTo(10, 44);
    for (int x = 10; x < 50; x += 10) {
        pulses.lineTo(x, 30);
        pulses.lineTo(x + 5, 30);
        pulses.lineTo(x + 5, 44);
        pulses.lineTo(x + 10, 44);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x9e, 0xd0, 0xff), 3.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(pulses);

    QPainterPath ramp;
    ramp.moveTo(10, 54);
    ramp.lineTo(22, 16);
    ramp.lineTo(42, 16);
    ramp.lineTo(54, 54);
    painter.setPen(QPen(QColor(0xff, 0x9f, 0x1c), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(ramp);
    return image;
}

QIcon OrvaneIcon::create()
{
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(pixmap(size));
    return icon;
}
