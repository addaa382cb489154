#include "OrvaneSettings.h"

#include "PrivateProfile.h"

namespace {
const QByteArray kSystem = QByteArrayLiteral("System");
const QByteArray kShowStatus = QByteArrayLiteral("Default_Show_Status_Window");
const QByteArray kFollowOperation = QByteArrayLiteral("Change_Status_Axis_Depend_On_Operation");
} // namespace

OrvaneSettings::System OrvaneSettings::readSystem(const QString& settingsFilePath)
{
    const PrivateProfile file(settingsFilePath);
    System values;
    values.showStatusWindow = file.readInt(kSystem, kShowStatus, values.showStatusWindow);
    values.statusFollowsOperation =
        file.readInt(kSystem, kFollowOperation, values.statusFollowsOperation);
    return values;
}

void OrvaneSettings::writeSystem(const QString& settingsFilePath, const System& values)
{
    PrivateProfile file(settingsFilePath);
    file.writeInt(kSystem, kShowStatus, values.showStatusWindow);
    file.writeInt(kSystem, kFollowOperation, values.statusFollowsOperation);
}

QByteArray OrvaneSettings::logSection(BoardFamily family)
{
    return QByteArrayLiteral("DEBUG_") + familyShortName(family);
}

int OrvaneSettings::readLogLevel(const QString& moduleDirectory, BoardFamily family)
{
    const PrivateProfile file(moduleDirectory + debugLevelFileName());
    return file.readInt(logSection(family), QByteArrayLiteral("LOG_LEVEL"), kDefaultLogLevel);
}

QStringList OrvaneSettings::logLevelTexts()
{
    return {tr("0 : No Use"), tr("1 : Level 1(Only Command Functions)"),
            tr("2 : Level 2(Only Errors)"), tr("3 : Level 3(All Functions)")};
}
