#include "AppState.h"
#include "BitLamp.h"
#include "BitLampPainter.h"
#include "COV_AxStMonWnd.h"
#include "PaintCounter.h"
#include "RecordingBoard.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"

#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QTest>

#include <memory>

Q_DECLARE_METATYPE(StatusWordKind)
Q_DECLARE_METATYPE(BoardFamily)

// The axis status monitor: the captions of the axis-dependent words, what a tick reads and
// shows, redrawing only changed lamps, and the card and axis selectors with their messages.
class TestAxStMon : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        RecordingBoard board;
        BoardApi api;
        AppState state;
        ScriptedPrompt prompt;
        RecordingFrame frame;
        std::unique_ptr<COV_AxStMonWnd> window;

        // Card 0 with the given axes, card 1 with two.
        Rig(BoardFamily family, int axes, int activeAxis = 0) : board(family)
        {
            board.installInto(api);
            state.registry.setLoadResult(family, 1);
            state.registry.setCardInfo(family, 0, axes, 0, 16);
            state.registry.setCardInfo(family, 1, 2, 1, 16);
            state.active.family = family;
            state.active.axis = activeAxis;
            window = std::make_unique<COV_AxStMonWnd>(ToolContext{state, api, prompt, frame});
            window->timer().stop();
            window->show();
        }
        QStringList tick()
        {
            board.clearCalls();
            window->tick();
            return board.calls();
        }
        bool lit(StatusWordKind word, int bit) const
        {
            const QString caption =
                StatusBitCaptions::litCaption(word, bit, board.family(), window->axis());
            return window->column(word).lamp(bit)->image().toImage() ==
                   BitLampPainter::draw(caption, true).toImage();
        }
        void choose(const char* combo, int index)
        {
            auto* box = window->findChild<QComboBox*>(QLatin1String(combo));
            box->setCurrentIndex(index);
            emit box->activated(index);
        }
    };

