#include "COrvaneApp.h"

#include "BoardCallClock.h"
#include "BoardLoader.h"
#include "COV_MainFrame.h"
#include "OrvaneIcon.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QScreen>

COrvaneApp::COrvaneApp()
{
    QApplication::setApplicationName(QStringLiteral("Orvane"));
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
    for (BoardFamily family : kAllFamilies)
        m_board.setTable(family, m_loader->table(family));

    m_frame = std::make_unique<COV_MainFrame>(m_state, m_board, m_prompt, m_factory);
    m_prompt.setParent(m_frame.get());
    if (!m_frame->create(m_loader->problems()))
        return 1;
    // Without a window manager (a kiosk, a virtual display) maximising does nothing; the
    // frame then still covers the screen.
    if (const QScreen* screen = m_frame->screen())
        m_frame->setGeometry(screen->availableGeometry());
    m_frame->showMaximized();
    const int result = QApplication::exec();
    m_frame.reset();
    return result;
}
