#pragma once

#include <QObject>

class QAction;

// F12 while a modal window of the program (a message box, a dialog, a file dialog) has the
// focus: the frame's shortcut is blocked behind the modal window, so the key is caught on its
// way to the focused widget and triggers Stop All there.
class StopAllKey : public QObject
{
    Q_OBJECT

public:
    // Watches every key press of the application for as long as it lives.
    StopAllKey(QAction& stopAll, QObject* parent);
    ~StopAllKey() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction& m_stopAll;
};
