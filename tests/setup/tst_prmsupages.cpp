#include "BoardApi.h"
#include "COV_FilterSetWnd.h"
#include "COV_MtnPrmWnd.h"
#include "COV_SysIOSetWnd.h"
#include "RecordingBoard.h"
#include "ScriptedPrompt.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

// The three pages on recording boards: the exact calls each writes, the magnification typed
// by hand, and the board states the pages show in their own way.
class TestPrmSuPages : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        RecordingBoard rl{BoardFamily::RL};
        RecordingBoard rn{BoardFamily::RN};
        BoardApi api;
        ScriptedPrompt prompt;
        Rig()
        {
            rl.installInto(api);
            rn.installInto(api);
        }
        RecordingBoard& board(BoardFamily family) { return family == BoardFamily::RN ? rn : rl; }
        std::unique_ptr<ParameterSetupPage> page(int index)
        {
            std::unique_ptr<ParameterSetupPage> made;
            if (index == 0)
                made = std::make_unique<COV_SysIOSetWnd>(api);
            else if (index == 1)
                made = std::make_unique<COV_MtnPrmWnd>(api, prompt);
            else
                made = std::make_unique<COV_FilterSetWnd>(api);
            made->setCardAxis(1, 2, 4);
            return made;
        }
    };
    template <typename T> static T* child(QWidget* page, const char* name)
    {
        return page->findChild<T*>(QLatin1String(name));
    }

