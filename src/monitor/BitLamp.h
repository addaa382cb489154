#pragma once

#include <QAbstractButton>
#include <QPixmap>

// One bit lamp of a status page: a flat push button that shows a 43 x 16 picture.
class BitLamp : public QAbstractButton
{
    Q_OBJECT

public:
    explicit BitLamp(QWidget* parent = nullptr);

    void setImage(const QPixmap& image);
    QPixmap image() const { return m_image; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_image;
};
