#include "BoardCallTrace.h"
#include "COV_ActSpdCalDlg.h"
#include "COV_ComparePrmDlg.h"
#include "COV_ExportPrmDlg.h"
#include "COV_ImportPrmDlg.h"
#include "COV_MainFrame.h"
#include "MotionErrorCode.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "ToolView.h"
#include "ToolWindowFactory.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

using DialogMaker = std::function<QDialog*(const ToolContext&)>;
Q_DECLARE_METATYPE(DialogMaker)

namespace {

const QString kIncorrect = QStringLiteral("Input value is incorrect!");

// Every text the program may show in a box; %n stands for any text.
QList<QRegularExpression> knownTexts()
{
    QStringList texts{
        kIncorrect,
        "Parameters are changed. Do you want to set parameter?",
        "%1, axis %2, \"%3\":\nParameters are changed. Do you want to set parameter?",
        "Selected axis in not checked !\n Please check selected axis !",
        "Please Select at least 2 axes !",
        "Gantry Limit Error !",
        "Speed range is greater than 0!",
        "Speed range is smaller than 500!",
        "Axes are moving !\nCan not change active controller !",
        "Axes are moving !\nCan not import parameters !",
        "Write %1 changed parameter(s) to the boards?",
        "Select at least one channel.",
        "Can not write %1:\n%2",
        "Can not read %1:\n%2",
        "Can not write %1.",
        "Can not write %1 !",
        "Choose the file to export to.",
        "The parameters could not be exported to %1:\n%2",
        "The parameters of %1 card(s) were exported to %2.",
        "%1 cannot be compared:\n%2",
        "Do you want system reset?",
        "%1 axis parameter set to default value?",
        "Are you sure you want to save the parameter files of all the cards?",
        "The test cannot start: %1",
        "\"%1\" must be a whole number.",
        "\"Positions\" must be whole numbers separated by commas.",
    };
    for (std::int32_t code : {-600, -610, -620, -630, -640, -650, -660, -9999}) {
        for (auto wording :
             {MotionErrorCode::Wording::SingleAxis, MotionErrorCode::Wording::MultiAxis})
            texts << MotionErrorCode(code).message(wording);
    }
    QList<QRegularExpression> patterns;
    for (const QString& text : texts) {
        QString pattern = QRegularExpression::escape(text);
        pattern.replace(QRegularExpression(QStringLiteral("\\\\?%\\d")), QStringLiteral(".*"));
        patterns << QRegularExpression(QStringLiteral("\\A") + pattern + QStringLiteral("\\z"),
                                       QRegularExpression::DotMatchesEverythingOption);
    }
    return patterns;
}

// Calls that change a board: setters, outputs, moves, saves and resets. Stops are always allowed.
bool changesBoard(const BoardCall& call)
{
    const QLatin1String name(call.info().name);
    return name.startsWith(QLatin1String("Set")) || name.startsWith(QLatin1String("Put")) ||
           name.endsWith(QLatin1String("_Move")) || name == QLatin1String("SaveFile") ||
           name == QLatin1String("Reset");
}

// Text a user might type: numbers, signs, hex, letters, punctuation, other scripts, long runs.
QString randomText(QRandomGenerator& random)
{
    static const QString pieces[] = {
        "0",      "7",      "12000",      "-",           "+",           "0x1F", "1e5",   ".",
        "..",     " ",      "\t",         "a",           "F",           "z",    "Q",     "!",
        "%d",     "%s",     "/",          "\\",          ",",           ";",    "=",     "[",
        "'",      "\"",     "é",          "ß",           "١٢",          "１２", "ü",     "😀",
        "\u00a0", "\u200b", "2147483647", "-2147483648", "99999999999", "-0",   "00012", "DO3"};
    QString text;
    const int kind = int(random.bounded(10));
    if (kind == 0)
        return QString(200 + int(random.bounded(300)), QChar(u"9-a."[random.bounded(4)]));
    for (int n = 1 + int(random.bounded(kind < 5 ? 3 : 8)); n > 0; --n)
        text += pieces[random.bounded(int(std::size(pieces)))];
    return text;
}

// Types text key by key, as a keyboard would, whatever its characters.
void type(QWidget* field, const QString& text)
{
    for (const QChar c : text) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier, QString(c));
        QApplication::sendEvent(field, &press);
        QApplication::sendEvent(field, &release);
    }
}

