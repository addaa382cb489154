#pragma once

#include <QString>

// The answer to a question that can also be called off.
enum class PromptAnswer
{
    Yes,
    No,
    Cancel
};

// Every message box of the program goes through here, so tests can answer and read them.
class PromptService
{
public:
    virtual ~PromptService() = default;
    // A Yes/No question; true for Yes.
    virtual bool askYesNo(const QString& text) = 0;
    // A Yes/No/Cancel question; Escape answers Cancel. Services that cannot offer Cancel
    // (nobody to answer) ask Yes/No.
    virtual PromptAnswer askYesNoCancel(const QString& text)
    {
        return askYesNo(text) ? PromptAnswer::Yes : PromptAnswer::No;
    }
    // A message with an OK button.
    virtual void inform(const QString& text) = 0;
    // A message that only informs (something worked): the information icon, not a warning.
    virtual void notify(const QString& text) { inform(text); }
};
