#pragma once

#include "BoardApi.h"
#include "BoardLoader.h"
#include "BoardStartup.h"
#include "CardRegistry.h"
#include "PromptService.h"

#include <QTextStream>

#include <vector>

// The boards as a command with no window finds them: the libraries of the program's own
// folder loaded, every card registered, start-up messages on the terminal, and every family
// unloaded again at the end.
class HeadlessBoards
{
public:
    explicit HeadlessBoards(QTextStream& err);
    ~HeadlessBoards();
    HeadlessBoards(const HeadlessBoards&) = delete;
    HeadlessBoards& operator=(const HeadlessBoards&) = delete;

    // LoadDevice and the card information of every family; false when none could be used.
    bool load();

    BoardApi& api() { return m_board; }
    const CardRegistry& registry() const { return m_registry; }
    // The families whose boards are simulated: their state lives only as long as the process.
    std::vector<BoardFamily> simulated() const;

private:
    // Nobody is there to answer: questions are printed and answered No.
    class ConsolePrompt : public PromptService
    {
    public:
        explicit ConsolePrompt(QTextStream& err) : m_err(err) {}
        bool askYesNo(const QString& text) override
        {
            m_err << text << Qt::endl;
            return false;
        }
        void inform(const QString& text) override { m_err << text << Qt::endl; }

    private:
        QTextStream& m_err;
    };

    BoardLoader m_loader;
    BoardApi m_board;
    CardRegistry m_registry;
    ConsolePrompt m_prompt;
    BoardStartup m_startup;
    bool m_loaded = false;
};
