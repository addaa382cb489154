#include "SnugScrollArea.h"

#include <QScrollBar>

SnugScrollArea::SnugScrollArea(QWidget* content, bool verticalOnly, QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    // The buttons inside take the focus; the area itself is no stop of the Tab key.
    setFocusPolicy(Qt::NoFocus);
    if (verticalOnly)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(content);
}

QSize SnugScrollArea::sizeHint() const
{
    const QWidget* content = widget();
    if (content == nullptr)
        return QScrollArea::sizeHint();
    const int frame = 2 * frameWidth();
    return content->sizeHint().expandedTo(content->minimumSizeHint()) + QSize(frame, frame);
}
