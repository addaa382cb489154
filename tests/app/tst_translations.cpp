#include "COV_MainFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "ToolView.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QXmlStreamReader>

#include <memory>

namespace {

// Every source text of translations/orvane.ts by context; a %1 in a source stands for any text.
using Sources = QHash<QString, QList<QRegularExpression>>;

// A text as read, without its menu mnemonics and rich-text tags.
QString plain(QString text)
{
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    return text.remove(tag).remove(QLatin1Char('&'));
}

Sources readSources(const QString& path)
{
    Sources sources;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return sources;
    QXmlStreamReader xml(&file);
    QString context;
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            QString pattern = QRegularExpression::escape(plain(xml.readElementText()));
            pattern.replace(QRegularExpression(QStringLiteral("\\\\?%\\d")), QStringLiteral(".*"));
            sources[context] << QRegularExpression(QStringLiteral("\\A") + pattern +
                                                       QStringLiteral("\\z"),
                                                   QRegularExpression::DotMatchesEverythingOption);
        } else if (xml.name() != QLatin1String("TS") && xml.name() != QLatin1String("context") &&
                   xml.name() != QLatin1String("message")) {
            xml.skipCurrentElement();
        }
    }
    return sources;
}

bool marked(const Sources& sources, const QStringList& contexts, const QString& text)
{
    for (const QString& context : contexts) {
        for (const QRegularExpression& source : sources.value(context)) {
            if (source.match(plain(text)).hasMatch())
                return true;
        }
    }
    return false;
}

// Only texts with words in them: numbers and hexadecimal values are shown, not translated.
bool hasWords(const QString& text)
{
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{2,}"));
    static const QRegularExpression hex(QStringLiteral("\\A\\s*0x[0-9A-Fa-f]+\\s*\\z"));
    return word.match(text).hasMatch() && !hex.match(text).hasMatch();
}

// The classes a widget's text may come from: its own and its parents', up to the window,
// with their base classes, and the plain classes that lay windows out.
QStringList contextsOf(const QWidget* widget, const QWidget* window)
{
    QStringList contexts{QStringLiteral("MultiAxisForm"),      QStringLiteral("ProfileFields"),
                         QStringLiteral("MotionButtonColumn"), QStringLiteral("CardSelectorRow"),
                         QStringLiteral("ToolWindowKinds"),    QStringLiteral("StatusBitCaptions")};
    for (const QWidget* each = widget; each; each = each->parentWidget()) {
        for (const QMetaObject* meta = each->metaObject(); meta; meta = meta->superClass())
            contexts << QLatin1String(meta->className());
        if (each == window)
            break;
    }
    return contexts;
}

// The captions a user reads on a window: labels, buttons, group titles and tabs.
QList<QPair<const QWidget*, QString>> captionsOf(const QWidget* window)
{
    QList<QPair<const QWidget*, QString>> captions;
    for (const QLabel* label : window->findChildren<QLabel*>())
        captions.append({label, label->text()});
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>())
        captions.append({button, button->text()});
    for (const QGroupBox* group : window->findChildren<QGroupBox*>())
        captions.append({group, group->title()});
    for (const QTabBar* tabs : window->findChildren<QTabBar*>()) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            captions.append({tabs, tabs->tabText(tab)});
    }
    return captions;
}

} // namespace

// Every menu text of the frame and every caption of a freshly opened tool window of each kind
// is a source of translations/orvane.ts: a text that was not marked for translation (or a
// .ts not regenerated after a new text) fails here.
class TestTranslations : public QObject
{
    Q_OBJECT

private:
    Sources m_sources;
    SimBoardsRig m_sim;
    ScriptedPrompt m_prompt;
    ToolWindowFactory m_factory;
    std::unique_ptr<COV_MainFrame> m_frame;

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        m_sources = readSources(QStringLiteral(ORVANE_TS_FILE));
        QVERIFY2(m_sources.size() > 10, ORVANE_TS_FILE);
        QVERIFY(m_sim.start(false));
        m_sim.state.moduleDirectory = m_sim.folder.path() + QLatin1Char('/');
        m_prompt.setDefaultAnswer(true);
        registerToolWindows(m_factory);
        m_frame = std::make_unique<COV_MainFrame>(m_sim.state, m_sim.api, m_prompt, m_factory);
        QVERIFY(m_frame->create());
        m_frame->monitorTimer().stop();
        m_frame->show();
    }
    void cleanupTestCase() { m_frame.reset(); }

    void menus_allMarked()
    {
        const QStringList contexts{
            QStringLiteral("COV_MainFrame"), QStringLiteral("ToolWindowKinds"),
            QStringLiteral("UserUnitsActions"), QStringLiteral("PaneViewMenu")};
        QStringList unmarked;
        QList<QMenu*> menus;
        for (QAction* action : m_frame->menuBar()->actions())
            menus << action->menu();
        while (!menus.isEmpty()) {
            QMenu* menu = menus.takeFirst();
            if (!marked(m_sources, contexts, menu->title()))
                unmarked << menu->title();
            for (QAction* action : menu->actions()) {
                if (action->menu())
                    menus << action->menu();
                else if (!action->isSeparator() && !marked(m_sources, contexts, action->text()))
                    unmarked << action->text();
            }
        }
        QVERIFY2(unmarked.isEmpty(), qPrintable(unmarked.join(QStringLiteral(" | "))));
    }

    void toolWindows_captionsMarked_data()
    {
        QTest::addColumn<int>("kind");
        for (const ToolWindowKind& entry : toolWindowKinds())
            QTest::newRow(entry.caption) << int(entry.kind);
    }
    void toolWindows_captionsMarked()
    {
        QFETCH(int, kind);
        m_frame->openTool(ToolKind(kind));
        const ToolView* view = m_frame->toolWindows().view(ToolKind(kind));
        QVERIFY(view);
        QStringList unmarked;
        for (const auto& [widget, text] : captionsOf(view)) {
            if (hasWords(text) && !marked(m_sources, contextsOf(widget, view), text))
                unmarked << QStringLiteral("%1 \"%2\"")
                                .arg(QLatin1String(widget->metaObject()->className()), text);
        }
        QVERIFY2(unmarked.isEmpty(), qPrintable(unmarked.join(QStringLiteral(" | "))));
    }
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
