#pragma once

#include "ScopeRecording.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

// Scope records as CSV: a header "Time [ms],<channel> [<unit>],..." and one row per sample.
// Numbers are written so that reading them back gives the same values.
class ScopeCsv
{
    Q_DECLARE_TR_FUNCTIONS(ScopeCsv)

public:
    static bool write(const ScopeRecording& recording, const QString& path,
                      QString* error = nullptr);
    static std::optional<ScopeRecording> read(const QString& path, QString* error = nullptr);
};
