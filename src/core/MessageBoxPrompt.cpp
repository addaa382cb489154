#include "MessageBoxPrompt.h"

#include <QCoreApplication>
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
    show(QMessageBox::Warning, text);
}

void MessageBoxPrompt::notify(const QString& text)
{
    show(QMessageBox::Information, text);
}

void MessageBoxPrompt::show(QMessageBox::Icon icon, const QString& text)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.size() <= kShownLines) {
        QMessageBox box(icon, kCaption, text, QMessageBox::Ok, m_parent);
        box.exec();
        return;
    }
    const QString shown = lines.mid(0, kShownLines).join(QLatin1Char('\n')) + QLatin1Char('\n') +
                          QCoreApplication::translate("MessageBoxPrompt",
                                                      "... and %1 more line(s) under Show Details")
                              .arg(lines.size() - kShownLines);
    QMessageBox box(icon, kCaption, shown, QMessageBox::Ok, m_parent);
    box.setDetailedText(text);
    box.exec();
}
