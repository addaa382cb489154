#pragma once

#include "PromptService.h"

#include <QStringList>

#include <deque>

// The prompt service of the tests: records every text shown and answers questions from a
// script (then with a default answer), so no modal box ever blocks a test.
class ScriptedPrompt : public PromptService
{
public:
    bool askYesNo(const QString& text) override
    {
        // Cancel in a Yes/No box is its Escape, which answers No.
        return askYesNoCancel(text) == PromptAnswer::Yes;
    }
    PromptAnswer askYesNoCancel(const QString& text) override
    {
        m_questions << text;
        m_texts << text;
        if (m_answers.empty())
            return m_defaultAnswer ? PromptAnswer::Yes : PromptAnswer::No;
        const PromptAnswer answer = m_answers.front();
        m_answers.pop_front();
        return answer;
    }
    void inform(const QString& text) override
    {
        m_messages << text;
        m_texts << text;
    }

    void queueAnswers(std::initializer_list<bool> answers)
    {
        for (bool answer : answers)
            m_answers.push_back(answer ? PromptAnswer::Yes : PromptAnswer::No);
    }
    void queueCancel() { m_answers.push_back(PromptAnswer::Cancel); }
    void setDefaultAnswer(bool answer) { m_defaultAnswer = answer; }

    // Everything shown, in order; only the questions; only the OK messages.
    QStringList texts() const { return m_texts; }
    QStringList questions() const { return m_questions; }
    QStringList messages() const { return m_messages; }
    void clear()
    {
        m_texts.clear();
        m_questions.clear();
        m_messages.clear();
    }

private:
    QStringList m_texts;
    QStringList m_questions;
    QStringList m_messages;
    std::deque<PromptAnswer> m_answers;
    bool m_defaultAnswer = false;
};
