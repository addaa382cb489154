#pragma once

#include <QIcon>

// Orvane's own icon, drawn at run time so that no image file has to travel with the program.
class OrvaneIcon
{
public:
    static QIcon create();
    static QPixmap pixmap(int size);
};
