#pragma once

#include <QString>

#include <set>

class QMenu;
class QMenuBar;

// Gives every menu and menu entry an Alt mnemonic that is unique within its menu, so the whole
// menu bar can be worked from the keyboard. Entries that already name one keep it.
class MenuMnemonics
{
public:
    static void apply(QMenuBar& bar);
    static void apply(QMenu& menu);
    // The text with "&" before its first letter not yet taken (case-insensitive); unchanged
    // when it already has a mnemonic or no free letter is left.
    static QString marked(const QString& text, std::set<QChar>& taken);
};
