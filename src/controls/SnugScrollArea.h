#pragma once

#include <QScrollArea>

// A scroll area that asks for its content's whole size and scrolls only when given less, so
// a part of a window can scroll while its neighbour (the stop buttons) stays in sight.
class SnugScrollArea : public QScrollArea
{
public:
    // `verticalOnly`: the content keeps the area's width and never scrolls sideways.
    explicit SnugScrollArea(QWidget* content, bool verticalOnly = false, QWidget* parent = nullptr);

    QSize sizeHint() const override;
};
