#pragma once

#include "AxisTestRun.h"
#include "AxisUnitScale.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QImage>
#include <QJsonObject>
#include <QString>
#include <QTextStream>

#include <utility>
#include <vector>

class BoardApi;
class CardRegistry;

// What a report tells of the board beside the figures: the card and the tested axis's
// parameters as the catalogue names them.
struct AxisTestFacts
{
    QString model;
    QString firmware;
    QString library;
    std::vector<std::pair<QString, QString>> parameters; // name, value

    static AxisTestFacts read(BoardApi& board, const CardRegistry& registry, BoardFamily family,
                              CardNo card, AxisNo axis);
};

// The end of a test in the two forms it is handed on: report.html for a customer, with the
// plots embedded, and summary.json for machines. Every figure is in pulses and, given the
// axis's unit scale, in its unit as well.
class AxisTestReport
{
    Q_DECLARE_TR_FUNCTIONS(AxisTestReport)

public:
    AxisTestReport(const AxisTestRun& run, AxisTestFacts facts, QDateTime started,
                   AxisUnitScale scale = {});

    QJsonObject summary() const;
    QString html() const;
    // The test's plots, as the report shows them.
    std::vector<std::pair<QString, QImage>> plots() const;

    // Writes report.html and summary.json into `folder`; false with `error` set when a file
    // could not be written.
    bool write(const QString& folder, QString* error) const;

    static QString kindKey(AxisTestKind kind);

private:
    QJsonObject figures() const;
    QJsonObject settingsObject() const;
    // The figures' pulses in the scale's unit; counts, codes and times stay as they are.
    QJsonObject figuresInUnits(const QJsonObject& figures) const;
    void writeTargets(QTextStream& out) const;

    const AxisTestRun& m_run;
    AxisTestFacts m_facts;
    QDateTime m_started;
    AxisUnitScale m_scale;
};
