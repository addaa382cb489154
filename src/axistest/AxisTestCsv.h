#pragma once

#include "AxisTestRecord.h"

#include <QFile>
#include <QTextStream>

// samples.csv, written line by line as the test measures, so an hours-long run keeps
// nothing in memory and a crash loses at most the line being written.
class AxisTestCsv : public AxisTestSink
{
public:
    // Opens (and truncates) the file; isOpen() says whether that worked.
    explicit AxisTestCsv(const QString& path);
    bool isOpen() const { return m_file.isOpen(); }
    QString errorString() const { return m_file.errorString(); }

    void record(const AxisTestRecord& record) override;

    static QString header();
    static QString line(const AxisTestRecord& record);

private:
    QFile m_file;
    QTextStream m_out;
};
