#include "AxisTestForm.h"
#include "AxisTestRun.h"
#include "COV_AxisTestWnd.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"

#include <QApplication>
#include <QComboBox>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

// The Axis Test window on the simulated boards, driven through its fields and buttons.
class TestAxisTestWnd : public QObject
{
    Q_OBJECT

private slots:
    void runIn_typedSettingsThenStopAll();
    void start_refusesTypedNonsense();
    void close_endsTheTest();
};

namespace {
struct WindowRig
{
    BoardApi api;
    AppState state;
    ScriptedPrompt prompt;
    RecordingFrame frame;
    ToolContext context{state, api, prompt, frame};
    SimBoardsRig sim{api, state};
    QTemporaryDir out;
    std::int64_t now = 0;
    std::unique_ptr<COV_AxisTestWnd> window;

    bool open()
    {
        if (!sim.start())
            return false;
        window = std::make_unique<COV_AxisTestWnd>(context);
        window->setClock([this] { return now; });
        window->show();
        return QTest::qWaitForWindowExposed(window.get());
    }
    // Focuses the field as a click would and types over its text.
    void type(const char* name, const QString& text)
    {
        auto* field = window->form()->findChild<QLineEdit*>(QLatin1String(name));
        QVERIFY(field && field->isVisible());
        QTest::mouseClick(field, Qt::LeftButton);
        QWidget* focused = QApplication::focusWidget();
        QTest::keyClick(focused, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(focused, text);
    }
    void press(const QString& caption)
    {
        for (auto* button : window->findChildren<QPushButton*>()) {
            if (button->text() == caption)
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        QFAIL(qPrintable("no button " + caption));
    }
    void poll(int ms)
    {
        for (int t = 0; t < ms; t += 10) {
            sim.advance(BoardFamily::RL, 10);
            now += 10;
            QMetaObject::invokeMethod(window->pollTimer(), "timeout", Qt::DirectConnection);
        }
    }
};
} // namespace

void TestAxisTestWnd::runIn_typedSettingsThenStopAll()
{
    WindowRig rig;
    QVERIFY(rig.open());
    QComboBox* kind = rig.window->form()->kindList();
    kind->setFocus(Qt::TabFocusReason); // as Tab reaches it
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QCOMPARE(rig.window->form()->kind(), AxisTestKind::RunIn);
    rig.type("points", "0, 5000");
    rig.type("cycles", "50");
    rig.window->form()->setOutputFolder(rig.out.path());
    rig.sim.api.PutSvOn(BoardFamily::RL, 0, 0, 1);
    rig.state.units.setScale(BoardFamily::RL, 0, 0, AxisUnitScale("mm", 1000, 3));
    rig.press("Start");
    QVERIFY(rig.window->run() && rig.window->run()->running());
    QVERIFY(rig.state.active.anyAxesMoving()); // the controller stays put meanwhile
    rig.poll(3000);
    QVERIFY(rig.window->run()->done() > 0);
    QVERIFY(rig.window->progressText()->text().contains("worst following error"));

    rig.window->endMotion(); // what Stop All does to every window
    QCOMPARE(rig.window->run()->outcome(), AxisTestRun::Outcome::Stopped);
    QVERIFY(!rig.state.active.anyAxesMoving());
    QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 0), nrx_u16(0));
    QVERIFY(rig.window->progressText()->text().startsWith("STOPPED"));
    const QString folder = rig.window->reportFolder();
    QVERIFY(folder.startsWith(rig.out.path()));
    QVERIFY(QFile::exists(folder + "/report.html"));
    QFile summary(folder + "/summary.json");
    QVERIFY(summary.open(QIODevice::ReadOnly));
    // The axis's scale comes along, though units are not shown on screen.
    const QJsonDocument json = QJsonDocument::fromJson(summary.readAll());
    QCOMPARE(json["units"]["unit"].toString(), QString("mm"));
    QCOMPARE(json["figures_units"]["following_error_max"].toDouble(),
             json["figures"]["following_error_max"].toDouble() / 1000);
}

void TestAxisTestWnd::start_refusesTypedNonsense()
{
    WindowRig rig;
    QVERIFY(rig.open());
    rig.type("searches", "12a");
    rig.press("Start");
    QCOMPARE(rig.prompt.messages(), QStringList{"\"Searches\" must be a whole number."});
    QVERIFY(!rig.window->run());

    rig.type("searches", "3");
    rig.sim.api.PutSvOn(BoardFamily::RL, 0, 0, 0);
    rig.window->form()->setOutputFolder(rig.out.path());
    rig.press("Start");
    QCOMPARE(rig.prompt.messages().last(),
             QString("The test cannot start: The servo of axis 0 is off."));
    QVERIFY(QDir(rig.out.path()).isEmpty()); // a refused start leaves no folder
}

void TestAxisTestWnd::close_endsTheTest()
{
    WindowRig rig;
    QVERIFY(rig.open());
    rig.type("searches", "50");
    rig.window->form()->setOutputFolder(rig.out.path());
    rig.sim.api.PutSvOn(BoardFamily::RL, 0, 0, 1);
    rig.press("Start");
    rig.poll(200);
    QVERIFY(rig.window->run()->running());
    rig.window->close();
    QCOMPARE(rig.window->run()->outcome(), AxisTestRun::Outcome::Stopped);
    QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 0), nrx_u16(0));
}

QTEST_MAIN(TestAxisTestWnd)
#include "tst_axistestwnd.moc"
