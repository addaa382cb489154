#pragma once

#include "PromptService.h"

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

private:
    QWidget* m_parent;
};
