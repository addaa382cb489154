#pragma once

#include <QString>

// Every message box of the program goes through here, so tests can answer and read them.
class PromptService
{
public:
    virtual ~PromptService() = default;
    // A Yes/No question; true for Yes.
    virtual bool askYesNo(const QString& text) = 0;
    // A message with an OK button.
    virtual void inform(const QString& text) = 0;
};
