#include "BitLamp.h"

#include "BitLampPainter.h"

#include <QPainter>

BitLamp::BitLamp(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(BitLampPainter::kWidth, BitLampPainter::kHeight);
}

void BitLamp::setImage(const QPixmap& image)
{
    m_image = image;
    update();
}

QSize BitLamp::sizeHint() const
{
    return QSize(BitLampPainter::kWidth, BitLampPainter::kHeight);
}

void BitLamp::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_image);
}
