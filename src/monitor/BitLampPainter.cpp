#include "BitLampPainter.h"

#include <QFont>
#include <QPainter>

QColor BitLampPainter::faceColor(bool lit)
{
    return lit ? QColor(5, 255, 5) : QColor(204, 204, 204);
}

QPixmap BitLampPainter::draw(const QString& caption, bool lit)
{
    QPixmap pixmap(kWidth, kHeight);
    pixmap.fill(faceColor(lit));
    QPainter painter(&pixmap);
    // Raised bevel: light top and left, dark bottom and right.
    const int right = kWidth - 1;
    const int bottom = kHeight - 1;
    painter.setPen(QColor(255, 255, 255));
    painter.drawLine(0, 0, right - 1, 0);
    painter.drawLine(0, 0, 0, bottom - 1);
    painter.setPen(QColor(64, 64, 64));
    painter.drawLine(0, bottom, right, bottom);
    painter.drawLine(right, 0, right, bottom);
    painter.setPen(QColor(128, 128, 128));
    painter.drawLine(1, bottom - 1, right - 1, bottom - 1);
    painter.drawLine(right - 1, 1, right - 1, bottom - 1);

    QFont font = painter.font();
    font.setPixelSize(9);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor(32, 32, 32));
    painter.drawText(QRect(1, 1, kWidth - 3, kHeight - 3), Qt::AlignCenter, caption);
    return pixmap;
}