// Brings the page that holds the widget to the front, through its tab bar when it has one.
void reveal(QWidget* widget, QWidget* top)
{
    for (QWidget* child = widget; child && child != top; child = child->parentWidget()) {
        auto* stack = qobject_cast<QStackedWidget*>(child->parentWidget());
        if (!stack || stack->currentWidget() == child)
            continue;
        if (auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget()))
            tabs->setCurrentWidget(child);
        for (QTabBar* bar : top->findChildren<QTabBar*>()) {
            if (bar->count() == stack->count() && bar->isVisibleTo(top))
                bar->setCurrentIndex(stack->indexOf(child));
        }
        stack->setCurrentWidget(child);
    }
}

// The buttons a user can press while the field is shown, but for those that close the window
// or open a dialog of their own ("...").
QList<QAbstractButton*> buttonsBeside(QWidget* top)
{
    static const QStringList closing{"Close", "OK", "Cancel", "Exit"};
    QList<QAbstractButton*> buttons;
    for (QAbstractButton* button : top->findChildren<QAbstractButton*>()) {
        const QString text = button->text().remove(QLatin1Char('&'));
        if (button->isVisibleTo(top) && button->isEnabled() && !closing.contains(text) &&
            !text.endsWith(QLatin1String("...")) && qobject_cast<QPushButton*>(button))
            buttons << button;
    }
    return buttons;
}

// A file name beside its "Browse..." button.
bool isPathField(const QLineEdit* field)
{
    for (const QPushButton* button : field->parentWidget()->findChildren<QPushButton*>()) {
        if (button->text() == QLatin1String("Browse..."))
            return true;
    }
    return false;
}

// A field that waits for a choice beside it (a ticked channel, a source kind) gets one.
void enable(QLineEdit* field)
{
    QWidget* box = field->parentWidget();
    for (QCheckBox* check : box->findChildren<QCheckBox*>(Qt::FindDirectChildrenOnly)) {
        if (!field->isEnabled() && check->isEnabled() && !check->isChecked())
            check->click();
    }
    for (QComboBox* combo : box->findChildren<QComboBox*>(Qt::FindDirectChildrenOnly)) {
        for (int i = 0; i < combo->count() && !field->isEnabled(); ++i)
            combo->setCurrentIndex(i);
    }
}

} // namespace

