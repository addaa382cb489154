#pragma once

#include <QColor>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <vector>

// A push button that paints one of several states, each with its own icon, text colour and
// background: the signal lamp of the monitors.
class CLedButton : public QPushButton
{
    Q_OBJECT

public:
    // Maps (requested state, current state, repaint) to the state actually shown.
    using StateFilter = std::function<unsigned(unsigned requested, unsigned current, bool repaint)>;

    static constexpr int kStateReturnMs = 150;
    static constexpr int kIconTextGap = 3;

    explicit CLedButton(QWidget* parent = nullptr);
    explicit CLedButton(const QString& text, QWidget* parent = nullptr);

    // Replaces every state by count fresh ones with default colours and no icon.
    void SetStateCount(unsigned count, bool repaint = true);
    // Icon of a state from a resource or file; width/height 0 keep the picture's own size.
    bool SetStateIcon(unsigned state, const QString& resource, int width = 0, int height = 0);
    // Icon of a state (a null pixmap clears it). False for a state out of range.
    bool SetStateIconHandle(unsigned state, const QPixmap& icon);
    bool SetStateColors(unsigned state, const QColor& text, const QColor& background);
    // Shows a state; the current one is a no-op, so pollers may call it on every tick.
    void SetState(unsigned state, bool repaint = true);

    unsigned state() const { return m_state; }
    unsigned stateCount() const { return static_cast<unsigned>(m_states.size()); }
    QColor stateTextColor(unsigned state) const;
    QColor stateBackgroundColor(unsigned state) const;
    // The current state's background, or the button face for a state out of range.
    QColor backgroundColor() const;

    void setStateFilter(StateFilter filter) { m_filter = std::move(filter); }
    // After leaving returnState the lamp goes back to it 150 ms later.
    void setStateReturn(bool enabled, unsigned returnState = 0);
    // The state-return timer's handler.
    void returnToState();

    // Icon at the right edge and text left of it, instead of the other way round.
    void setLeftText(bool leftText);
    void setTextAlignment(Qt::Alignment horizontal);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct LedData
    {
        QColor text;
        QColor background;
        QPixmap icon;
    };

    void resetColors();

    std::vector<LedData> m_states;
    unsigned m_state = 0;
    bool m_leftText = false;
    Qt::Alignment m_alignment = Qt::AlignLeft;
    StateFilter m_filter;
    QTimer m_returnTimer;
    bool m_returnEnabled = false;
    unsigned m_returnState = 0;
};
