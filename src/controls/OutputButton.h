#pragma once

#include <QIcon>
#include <QPushButton>

// A push button that shows its output as a 16 x 16 lamp, one face while the output is off
// and another while it is on; the icon changes only when the state does.
class OutputButton : public QPushButton
{
    Q_OBJECT

public:
    explicit OutputButton(QWidget* parent = nullptr);

    // New faces; the button shows the off face.
    void setFaces(const QPixmap& off, const QPixmap& on);
    void setOn(bool on);
    bool isOn() const { return m_on; }

private:
    QIcon m_offIcon;
    QIcon m_onIcon;
    bool m_on = false;
};
