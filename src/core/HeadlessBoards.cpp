#include "HeadlessBoards.h"

#include <QCoreApplication>
#include <QDir>

HeadlessBoards::HeadlessBoards(QTextStream& err)
    // The libraries come from the program's own folder only, as for the window.
    : m_loader(QDir(QCoreApplication::applicationDirPath()).absolutePath() + QLatin1Char('/')),
      m_prompt(err), m_startup(m_board, m_registry, m_prompt)
{}

HeadlessBoards::~HeadlessBoards()
{
    if (m_loaded)
        m_startup.unloadDevices();
}

bool HeadlessBoards::load()
{
    m_loader.loadAll();
    for (BoardFamily family : kAllFamilies)
        m_board.setTable(family, m_loader.table(family));
    m_loaded = true;
    if (!m_startup.loadDevices(m_loader.problems()))
        return false;
    for (BoardFamily family : kAllFamilies) {
        for (int card = 0; card < m_registry.cardCount(family); ++card)
            m_startup.readCardInfo(family, static_cast<CardNo>(card));
    }
    return true;
}

std::vector<BoardFamily> HeadlessBoards::simulated() const
{
    std::vector<BoardFamily> families;
    for (BoardFamily family : kAllFamilies) {
        if (m_loader.isSimulated(family))
            families.push_back(family);
    }
    return families;
}
