#include "AppTranslations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

bool AppTranslations::install(const QLocale& locale, const QString& folder)
{
    // Qt's own dialog buttons and context menus follow even where Orvane has no file.
    if (m_qt.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    if (!m_own.load(locale, QStringLiteral("orvane"), QStringLiteral("_"), folder))
        return false;
    QCoreApplication::installTranslator(&m_own);
    return true;
}
