#include "MenuMnemonics.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {

// The letter after a single "&", if the text names one.
QChar mnemonicOf(const QString& text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != QLatin1Char('&'))
            continue;
        if (text[i + 1] != QLatin1Char('&'))
            return text[i + 1].toLower();
        ++i; // "&&" is a plain ampersand
    }
    return QChar();
}

void markAll(const QList<QAction*>& actions)
{
    std::set<QChar> taken;
    for (const QAction* action : actions) {
        const QChar existing = mnemonicOf(action->text());
        if (!existing.isNull())
            taken.insert(existing);
    }
    for (QAction* action : actions) {
        if (action->isSeparator() || action->text().isEmpty())
            continue;
        action->setText(MenuMnemonics::marked(action->text(), taken));
        if (QMenu* sub = action->menu())
            MenuMnemonics::apply(*sub);
    }
}

} // namespace

QString MenuMnemonics::marked(const QString& text, std::set<QChar>& taken)
{
    if (!mnemonicOf(text).isNull())
        return text;
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text[i].toLower();
        if (!text[i].isLetterOrNumber() || taken.count(letter) != 0)
            continue;
        taken.insert(letter);
        QString result = text;
        result.insert(i, QLatin1Char('&'));
        return result;
    }
    return text;
}

void MenuMnemonics::apply(QMenuBar& bar)
{
    markAll(bar.actions());
}

void MenuMnemonics::apply(QMenu& menu)
{
    markAll(menu.actions());
}
