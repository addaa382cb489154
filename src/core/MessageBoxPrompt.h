#pragma once

#include "PromptService.h"

#include <QMessageBox>

class QWidget;

// The prompt service of the running program: modal message boxes captioned "Orvane".
class MessageBoxPrompt : public PromptService
{
public:
    explicit MessageBoxPrompt(QWidget* parent = nullptr) : m_parent(parent) {}
    void setParent(QWidget* parent) { m_parent = parent; }

    bool askYesNo(const QString& text) override;
    PromptAnswer askYesNoCancel(const QString& text) override;
    void inform(const QString& text) override;
    void notify(const QString& text) override;
    // Past this many lines a message shows its beginning; the whole text scrolls under
    // "Show Details...", so the box fits the screen however long the text.
    static constexpr int kShownLines = 15;

private:
    void show(QMessageBox::Icon icon, const QString& text);

    QWidget* m_parent;
};