private slots:
    void apply_writesThePageInOneOrder_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<BoardFamily>("family");
        QTest::addColumn<QStringList>("writes");
        const QStringList systemIo{"SetSvAlm(1,2,0,0)",    "SetSvInpos(1,2,0,0)",
                                   "SetHlmt(1,2,0,0)",     "SetOrg(1,2,0)",
                                   "SetEncoderZ(1,2,0)",   "SetSvCClr(1,2,1,0)",
                                   "SetSvCClrTime(1,2,0)", "SetEmergency(1,0)"};
        // A board that reports magnification 0 gets 100 written back.
        const QStringList motion{"SetRangeMode(1,2,100)", "SetFixedRange(1,2,0)",
                                 "SetSpeedMode(1,2,0)",   "SetPulseMode(1,2,0)",
                                 "SetEncoderDir(1,2,0)",  "SetEncoderMode(1,2,0)",
                                 "SetHomeDir(1,2,0)",     "SetCompCountMode(1,2,0)",
                                 "SetSlmt(1,2,0,0,0)",    "SetCounterRing(1,2,0,0,0)"};
        const QStringList filter{"SetFilterTime(1,2,0)", "SetFilterSensor(1,2,0)",
                                 "SetFilterSvIF(1,2,0)", "SetFilterEncoderZ(1,2,0)",
                                 "SetFilterExt(1,2,0)"};
        QTest::newRow("System IO") << 0 << BoardFamily::RL << systemIo;
        QTest::newRow("Motion Parameter") << 1 << BoardFamily::RL << motion;
        QTest::newRow("Filter RL") << 2 << BoardFamily::RL << filter;
        QTest::newRow("Filter RN")
            << 2 << BoardFamily::RN << filter + QStringList{"SetFilterStop(1,2,0)"};
    }
    void apply_writesThePageInOneOrder()
    {
        QFETCH(int, page);
        QFETCH(BoardFamily, family);
        QFETCH(QStringList, writes);
        // An all-zero board: only the magnification differs from what the pages show (the
        // counter-clear use the System IO page writes as 1 is not compared).
        Rig rig;
        auto shown = rig.page(page);
        shown->Load(family);
        QCOMPARE(rig.board(family).count("GetFilterStop"), family == BoardFamily::RN ? 1 : 0);
        QCOMPARE(shown->IsChanged(family), page == 1);
        rig.board(family).clearCalls();
        shown->Apply(family);
        QCOMPARE(rig.board(family).calls(), writes);
    }

    void magnification_typed_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("range");
        QTest::addColumn<int>("written");
        const struct
        {
            const char* typed;
            const char* message;
            const char* shown;
            const char* range;
            int written;
        } cases[] = {
            {"0", "Speed range is greater than 0!", "20", "(20 ~ 160000)", 20},
            {"501", "Speed range is smaller than 500!", "20", "(20 ~ 160000)", 20},
            {"500", "", "500", "(500 ~ 4000000)", 500},
            {"12a", "Input value is incorrect!", "12a", "(20 ~ 160000)", 20},
        };
        for (const auto& c : cases) {
            for (const char* ending : {"Enter", "Tab"}) {
                QTest::addRow("%s %s", c.typed, ending)
                    << QString::fromLatin1(c.typed) << QString::fromLatin1(c.message)
                    << QString::fromLatin1(c.shown) << QString::fromLatin1(c.range) << c.written;
            }
        }
    }
    void magnification_typed()
    {
        QFETCH(QString, typed);
        QFETCH(QString, message);
        QFETCH(QString, shown);
        QFETCH(QString, range);
        QFETCH(int, written);
        Rig rig;
        rig.rl.setResult("GetRangeMode", 20);
        QWidget top;
        auto* layout = new QVBoxLayout(&top);
        ParameterSetupPage* page = rig.page(1).release();
        layout->addWidget(page);
        layout->addWidget(new QLineEdit);
        page->Load(BoardFamily::RL);
        top.show();
        top.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&top));

        // Keys go where a keyboard's go: to the focused widget, reached as Tab reaches it.
        auto* list = child<QComboBox>(page, "RangeMagnification");
        list->setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), typed);
        const bool enter = QString::fromLatin1(QTest::currentDataTag()).endsWith("Enter");
        QTest::keyClick(QApplication::focusWidget(), enter ? Qt::Key_Return : Qt::Key_Tab);
        QCOMPARE(rig.prompt.messages(), message.isEmpty() ? QStringList() : QStringList{message});
        QCOMPARE(list->currentText(), shown);
        QCOMPARE(child<QLabel>(page, "rangeText")->text(), range);
        rig.rl.clearCalls();
        page->Apply(BoardFamily::RL);
        QCOMPARE(rig.rl.calls({"SetRangeMode"}),
                 QStringList{QStringLiteral("SetRangeMode(1,2,%1)").arg(written)});
    }

    void boardStates_showAsThePagesShowThem()
    {
        Rig rig;
        // Both soft limit and ring in use: the ring wins, so the page differs from the board.
        rig.rl.setOutValues("GetSlmt", {5000, -5000, 1});
        rig.rl.setOutValues("GetCounterRing", {360, 360, 1});
        auto motion = rig.page(1);
        motion->Load(BoardFamily::RL);
        QCOMPARE(child<QComboBox>(motion.get(), "RangeMagnification")->currentText(),
                 QStringLiteral("100"));
        QCOMPARE(child<QLabel>(motion.get(), "rangeText")->text(),
                 QStringLiteral("(100 ~ 800000)"));
        QVERIFY(!child<QCheckBox>(motion.get(), "softLimitUse")->isChecked());
        QVERIFY(!child<QLineEdit>(motion.get(), "softLimitPlus")->isEnabled());
        QVERIFY(child<QCheckBox>(motion.get(), "counterRingUse")->isChecked());
        rig.rl.setResult("GetRangeMode", 100);
        QVERIFY(motion->IsChanged(BoardFamily::RL));

        // Home mode 5 searches a limit: the origin level follows the limit level.
        rig.rl.setResult("GetHomeMode", 5);
        rig.rl.setOutValues("GetHlmt", {0, 1});
        auto io = rig.page(0);
        io->Load(BoardFamily::RL);
        auto* origin = child<QComboBox>(io.get(), "OriginLevel");
        QVERIFY(!origin->isEnabled());
        QCOMPARE(origin->currentIndex(), 1);
        child<QComboBox>(io.get(), "LimitLevel")->setCurrentIndex(0);
        QCOMPARE(origin->currentIndex(), 0);
        rig.rl.clearCalls();
        io->Apply(BoardFamily::RL);
        QCOMPARE(rig.rl.calls({"SetHlmt", "SetOrg", "SetSvCClr"}),
                 (QStringList{"SetHlmt(1,2,0,0)", "SetOrg(1,2,0)", "SetSvCClr(1,2,1,0)"}));
    }
};

QTEST_MAIN(TestPrmSuPages)
#include "tst_prmsupages.moc"
