#include "AppState.h"
#include "BitLamp.h"
#include "BitLampPainter.h"
#include "BoardApi.h"
#include "COV_AxStMonWnd.h"
#include "COV_SysDbgWnd.h"
#include "DiagnosisGrid.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"

#include <QLineEdit>
#include <QTest>

#include <array>
#include <memory>

// Both monitors on the simulated RL board with its manual clock: what they show is what the
// board reports, for a moving axis, a limit stop and an alarm.
class TestMonitorSim : public QObject
{
    Q_OBJECT

private:
    static constexpr AxisNo kAxis = 1;

    struct Rig
    {
        BoardApi api;
        AppState state;
        SimBoardsRig sim{api, state};
        ScriptedPrompt prompt;
        RecordingFrame frame;
        std::unique_ptr<COV_AxStMonWnd> status;
        std::unique_ptr<COV_SysDbgWnd> diagnosis;

        // One RL card of 4 axes whose limit switches sit at +-6000 pulses.
        bool start()
        {
            if (!sim.start(true, "[RL]\nCards=1\n[RL.Card0]\nAxes=4\nIO=24\n"
                                 "[Axes]\nPlusLimit=6000\nMinusLimit=-6000\nZPeriod=0\n"))
                return false;
            state.active.axis = kAxis;
            const ToolContext context{state, api, prompt, frame};
            status = std::make_unique<COV_AxStMonWnd>(context);
            diagnosis = std::make_unique<COV_SysDbgWnd>(context);
            status->show();
            diagnosis->show();
            status->timer().stop();
            diagnosis->timer().stop();
            return state.registry.axisCount(BoardFamily::RL, 0) == 4;
        }
        ~Rig()
        {
            status.reset();
            diagnosis.reset();
        }

        void move(std::int32_t distance)
        {
            api.SetPosSpeed(BoardFamily::RL, 0, kAxis, 100, 20000, 50, 50);
            api.Inc_Move(BoardFamily::RL, 0, kAxis, distance);
        }
        bool runToEnd()
        {
            for (int ms = 0; ms < 60000; ++ms) {
                if (api.Done(BoardFamily::RL, 0, kAxis) == 0)
                    return true;
                sim.advance(BoardFamily::RL, 1);
            }
            return false;
        }
        std::uint16_t boardWord(StatusWordKind word)
        {
            const BoardFamily rl = BoardFamily::RL;
            const std::array<nrx_u16, COV_AxStMonWnd::kWords> words{
                api.GetCardStatus(rl, 0, kAxis), api.GetDrvStatus(rl, 0, kAxis),
                api.GetMainStatus(rl, 0, kAxis), api.GetErrStatus(rl, 0, kAxis),
                api.GetInputStatus(rl, 0, kAxis)};
            return words[static_cast<std::size_t>(word)];
        }
        // The word as the lamps show it.
        std::uint16_t lampWord(StatusWordKind word) const
        {
            std::uint16_t shown = 0;
            for (int bit = 0; bit < 16; ++bit) {
                const QString caption =
                    StatusBitCaptions::litCaption(word, bit, BoardFamily::RL, kAxis);
                if (status->column(word).lamp(bit)->image().toImage() ==
                    BitLampPainter::draw(caption, true).toImage())
                    shown = static_cast<std::uint16_t>(shown | (1u << bit));
            }
            return shown;
        }
        QString diagnosisCell(DiagnosisGrid* grid, int row) const
        {
            return grid->values()->index(row, kAxis).data().toString();
        }
    };

    // Ticks both windows and checks every shown word against the board's.
    static void verifyShownWords(Rig& rig)
    {
        rig.status->tick();
        rig.diagnosis->tick();
        for (int index = 0; index < COV_AxStMonWnd::kWords; ++index) {
            const auto word = static_cast<StatusWordKind>(index);
            const std::uint16_t expected = rig.boardWord(word);
            QCOMPARE(rig.lampWord(word), expected);
            QCOMPARE(rig.status->column(word).valueField()->text(),
                     StatusWordColumn::valueText(expected));
            QCOMPARE(QStringLiteral("0x") + rig.diagnosisCell(rig.diagnosis->statusGrid(), index),
                     StatusWordColumn::valueText(expected));
        }
        QCOMPARE(rig.diagnosisCell(rig.diagnosis->positionGrid(), COV_SysDbgWnd::CmdPos),
                 QString::number(rig.api.GetCommandPos(BoardFamily::RL, 0, kAxis)));
    }

private slots:
    // One axis through a move, a limit stop and an alarm.
    void words_movingAxisLimitStopAndAlarm()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.move(-4000);
        rig.sim.advance(BoardFamily::RL, 40);
        verifyShownWords(rig);
        QVERIFY(rig.lampWord(StatusWordKind::Card) & 0x100);         // RUN
        QVERIFY(rig.lampWord(StatusWordKind::Main) & (1u << kAxis)); // RUN of slot 1
        QVERIFY(rig.diagnosisCell(rig.diagnosis->positionGrid(), COV_SysDbgWnd::CmdVel).toInt() >
                0);
        QVERIFY(rig.runToEnd());
        verifyShownWords(rig);
        QCOMPARE(rig.diagnosisCell(rig.diagnosis->positionGrid(), COV_SysDbgWnd::ActPos), "-4000");

        rig.move(50000);
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.api.GetMotionErrCod(BoardFamily::RL, 0, kAxis), -620);
        verifyShownWords(rig);
        QVERIFY(rig.lampWord(StatusWordKind::Card) & 0x20);    // LMT+
        QVERIFY(rig.lampWord(StatusWordKind::Drive) & 0x1000); // S-LMT+
        QVERIFY(rig.lampWord(StatusWordKind::Error) & 0x4);    // +limit

        rig.api.PutSvOn(BoardFamily::RL, 0, kAxis, 1);
        verifyShownWords(rig);
        QVERIFY(rig.lampWord(StatusWordKind::Input) & 0x100); // RDY of the odd axis
        rig.sim.extras[0].SetSignal(0, kAxis, 0, 1);
        verifyShownWords(rig);
        QVERIFY(rig.lampWord(StatusWordKind::Card) & 0x10);    // ALM
        QVERIFY(rig.lampWord(StatusWordKind::Input) & 0x8000); // ALM of the odd axis
    }
};

QTEST_MAIN(TestMonitorSim)
#include "tst_monitorsim.moc"
