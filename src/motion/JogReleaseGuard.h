#pragma once

#include <QObject>

#include <functional>

class QAbstractButton;
class QWidget;

// Makes sure a jog never outlives the press that started it: besides the button's release,
// the pointer leaving the pressed button, the focus leaving the window and the application
// losing activation all end it.
class JogReleaseGuard : public QObject
{
    Q_OBJECT

public:
    JogReleaseGuard(QWidget* window, std::function<void()> endJog);

    void watchButton(QAbstractButton* button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void onFocusChanged(QWidget* old, QWidget* now);

    QWidget* m_window;
    std::function<void()> m_endJog;
};
