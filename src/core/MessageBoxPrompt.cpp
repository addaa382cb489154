#include "MessageBoxPrompt.h"

#include <QMessageBox>

namespace {
const QString kCaption = QStringLiteral("Orvane");
}

bool MessageBoxPrompt::askYesNo(const QString& text)
{
    return QMessageBox::question(m_parent, kCaption, text, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::Yes) == QMessageBox::Yes;
}

PromptAnswer MessageBoxPrompt::askYesNoCancel(const QString& text)
{
    switch (QMessageBox::question(m_parent, kCaption, text,
                                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                                  QMessageBox::Yes)) {
    case QMessageBox::Yes:
        return PromptAnswer::Yes;
    case QMessageBox::No:
        return PromptAnswer::No;
    default:
        return PromptAnswer::Cancel;
    }
}

void MessageBoxPrompt::inform(const QString& text)
{
    QMessageBox::warning(m_parent, kCaption, text);
}
