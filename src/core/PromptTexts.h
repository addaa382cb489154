#pragma once

#include <QCoreApplication>
#include <QString>

// The program's message texts that several windows show, written once, in the user's language.
namespace PromptTexts {
inline QString parametersChanged()
{
    return QCoreApplication::translate("PromptTexts",
                                       "Parameters are changed. Do you want to set parameter?");
}
inline QString inputIncorrect()
{
    return QCoreApplication::translate("PromptTexts", "Input value is incorrect!");
}
} // namespace PromptTexts
