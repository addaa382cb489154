#include "COrvaneApp.h"

#include "BoardCallClock.h"
#include "BoardLoader.h"
#include "COV_AboutDlg.h"
#include "COV_MainFrame.h"
#include "LogFile.h"
#include "OrvaneIcon.h"
#include "OrvaneLog.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>

COrvaneApp::COrvaneApp()
{
    QApplication::setApplicationName(QStringLiteral("Orvane"));
    // A desktop's own file dialog takes the keys past the program: F12 must reach Stop All.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_log = std::make_unique<LogFile>(LogFile::defaultPath());
    m_log->install();
    // Every window, dialog and tool window takes the program's own icon.
    QApplication::setWindowIcon(OrvaneIcon::create());
    m_state.moduleDirectory =
        QDir(QCoreApplication::applicationDirPath()).absolutePath() + QLatin1Char('/');
    m_translations.install(QLocale(), m_state.moduleDirectory);
    m_board.setTrace(&m_trace);
    m_traceClock = std::make_unique<BoardCallClock>(m_trace);
    qApp->installEventFilter(m_traceClock.get());
}

COrvaneApp::~COrvaneApp()
{
    // The frame unloads the boards as it goes, before the libraries are closed.
    m_frame.reset();
    m_loader.reset();
}

int COrvaneApp::run()
{
    m_loader = std::make_unique<BoardLoader>(m_state.moduleDirectory);
    m_loader->loadAll();
    for (BoardFamily family : kAllFamilies) {
        m_board.setTable(family, m_loader->table(family));
        m_board.setSimExtras(family, m_loader->simExtras(family));
    }

    m_frame = std::make_unique<COV_MainFrame>(m_state, m_board, m_prompt, m_factory);
    m_prompt.setParent(m_frame.get());
    for (const QString& problem : m_loader->problems())
        qCWarning(lcApp).noquote() << problem;
    if (!m_frame->create(m_loader->problems())) {
        qCWarning(lcApp) << "No board could be loaded; Orvane exits";
        return 1;
    }
    logStart();
    // Without a window manager (a kiosk, a virtual display) maximising does nothing; the
    // frame then still covers the screen.
    if (const QScreen* screen = m_frame->screen())
        m_frame->setGeometry(screen->availableGeometry());
    m_frame->showMaximized();
    const int result = QApplication::exec();
    m_frame.reset();
    qCInfo(lcApp) << "Orvane exits with code" << result;
    return result;
}

void COrvaneApp::logStart() const
{
    QStringList families;
    bool simulated = false;
    for (BoardFamily family : kAllFamilies) {
        const int cards = m_state.registry.cardCount(family);
        const bool sim = cards > 0 && m_loader->isSimulated(family);
        simulated = simulated || sim;
        families << QStringLiteral("%1: %2 card(s)%3")
                        .arg(QLatin1String(familyShortName(family)))
                        .arg(cards)
                        .arg(sim ? QStringLiteral(" (simulated)") : QString());
    }
    QString boards;
    if (simulated) {
        // Where the simulated boards look for their file: next to them, or in the user's data
        // folder when an installed copy's folder cannot be written.
        const QString folder =
            QFileInfo(m_state.moduleDirectory).isWritable()
                ? m_state.moduleDirectory
                : QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
                      QLatin1Char('/');
        const QString file = folder + QStringLiteral("NrxSimBoards.ini");
        boards = QFileInfo::exists(file) ? QStringLiteral("; boards file ") + file
                                         : QStringLiteral("; built-in simulated boards");
    }
    qCInfo(lcApp).noquote() << COV_AboutDlg::versionText() << "started;"
                            << families.join(QStringLiteral(", ")) + boards << "; log"
                            << m_log->path();
}
