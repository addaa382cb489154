#include "CLedButton.h"

#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

CLedButton::CLedButton(QWidget* parent) : CLedButton(QString(), parent) {}

CLedButton::CLedButton(const QString& text, QWidget* parent) : QPushButton(text, parent)
{
    m_returnTimer.setSingleShot(true);
    m_returnTimer.setInterval(kStateReturnMs);
    connect(&m_returnTimer, &QTimer::timeout, this, [this] { returnToState(); });
    SetStateCount(2, false);
}

void CLedButton::SetStateCount(unsigned count, bool repaint)
{
    m_states.assign(count, LedData{});
    resetColors();
    if (repaint)
        update();
}

void CLedButton::resetColors()
{
    for (LedData& entry : m_states) {
        entry.text = palette().color(QPalette::ButtonText);
        entry.background = palette().color(QPalette::Button);
    }
}

bool CLedButton::SetStateIcon(unsigned state, const QString& resource, int width, int height)
{
    if (state >= stateCount())
        return false;
    const QIcon icon(resource);
    QSize size(width, height);
    if (width == 0 || height == 0) {
        const QList<QSize> sizes = icon.availableSizes();
        size = sizes.isEmpty() ? QSize() : sizes.first();
    }
    return SetStateIconHandle(state, size.isValid() ? icon.pixmap(size) : QPixmap());
}

bool CLedButton::SetStateIconHandle(unsigned state, const QPixmap& icon)
{
    if (state >= stateCount())
        return false;
    m_states[state].icon = icon;
    return true;
}

bool CLedButton::SetStateColors(unsigned state, const QColor& text, const QColor& background)
{
    if (state >= stateCount())
        return false;
    m_states[state].text = text;
    m_states[state].background = background;
    return true;
}

void CLedButton::SetState(unsigned state, bool repaint)
{
    const unsigned wanted = m_filter ? m_filter(state, m_state, repaint) : state;
    if (wanted == m_state)
        return;
    if (wanted < stateCount())
        m_state = wanted;
    if (m_returnEnabled) {
        m_returnTimer.stop();
        if (m_state != m_returnState)
            m_returnTimer.start();
    }
    update();
}

void CLedButton::setStateReturn(bool enabled, unsigned returnState)
{
    m_returnEnabled = enabled;
    m_returnState = returnState;
    if (!enabled)
        m_returnTimer.stop();
}

void CLedButton::returnToState()
{
    SetState(m_returnState, false);
}

QColor CLedButton::stateTextColor(unsigned state) const
{
    return state < stateCount() ? m_states[state].text : palette().color(QPalette::ButtonText);
}

QColor CLedButton::stateBackgroundColor(unsigned state) const
{
    return state < stateCount() ? m_states[state].background : palette().color(QPalette::Button);
}

QColor CLedButton::backgroundColor() const
{
    return stateBackgroundColor(m_state);
}

void CLedButton::setLeftText(bool leftText)
{
    m_leftText = leftText;
    update();
}

void CLedButton::setTextAlignment(Qt::Alignment horizontal)
{
    m_alignment = horizontal & Qt::AlignHorizontal_Mask;
    update();
}

QSize CLedButton::sizeHint() const
{
    const QSize iconSize = m_state < stateCount() ? m_states[m_state].icon.size() : QSize();
    const QSize textSize = fontMetrics().size(Qt::TextSingleLine, text());
    return QSize(iconSize.width() + kIconTextGap + textSize.width() + 4,
                 qMax(iconSize.height(), textSize.height()) + 4);
}

void CLedButton::changeEvent(QEvent* event)
{
    // A change of the system colours gives every state the new defaults.
    if (event->type() == QEvent::PaletteChange) {
        resetColors();
        update();
    }
    QPushButton::changeEvent(event);
}

void CLedButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect area = rect();
    painter.fillRect(area, backgroundColor());

    const bool valid = m_state < stateCount();
    const QPixmap icon = valid ? m_states[m_state].icon : QPixmap();
    QRect textArea = area;
    if (!icon.isNull()) {
        const int top = area.top() + (area.height() - icon.height()) / 2;
        QRect iconRect(QPoint(area.left(), top), icon.size());
        if (m_leftText) {
            iconRect.moveRight(area.right());
            textArea.setRight(iconRect.left() - kIconTextGap);
        } else {
            textArea.setLeft(iconRect.right() + 1 + kIconTextGap);
        }
        if (isEnabled()) {
            painter.drawPixmap(iconRect.topLeft(), icon);
        } else {
            QStyleOption option;
            option.initFrom(this);
            painter.drawPixmap(iconRect.topLeft(),
                               style()->generatedIconPixmap(QIcon::Disabled, icon, &option));
        }
    }

    if (text().isEmpty())
        return;
    const int flags = static_cast<int>(m_alignment) | Qt::AlignVCenter | Qt::TextWordWrap;
    if (isEnabled()) {
        painter.setPen(valid ? m_states[m_state].text : palette().color(QPalette::ButtonText));
        painter.drawText(textArea, flags, text());
    } else {
        // Engraved: a highlight one pixel down-right under the shadow-coloured text.
        painter.setPen(palette().color(QPalette::Light));
        painter.drawText(textArea.translated(1, 1), flags, text());
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawText(textArea, flags, text());
    }
}
