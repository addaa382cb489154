#pragma once

#include <QString>

// The program's message texts that several windows show, written once.
namespace PromptTexts {
inline const QString kParametersChanged =
    QStringLiteral("Parameters are changed. Do you want to set parameter?");
inline const QString kInputIncorrect = QStringLiteral("Input value is incorrect!");
} // namespace PromptTexts
