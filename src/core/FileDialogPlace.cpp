#include "FileDialogPlace.h"

#include "UserSettings.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {
QString key(const QString& dialog)
{
    return QStringLiteral("FileDialogs/") + dialog;
}
} // namespace

QString FileDialogPlace::start(const QString& dialog, const QString& suggestedName)
{
    QString folder = UserSettings().value(key(dialog)).toString();
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (folder.isEmpty())
        folder = QDir::homePath();
    return suggestedName.isEmpty() ? folder : QDir(folder).filePath(suggestedName);
}

void FileDialogPlace::remember(const QString& dialog, const QString& chosen)
{
    if (chosen.isEmpty())
        return;
    const QFileInfo info(chosen);
    UserSettings().setValue(key(dialog),
                            info.isDir() ? info.absoluteFilePath() : info.absolutePath());
}

QString FileDialogPlace::datedName(const QString& stem, const QString& suffix)
{
    QString name = stem + QLatin1Char('_') + QDate::currentDate().toString(Qt::ISODate);
    name.replace(QRegularExpression(QStringLiteral("[\\\\/:*?\"<>| ]+")), QStringLiteral("_"));
    return name + QLatin1Char('.') + suffix;
}