private slots:
    void captions_data()
    {
        QTest::addColumn<BoardFamily>("family");
        QTest::addColumn<int>("axis");
        QTest::addColumn<StatusWordKind>("word");
        QTest::addColumn<QString>("captions"); // bits 0..15
        const auto main = StatusWordKind::Main;
        const auto input = StatusWordKind::Input;
        QTest::newRow("RM axis 5 main") << BoardFamily::RM << 5 << main
                                        << "NC RUN NC NC NC ERR NC NC NC HOME NC NC NC NC NC NC";
        QTest::newRow("RN axis 3 main")
            << BoardFamily::RN << 3 << main
            << "NC NC NC RUN NC NC NC ERR EMG I-RUN HOME H-OK SON ALM LMT CMP";
        QTest::newRow("RL axis 1 input")
            << BoardFamily::RL << 1 << input
            << "NC NC NC NC NC NC NC NC RDY ORG EZ EMG EX+ EX- INP ALM";
        QTest::newRow("RN axis 4 input")
            << BoardFamily::RN << 4 << input
            << "RDY ORG EZ STOP EX+ EX- INP ALM NC NC NC NC NC NC NC NC";
    }
    void captions()
    {
        QFETCH(BoardFamily, family);
        QFETCH(int, axis);
        QFETCH(StatusWordKind, word);
        QFETCH(QString, captions);
        QStringList shown;
        for (int bit = 0; bit < 16; ++bit)
            shown << StatusBitCaptions::caption(word, bit, family, axis);
        QCOMPARE(shown.join(' '), captions);
    }

    void captions_fitTheirLampAndHaveTooltipsInWords()
    {
        QFont font;
        font.setPixelSize(9);
        font.setBold(true);
        const QFontMetrics metrics(font);
        for (BoardFamily family : kAllFamilies)
            for (int word = 0; word < COV_AxStMonWnd::kWords; ++word)
                for (int axis = 0; axis < 8; ++axis)
                    for (int bit = 0; bit < 16; ++bit) {
                        const auto kind = static_cast<StatusWordKind>(word);
                        const QString caption = StatusBitCaptions::caption(kind, bit, family, axis);
                        QVERIFY2(metrics.horizontalAdvance(caption) <= BitLampPainter::kWidth - 4,
                                 qPrintable(caption));
                        QVERIFY(StatusBitCaptions::meaning(kind, bit, family, axis).size() > 6);
                    }
    }

    void tick_readsFiveWordsAndShowsThem()
    {
        Rig rig(BoardFamily::RL, 4, 2);
        rig.board.setResultFor("GetCardStatus", 0, 2, 0x00A3);
        rig.board.setResultFor("GetErrStatus", 0, 2, 0xFFFF);
        QCOMPARE(rig.tick(),
                 (QStringList{"GetCardStatus(0,2)", "GetDrvStatus(0,2)", "GetMainStatus(0,2)",
                              "GetErrStatus(0,2)", "GetInputStatus(0,2)"}));
        QCOMPARE(rig.window->column(StatusWordKind::Card).valueField()->text(), "0x00A3");
        QCOMPARE(rig.window->column(StatusWordKind::Error).valueField()->text(), "0xFFFF");
        QCOMPARE(rig.window->column(StatusWordKind::Drive).valueField()->text(), "0x0000");
        QList<int> litCardBits;
        for (int bit = 0; bit < 16; ++bit)
            if (rig.lit(StatusWordKind::Card, bit))
                litCardBits << bit;
        QCOMPARE(litCardBits, (QList<int>{0, 1, 5, 7}));
        QVERIFY(rig.lit(StatusWordKind::Error, 15));

        // Unchanged words touch no lamp and no value field; one changed bit, one lamp.
        PaintCounter all;
        for (int word = 0; word < COV_AxStMonWnd::kWords; ++word) {
            const auto& column = rig.window->column(static_cast<StatusWordKind>(word));
            column.valueField()->installEventFilter(&all);
            for (int bit = 0; bit < 16; ++bit)
                column.lamp(bit)->installEventFilter(&all);
        }
        QApplication::processEvents();
        all.paints = 0;
        rig.tick();
        QApplication::processEvents();
        QCOMPARE(all.paints, 0);
        rig.board.setResultFor("GetCardStatus", 0, 2, 0x00A2);
        rig.tick();
        QApplication::processEvents();
        QCOMPARE(all.paints, 2); // lamp 0 and the value field
    }

    void selectorsAndMessages()
    {
        Rig rig(BoardFamily::RM, 8, 5);
        QVERIFY(rig.window->windowTitle().startsWith("Axis Status - NRX-RM8"));
        rig.window->handleUserMessage(UM_AXIS_CHANGED, 7);
        QCOMPARE(rig.window->axis(), 7);
        rig.choose("axisCombo", 6);
        rig.choose("cardCombo", 1);
        QCOMPARE(rig.frame.sent, (QList<QPair<int, int>>{{UM_STATUS_AXIS_CHANGED, 6},
                                                         {UM_STATUS_CARD_CHANGED, 1}}));
        // Card 1 has two axes: the axis falls back to 0, for the whole program too.
        QCOMPARE(rig.window->axis(), 0);
        QCOMPARE(rig.state.active.axis, 0);
        QVERIFY(rig.window->windowTitle().endsWith("(1)"));
        QCOMPARE(rig.tick().first(), "GetCardStatus(1,0)");
        rig.window->handleUserMessage(UM_STATUS_AXIS_CHANGED, 6); // not on this card
        QCOMPARE(rig.window->axis(), 0);
        rig.window->handleUserMessage(UM_STATUS_CARD_CHANGED, 0);
        QCOMPARE(rig.window->card(), 0);
        rig.state.statusFollowsOperation = 0;
        rig.window->handleUserMessage(UM_AXIS_CHANGED, 3);
        QCOMPARE(rig.window->axis(), 0);
    }
};

QTEST_MAIN(TestAxStMon)
#include "tst_axstmon.moc"
