#pragma once

#include <QTranslator>

class QLocale;
class QString;

// The program's and Qt's own translations for the user's language, installed while it
// lives. A language without an orvane_<locale>.qm beside the executable stays English.
class AppTranslations
{
public:
    AppTranslations() = default;
    AppTranslations(const AppTranslations&) = delete;
    AppTranslations& operator=(const AppTranslations&) = delete;

    // Looks for orvane_<locale>.qm in folder and for qtbase_<locale>.qm among Qt's
    // translations; returns whether the program's own file was found.
    bool install(const QLocale& locale, const QString& folder);

private:
    QTranslator m_own;
    QTranslator m_qt;
};
