#include "../support/TextFile.h"
#include "SimConstants.h"
#include "SimLibrary.h"

#include <QDir>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

using namespace nrxsim;

namespace {

const char* const TwoCards = R"(
[RL]
Cards=2
Version=3040506
[RL.Card0]
Axes=4
IO=24
Firmware=0x43
Info=7
Loopback=0
Input3=DO5
Input4=1
[RL.Card0.Axis0]
Alarm=DO2
[RL.Card1]
Axes=2
IO=bogus
[RL.Card1.Axis1]
PlusLimt=5000
[RL.Card9]
Axes=2
)";

} // namespace

// The boards file, parameter files, log, I/O and robustness of the simulated libraries.
class TestSimBoards : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SimLibrary> lib_[3];
    std::unique_ptr<QTemporaryDir> dir_;

    SimLibrary& rl() { return *lib_[0]; }
    QString path(const QString& name) const { return dir_->filePath(name); }

private slots:
    void initTestCase()
    {
        for (int family = 0; family < 3; ++family) {
            lib_[family] = std::make_unique<SimLibrary>(family);
            QVERIFY2(lib_[family]->isLoaded(), qPrintable(lib_[family]->errorString()));
        }
    }

    void init()
    {
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(dir_->isValid());
    }

    void cleanup()
    {
        for (auto& l : lib_)
            l->nrx.UnloadDevice();
    }

    void defaultSet_coversEveryFamilyAndSize()
    {
        QSet<int> axes;
        QSet<int> io;
        for (int family = 0; family < 3; ++family) {
            SimLibrary& l = *lib_[family];
            const int last = l.loadIn(dir_->path());
            QVERIFY(last >= 0);
            QVERIFY(l.nrx.GetDllVersion("x") >= 10000);
            for (int card = 0; card <= last; ++card) {
                nrx_i32 reserved = -1, firmware = 0, axisCount = 0, info = -1, ioCount = 0;
                l.nrx.BoardInfo(card, &reserved, &firmware, &axisCount, &info, &ioCount);
                QVERIFY(firmware != 0 && firmware != 0x50 && firmware != 0x51);
                axes.insert(axisCount);
                io.insert(ioCount);
            }
        }
        QVERIFY(axes.contains(2) && axes.contains(4) && axes.contains(8));
        QVERIFY(io.contains(16) && io.contains(24) && io.contains(64));
        QCOMPARE(QDir(dir_->path()).entryList(QDir::Files).filter(".prm").size(), 0);
    }

    void boardsFile_describesTheCards()
    {
        QVERIFY(SimExtras::writeBoards(dir_->path(), TwoCards));
        QCOMPARE(rl().loadIn(dir_->path()), 1);
        QCOMPARE(lib_[1]->loadIn(dir_->path()), -1); // no [RM] section: no board
        QCOMPARE(rl().nrx.GetDllVersion(nullptr), 3040506);
        nrx_i32 reserved, firmware, axisCount, info, ioCount;
        rl().nrx.BoardInfo(0, &reserved, &firmware, &axisCount, &info, &ioCount);
        QCOMPARE(QList<int>({firmware, axisCount, info, ioCount}), QList<int>({0x43, 4, 7, 24}));
        rl().nrx.BoardInfo(1, &reserved, &firmware, &axisCount, &info, &ioCount);
        // IO=bogus keeps the default of 16.
        QCOMPARE(QList<int>({axisCount, info, ioCount}), QList<int>({2, 1, 16}));

        // Input wiring: 3 follows output 5, 4 is held on, the rest stay off.
        auto inputs = [this] {
            return QList<int>({rl().nrx.GetDIBit(0, 3), rl().nrx.GetDIBit(0, 4),
                               rl().nrx.GetDIBit(0, 5), rl().nrx.GetDOBit(0, 5)});
        };
        rl().nrx.PutDOBit(0, 5, 1);
        QCOMPARE(inputs(), QList<int>({1, 1, 0, 1}));
        rl().nrx.PutDOBit(0, 5, 0);
        QCOMPARE(inputs(), QList<int>({0, 1, 0, 0}));

        // Axis 0's alarm line is output 2.
        QVERIFY(!(rl().nrx.GetCardStatus(0, 0) & CardBit::Alm));
        rl().nrx.PutDOBit(0, 2, 1);
        QVERIFY(rl().nrx.GetCardStatus(0, 0) & CardBit::Alm);
        rl().nrx.Inc_Move(0, 0, 100);
        QCOMPARE(rl().nrx.GetMotionErrCod(0, 0), -640);

        // Mistakes reach the log at every load, with no LogCheck at all.
        const QString log = TextFile::read(path("NrxSimRL.log"));
        QVERIFY2(log.contains("io=bogus ignored", Qt::CaseInsensitive), qPrintable(log));
        QVERIFY(log.contains("[rl.card1.axis1] pluslimt unknown key"));
        QVERIFY(log.contains("[rl.card9] unknown section"));
    }

    void boardsFile_largestConfiguration()
    {
        QByteArray text = "[RN]\nCards=8\n";
        for (int card = 0; card < 8; ++card)
            text += "[RN.Card" + QByteArray::number(card) + "]\nAxes=8\nIO=64\n";
        QVERIFY(SimExtras::writeBoards(dir_->path(), text));
        SimLibrary& rn = *lib_[2];
        QCOMPARE(rn.loadIn(dir_->path()), 7);
        nrx_i32 axisCount = 0, ioCount = 0;
        rn.nrx.BoardInfo(7, nullptr, nullptr, &axisCount, nullptr, &ioCount);
        QCOMPARE(QList<int>({axisCount, ioCount}), QList<int>({8, 64}));
        rn.nrx.Inc_Move(7, 7, 1000);
        rn.sim.AdvanceClock(1000);
        QCOMPARE(rn.nrx.GetCommandPos(7, 7), 1000);
        rn.nrx.PutDOBit(7, 63, 1);
        QCOMPARE(rn.nrx.GetDIBit(7, 63), 1);
    }

    void boardsFile_forcesTheLoadResult_data()
    {
        QTest::addColumn<int>("code");
        for (const int code : {-2, -4, -5, -7, -10})
            QTest::newRow(qPrintable(QString::number(code))) << code;
    }
    void boardsFile_forcesTheLoadResult()
    {
        QFETCH(int, code);
        QVERIFY(SimExtras::writeBoards(
            dir_->path(), "[RM]\nCards=2\nLoadResult=" + QByteArray::number(code) + "\n"));
        SimLibrary& rm = *lib_[1];
        QCOMPARE(rm.loadIn(dir_->path()), code);
        nrx_i32 axisCount = -1;
        rm.nrx.BoardInfo(0, nullptr, nullptr, &axisCount, nullptr, nullptr);
        QCOMPARE(axisCount, -1);
    }

    void parameterFile_damagedOrForeignGivesMinus2_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::addColumn<QString>("problemText");
        QTest::newRow("truncated") << "truncate"
                                   << "no checksum line";
        QTest::newRow("value edited") << "edit"
                                      << "checksum does not match";
        QTest::newRow("other axis count") << "axes"
                                          << "made for RL card 0 with 4 axes";
        QTest::newRow("empty") << "empty"
                               << "no checksum line";
        QTest::newRow("binary junk") << "junk"
                                     << "no checksum line";
    }
    void parameterFile_damagedOrForeignGivesMinus2()
    {
        QFETCH(QString, damage);
        QFETCH(QString, problemText);
        QCOMPARE(rl().loadIn(dir_->path()), 1);
        rl().nrx.SetRangeMode(0, 0, 42);
        rl().nrx.SaveFile(0);
        rl().nrx.UnloadDevice();
        const QString file = path("NrxSimRL_Card0.prm");
        QByteArray text = TextFile::read(file);
        QVERIFY(text.size() > 1000);
        if (damage == "truncate")
            text.truncate(text.size() / 2);
        else if (damage == "edit")
            text.replace("RangeMode=42", "RangeMode=43");
        else if (damage == "empty")
            text.clear();
        else if (damage == "junk")
            text = QByteArray(3000, '\xff') + QByteArray("\0\0", 2);
        if (damage == "axes")
            QVERIFY(SimExtras::writeBoards(dir_->path(), "[RL]\nCards=1\n[RL.Card0]\nAxes=8\n"));
        else
            QVERIFY(TextFile::write(file, text));

        QVERIFY(TextFile::write(file + ".new", "half a save"));
        QCOMPARE(rl().loadIn(dir_->path()), -2);
        // The sound parameters were not half applied.
        QCOMPARE(rl().nrx.GetRangeMode(0, 0), 100);
        // The log names the file and what is wrong with it, at any log level.
        const QString log = TextFile::read(path("NrxSimRL.log"));
        QVERIFY2(log.contains("NrxSimRL_Card0.prm not applied: " + problemText), qPrintable(log));
        QVERIFY(!QFile::exists(file + ".new")); // what an interrupted save left
        rl().nrx.UnloadDevice();
        QFile::remove(file);
        QVERIFY(rl().loadIn(dir_->path()) >= 0);
    }

    void logFile_followsItsLevel()
    {
        QCOMPARE(rl().loadIn(dir_->path()), 1);
        const QString log = path("NrxSimRL.log");
        rl().nrx.LogCheck(0);
        rl().nrx.Inc_Move(0, 0, 10);
        QVERIFY(!TextFile::read(log).contains("Inc_Move"));
        // 1: command functions only; 2: errors only; 3: everything.
        rl().nrx.LogCheck(2);
        rl().nrx.SetSlmt(0, 1, 50, -50, 1);
        rl().nrx.Inc_Move(0, 1, 100);
        rl().sim.AdvanceClock(1000);
        QVERIFY(TextFile::read(log).contains("axis 1 stopped with -600"));
        QVERIFY(!TextFile::read(log).contains("Inc_Move"));
        rl().nrx.LogCheck(1);
        rl().nrx.Inc_Move(0, 2, 10);
        rl().nrx.Inc_Move(0, 3, 100);
        rl().sim.AdvanceClock(1000);
        QVERIFY(TextFile::read(log).contains("axis 2 Inc_Move 10"));
        QVERIFY(!TextFile::read(log).contains("axis 3 stopped"));
        QVERIFY(!TextFile::read(log).contains("PulseMode"));
        rl().nrx.LogCheck(3);
        rl().nrx.SetPulseMode(0, 2, 4);
        QVERIFY(TextFile::read(log).contains("axis 2 PulseMode=4"));
    }

    void refusals_wrongAddressIsAnError()
    {
        NrxFunctionTable& n = rl().nrx;
        rl().sim.SetDataFolder(dir_->path().toLocal8Bit().constData());
        QCOMPARE(n.SetPosSpeed(0, 0, 100, 1000, 100, 100), -1); // before LoadDevice
        QCOMPARE(n.Inc_Move(0, 0, 100), -1);
        QCOMPARE(rl().loadIn(dir_->path()), 1); // card 1 has 2 axes
        QCOMPARE(n.Inc_Move(1, 2, 100), -1);
        QCOMPARE(n.SetHlmt(2, 0, 0, 0), -1);
        QCOMPARE(n.PutDOBit(2, 0, 1), -1);
        QCOMPARE(n.SaveFile(9), -1);
        QCOMPARE(n.Multi_Decel_Stop(5, 0, nullptr), -1);
        QCOMPARE(n.Decel_Stop(1, 1), 0);

        const nrx_i32 sentinel = 0x5A5A5A;
        nrx_i32 a = sentinel, b = sentinel, c = sentinel, d = sentinel, e = sentinel;
        n.BoardInfo(2, &a, &b, &c, &d, &e);
        n.GetPosSpeed(1, 2, &a, &b, &c, &d);
        n.GetSlmt(9, 0, &a, &b, nullptr);
        QCOMPARE(QList<int>({a, b, c, d, e}),
                 QList<int>({sentinel, sentinel, sentinel, sentinel, sentinel}));
        QCOMPARE(n.Done(1, 2), 0);
        QCOMPARE(n.GetCommandPos(1, 2), 0);
        QCOMPARE(n.GetCardStatus(65535, 65535), 0);
        QCOMPARE(n.GetMainStatus(1, 2), 0);
        QCOMPARE(n.GetInputStatus(1, 7), 0);
        // Null out-pointers are skipped, the others written.
        n.GetPosSpeed(0, 0, nullptr, &b, nullptr, nullptr);
        QCOMPARE(b, 10000);
        n.BoardInfo(0, nullptr, nullptr, nullptr, nullptr, nullptr);
        QVERIFY(n.GetDllVersion(nullptr) > 0);
        // Multi-axis calls with a bad list do nothing.
        const nrx_u16 twice[] = {0, 0};
        const nrx_u16 beyond[] = {0, 4};
        const nrx_i32 dist[] = {100, 100};
        n.Multi_Inc_Move(0, 2, twice, dist);
        n.Multi_Inc_Move(0, 2, beyond, dist);
        n.Multi_Inc_Move(0, 2, nullptr, dist);
        n.Multi_Inc_Move(0, 2, beyond, nullptr);
        n.Multi_Abs_Move(0, 0, beyond, dist);
        n.Multi_Jog_Move(0, 9, beyond, nullptr);
        QCOMPARE(n.Multi_Done(0, 2, nullptr), 0);
        for (int axis = 0; axis < 4; ++axis)
            QCOMPARE(n.Done(0, axis), 0);
        // A busy axis refuses a second start and keeps its move.
        n.Inc_Move(0, 0, 50000);
        QVERIFY(n.Abs_Move(0, 0, -5) != 0);
        rl().sim.AdvanceClock(60000);
        QCOMPARE(n.GetCommandPos(0, 0), 50000);
        // The real clock cannot be moved by hand.
        rl().sim.SetManualClock(0);
        QCOMPARE(rl().sim.AdvanceClock(10), -1);
    }

    void fuzz_randomCallsLeaveTheBoardsSane()
    {
        for (int family = 0; family < 3; ++family) {
            SimLibrary& l = *lib_[family];
            const int last = l.loadIn(dir_->path());
            QVERIFY(last >= 0);
            NrxFunctionTable& n = l.nrx;
            QRandomGenerator rng(20240611u + family);
            auto u16 = [&]() -> nrx_u16 {
                return rng.bounded(4) == 0 ? nrx_u16(rng.generate()) : nrx_u16(rng.bounded(10));
            };
            // Mostly small numbers, now and then any value or an extreme one.
            auto i32 = [&]() -> nrx_i32 {
                const int kind = int(rng.bounded(4));
                if (kind < 2)
                    return kind == 0        ? nrx_i32(rng.generate())
                           : rng.bounded(2) ? INT32_MAX
                                            : INT32_MIN;
                return rng.bounded(-100000, 100000);
            };
            nrx_u16 axes[8] = {};
            nrx_i32 values[8] = {};
            nrx_i32 out[4];
            nrx_u16 outs[3];
            const std::vector<std::function<void()>> calls = {
                [&] { n.Inc_Move(u16(), u16(), i32()); },
                [&] { n.Abs_Move(u16(), u16(), i32()); },
                [&] { n.Jog_Move(u16(), u16(), u16()); },
                [&] { n.Home_Move(u16(), u16()); },
                [&] { n.Decel_Stop(u16(), u16()); },
                [&] { n.Sudden_Stop(u16(), u16()); },
                [&] { n.SetHomeMode(u16(), u16(), u16()); },
                [&] { n.SetHomeDir(u16(), u16(), u16()); },
                [&] { n.SetHomeOffset(u16(), u16(), i32()); },
                [&] { n.SetPosSpeed(u16(), u16(), i32(), i32(), i32(), i32()); },
                [&] { n.SetJogSpeed(u16(), u16(), i32(), i32(), i32()); },
                [&] { n.SetHomeSpeed(u16(), u16(), i32(), i32(), i32()); },
                [&] { n.SetSpeedMode(u16(), u16(), u16()); },
                [&] { n.SetRangeMode(u16(), u16(), u16()); },
                [&] { n.SetFixedRange(u16(), u16(), u16()); },
                [&] { n.SetEncoderMode(u16(), u16(), u16()); },
                [&] { n.SetSlmt(u16(), u16(), i32(), i32(), u16()); },
                [&] { n.SetCounterRing(u16(), u16(), i32(), i32(), u16()); },
                [&] { n.SetHlmt(u16(), u16(), u16(), u16()); },
                [&] { n.SetCommandPos(u16(), u16(), i32()); },
                [&] { n.SetActualPos(u16(), u16(), i32()); },
                [&] { n.PutDOBit(u16(), u16(), u16()); },
                [&] { n.PutSvCClrCmd(u16(), u16()); },
                [&] { n.SetEmergency(u16(), u16()); },
                [&] { l.sim.SetSignal(u16(), u16(), u16() % 3, u16() % 2); },
                [&] { n.Reset(u16()); },
                [&] { n.SetSystemDefault(u16(), u16()); },
                [&] {
                    std::generate(axes, axes + 8, u16);
                    std::generate(values, values + 8, i32);
                    n.Multi_Inc_Move(u16(), u16() % 10, axes, values);
                },
                [&] { n.Multi_Abs_Move(u16(), u16() % 10, axes, values); },
                [&] { n.Multi_Jog_Move(u16(), u16() % 10, axes, axes); },
                [&] { n.Multi_Decel_Stop(u16(), u16() % 10, axes); },
                [&] {
                    n.GetCardStatus(u16(), u16());
                    n.GetMainStatus(u16(), u16());
                    n.GetDrvStatus(u16(), u16());
                    n.GetErrStatus(u16(), u16());
                    n.GetInputStatus(u16(), u16());
                    n.GetCommandSpeed(u16(), u16());
                    n.GetPosSpeed(u16(), u16(), &out[0], &out[1], &out[2], &out[3]);
                    n.GetHlmt(u16(), u16(), &outs[0], &outs[1]);
                    n.GetDIBit(u16(), u16());
                },
                [&] { l.sim.AdvanceClock(int(rng.bounded(200))); },
            };
            for (int i = 0; i < 20000; ++i)
                calls[rng.bounded(int(calls.size()))]();

            l.sim.SetSignal(0, 0, NRXSIM_SIGNAL_EMERGENCY, 0);
            for (int card = 0; card <= last; ++card) {
                for (int axis = 0; axis < 8; ++axis) {
                    QVERIFY(n.Done(card, axis) <= 1);
                    n.Sudden_Stop(card, axis);
                    QCOMPARE(n.Done(card, axis), 0);
                }
            }
            QVERIFY(l.loadIn(dir_->path()) >= 0);
            n.Inc_Move(0, 0, 1000);
            l.sim.AdvanceClock(2000);
            QCOMPARE(n.GetCommandPos(0, 0), 1000);
        }
    }

    // Damaged boards files, and parameter files saved under other boards: LoadDevice never
    // crashes and never reports more than the boards can be, and whatever it reports answers
    // for every card and axis.
    void boardsFile_mutatedStaysWithinLimits()
    {
        QByteArray base = QByteArray(TwoCards) +
                          "[Axes]\nPlusLimit=100000\nZPeriod=0x10\nSlip=3\n[RL.Card1.Axis1]\n"
                          "Alarm=DO3\nServoLag=7\n[RM]\nCards=8\nFail.SetPosSpeed=-1\n"
                          "[RM.Card7]\nAxes=8\nIO=64\nEmergency=DO63\n[RN]\nLoadResult=-4\n";
        QList<QByteArray> pieces =
            QByteArray("= [ ] ; \n 0x - DO 99 8 0 1 Cards= Axes= IO= [RN] .Card "
                       ".Axis \xff 9999999999999999999 Input63=DO64 "
                       "LoadResult=0")
                .split(' ');
        pieces << QByteArray(1, '\0');
        QRandomGenerator rng(15033);
        for (int round = 0; round < 300; ++round) {
            QByteArray text = base;
            for (int edits = 1 + int(rng.bounded(8)); edits > 0; --edits) {
                const int at = int(rng.bounded(int(text.size()) + 1));
                switch (rng.bounded(3)) {
                case 0:
                    text.insert(at, pieces[int(rng.bounded(pieces.size()))]);
                    break;
                case 1:
                    text.remove(at, int(rng.bounded(10)));
                    break;
                default:
                    text.insert(at, text.mid(int(rng.bounded(int(text.size()) + 1)), 40));
                }
            }
            QVERIFY(SimExtras::writeBoards(dir_->path(), text));
            const int family = round % 3;
            SimLibrary& l = *lib_[family];
            const int last = l.loadIn(dir_->path());
            QVERIFY2(last <= MaxCards - 1, text.constData());
            for (int card = 0; card <= last; ++card) {
                nrx_i32 axes = 0, io = -1;
                l.nrx.BoardInfo(card, nullptr, nullptr, &axes, nullptr, &io);
                QVERIFY2(axes >= 1 && axes <= MaxAxes && io >= 0 && io <= MaxIoPoints,
                         text.constData());
                for (int axis = 0; axis < axes; ++axis) {
                    l.nrx.GetCardStatus(card, axis);
                    l.nrx.Inc_Move(card, axis, 100);
                }
                l.nrx.PutDOBit(card, nrx_u16(io), 1);
                l.nrx.GetDIBit(card, nrx_u16(io > 0 ? io - 1 : 0));
                l.sim.AdvanceClock(5);
                // Parameter files of one layout meet the boards of the next.
                if (rng.bounded(12) == 0)
                    l.nrx.SaveFile(card);
            }
            l.nrx.UnloadDevice();
        }
    }
};

QTEST_GUILESS_MAIN(TestSimBoards)
#include "tst_simboards.moc"