// Random text typed into every field of every tool window and dialog, then its Enter and the
// buttons beside it, on the simulated boards: nothing crashes, every box shown is one of the
// program's texts, and an action that answers "Input value is incorrect!" changes no board.
class TestFieldFuzz : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        SimBoardsRig sim;
        BoardCallTrace trace;
        ScriptedPrompt prompt;
        ToolWindowFactory factory;
        std::unique_ptr<COV_MainFrame> frame;

        bool start()
        {
            if (!sim.start(false))
                return false;
            sim.api.setTrace(&trace);
            sim.state.moduleDirectory = sim.folder.path() + QLatin1Char('/');
            prompt.setDefaultAnswer(true);
            registerToolWindows(factory);
            frame = std::make_unique<COV_MainFrame>(sim.state, sim.api, prompt, factory);
            if (!frame->create())
                return false;
            frame->monitorTimer().stop();
            frame->resize(1366, 768);
            frame->show();
            return true;
        }
        ToolContext context() { return {sim.state, sim.api, prompt, *frame}; }
        ~Rig()
        {
            frame.reset();
            sim.api.setTrace(nullptr);
        }
    };

    QList<QRegularExpression> m_known = knownTexts();
    int m_refusals = 0;

    bool known(const QString& text) const
    {
        for (const QRegularExpression& pattern : m_known) {
            if (pattern.match(text).hasMatch())
                return true;
        }
        return false;
    }

    // One action: every box it shows is known, and a refusal comes with no board change.
    void act(Rig& rig, const QString& what, const std::function<void()>& action)
    {
        rig.prompt.clear();
        const std::uint64_t from = rig.trace.end();
        action();
        for (const QString& text : rig.prompt.texts())
            QVERIFY2(known(text), qPrintable(what + QStringLiteral(": unknown box ") + text));
        if (!rig.prompt.messages().contains(kIncorrect))
            return;
        ++m_refusals;
        for (std::uint64_t n = from; n < rig.trace.end(); ++n) {
            QVERIFY2(!changesBoard(rig.trace.at(n)),
                     qPrintable(what + QStringLiteral(" refused the value but called ") +
                                QLatin1String(rig.trace.at(n).info().name)));
        }
    }

    void fuzz(Rig& rig, QWidget* top, quint32 seed)
    {
        QRandomGenerator random(seed);
        const QList<QLineEdit*> fields = top->findChildren<QLineEdit*>();
        QVERIFY(!fields.isEmpty());
        // A modal box that a button opens anyway is closed at once.
        QTimer closeModal;
        connect(&closeModal, &QTimer::timeout, &closeModal, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        closeModal.start(0);
        const auto poll = [&] {
            rig.frame->MonitorTick();
            for (ToolView* view : rig.frame->toolWindows().openViews()) {
                if (QTimer* timer = view->pollTimer())
                    QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
            }
        };
        int typed = 0;
        for (int round = 0; round < 3; ++round) {
            for (QLineEdit* field : fields) {
                top->show();
                reveal(field, top);
                enable(field);
                if (!field->isEnabled() || field->isReadOnly() || !field->isVisibleTo(top))
                    continue;
                ++typed;
                const QString what = QStringLiteral("%1 %2").arg(
                    QLatin1String(top->metaObject()->className()), field->objectName());
                QString text = randomText(random);
                // File names stay inside the rig's folder.
                const bool path = isPathField(field);
                if (path) {
                    text.remove(QLatin1Char('/')).remove(QLatin1Char('\\'));
                    field->setText(rig.sim.folder.path() + QLatin1Char('/'));
                    field->end(false);
                }
                act(rig, what + QStringLiteral(" typing ") + text, [&] {
                    field->setFocus();
                    if (!path && random.bounded(4) != 0)
                        field->selectAll();
                    type(field, text);
                });
                act(rig, what + QStringLiteral(" Enter"),
                    [&] { QTest::keyClick(field, Qt::Key_Return); });
                for (QAbstractButton* button : buttonsBeside(top)) {
                    if (!button->isVisibleTo(top) || !button->isEnabled())
                        continue;
                    act(rig, what + QStringLiteral(" then ") + button->text(),
                        [&] { QTest::mouseClick(button, Qt::LeftButton); });
                }
                if (QTest::currentTestFailed())
                    return;
                // The boards run on a little and every window polls, then everything stops.
                for (BoardFamily family : kAllFamilies)
                    rig.sim.advance(family, 20);
                act(rig, what + QStringLiteral(" poll"), poll);
                rig.frame->stopAllAction()->trigger();
                // A recording stops too, so its settings take typing again.
                for (QAbstractButton* button : buttonsBeside(top)) {
                    if (button->text() == QLatin1String("Stop"))
                        button->click();
                }
                QApplication::processEvents();
            }
        }
        if (typed == 0)
            QSKIP("no field takes typing");
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void toolWindow_data()
    {
        QTest::addColumn<int>("kind");
        for (const ToolWindowKind& entry : toolWindowKinds())
            QTest::newRow(entry.caption) << int(entry.kind);
    }
    void toolWindow()
    {
        QFETCH(int, kind);
        Rig rig;
        QVERIFY(rig.start());
        QDir::setCurrent(rig.sim.folder.path()); // relative file names land in the rig's folder
        rig.frame->openTool(ToolKind(kind));
        ToolView* view = rig.frame->toolWindows().view(ToolKind(kind));
        QVERIFY(view);
        if (view->findChildren<QLineEdit*>().isEmpty())
            QSKIP("no typed field");
        fuzz(rig, view, quint32(kind));
    }

    void dialog_data()
    {
        using Make = DialogMaker;
        QTest::addColumn<Make>("make");
        QTest::newRow("speed calculator")
            << Make([](const ToolContext& c) -> QDialog* { return new COV_ActSpdCalDlg(c); });
        QTest::newRow("export") << Make(
            [](const ToolContext& c) -> QDialog* { return new COV_ExportPrmDlg(c); });
        QTest::newRow("import") << Make(
            [](const ToolContext& c) -> QDialog* { return new COV_ImportPrmDlg(c); });
        QTest::newRow("compare") << Make(
            [](const ToolContext& c) -> QDialog* { return new COV_ComparePrmDlg(c); });
    }
    void dialog()
    {
        QFETCH(DialogMaker, make);
        Rig rig;
        QVERIFY(rig.start());
        QDir::setCurrent(rig.sim.folder.path());
        const ToolContext context = rig.context(); // dialogs keep a reference to it
        std::unique_ptr<QDialog> dialog(make(context));
        fuzz(rig, dialog.get(), 1500);
    }

    void cleanupTestCase() { QVERIFY(m_refusals > 0); }
};

QTEST_MAIN(TestFieldFuzz)
#include "tst_fieldfuzz.moc"
