#include "COV_ScopeWnd.h"
#include "PlotNavigator.h"
#include "RecordingFrame.h"
#include "ScopeCsv.h"
#include "ScopeReadout.h"
#include "ScopeSimRig.h"
#include "ScriptedPrompt.h"
#include "TextFile.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <memory>

// The scope with user units shown: a recorded move's channels, cursors and CSV in mm and
// mm/s, and back in pulses when units are switched off.
class TestScopeUnits : public QObject
{
    Q_OBJECT

private slots:
    void recordedMove_inUnitsWhileShown()
    {
        ScopeSimRig rig;
        ScriptedPrompt prompt;
        RecordingFrame frame;
        QVERIFY(rig.start());
        rig.state.units.setScale(ScopeSimRig::Rl, 0, ScopeSimRig::Axis,
                                 AxisUnitScale(QStringLiteral("mm"), 1000, 3));
        rig.state.units.setShown(true);
        COV_ScopeWnd window(ToolContext{rig.state, rig.api, prompt, frame});
        window.setClock([&rig] { return double(rig.nowMs); });
        window.resize(window.sizeHint());
        rig.setSpeeds(16000, 1000, 250, 400, 0);
        window.findChild<QComboBox*>(QStringLiteral("length"))->setCurrentIndex(1); // 2 s
        window.findChild<QComboBox*>(QStringLiteral("trigger"))->setCurrentIndex(1);
        for (const char* name : {"channel1", "channel2", "channel3", "channel4"})
            window.findChild<QCheckBox*>(QLatin1String(name))->setChecked(true);
        window.run();
        for (int ms = 1; ms <= 3000 && window.recorder().state() != ScopeRecorder::State::Stopped;
             ++ms) {
            rig.advance(1);
            if (ms == 400)
                rig.api.Inc_Move(ScopeSimRig::Rl, 0, ScopeSimRig::Axis, 9000);
            if (ms % 2 == 0)
                window.sampleTick();
        }
        const ScopeRecording& shown = window.shown();
        QCOMPARE(shown.columns.size(), size_t(4));
        int speedColumn = -1;
        int commandColumn = -1;
        for (size_t c = 0; c < shown.columns.size(); ++c) {
            const ScopeRecording::Column& column = shown.columns[c];
            const bool speed = column.source.signal == ScopeChannel::CommandSpeed;
            QCOMPARE(column.unit, speed ? QStringLiteral("mm/s") : QStringLiteral("mm"));
            if (speed)
                speedColumn = int(c);
            if (column.source.signal == ScopeChannel::CommandPosition)
                commandColumn = int(c);
        }
        QVERIFY(speedColumn >= 0 && commandColumn >= 0);
        QCOMPARE(shown.columns[size_t(commandColumn)].values.back(), 9.0);

        // The cursors read in units with the axis' decimals.
        const std::vector<double>& speeds = shown.columns[size_t(speedColumn)].values;
        const auto peak = std::max_element(speeds.begin(), speeds.end());
        QVERIFY(*peak > 10.0 && *peak <= 16.0); // mm/s of a 16000 pps drive speed
        window.navigator().setCursor(0, shown.times[size_t(peak - speeds.begin())]);
        window.navigator().setCursor(1, 1900);
        const ScopeReadout& readout = window.readout();
        QCOMPARE(readout.text(1 + speedColumn, 1), QString::number(*peak, 'f', 3));
        QCOMPARE(readout.text(1 + commandColumn, 2), QStringLiteral("9.000"));
        QVERIFY(readout.text(1 + commandColumn, 0).endsWith(QStringLiteral("[mm]")));

        const QString csv = rig.folder.filePath(QStringLiteral("units.csv"));
        QVERIFY(window.exportCsv(csv));
        const QByteArray header = TextFile::read(csv).split('\n').first();
        QVERIFY2(header.contains("RL 0.1 Command Speed [mm/s]"), header.constData());
        QVERIFY2(header.contains("RL 0.1 Command Position [mm]"), header.constData());

        // Switched off, the next drawing tick shows pulses again.
        rig.state.units.setShown(false);
        window.drawTick();
        QCOMPARE(window.shown().columns[size_t(speedColumn)].unit, QStringLiteral("pps"));
        QCOMPARE(window.shown().columns[size_t(commandColumn)].values.back(), 9000.0);
    }
};

QTEST_MAIN(TestScopeUnits)
#include "tst_scopeunits.moc"
