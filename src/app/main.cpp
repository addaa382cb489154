#include "AppState.h"
#include "BoardApi.h"
#include "BoardLoader.h"
#include "BoardStartup.h"
#include "BoardTexts.h"
#include "MessageBoxPrompt.h"

#include <QApplication>
#include <QDir>
#include <QLabel>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orvane"));

    AppState state;
    state.moduleDirectory =
        QDir(QCoreApplication::applicationDirPath()).absolutePath() + QLatin1Char('/');
    BoardLoader loader(state.moduleDirectory);
    loader.loadAll();
    BoardApi board;
    for (BoardFamily family : kAllFamilies)
        board.setTable(family, loader.table(family));

    MessageBoxPrompt prompt;
    BoardStartup startup(board, state.registry, prompt);
    if (!startup.loadDevices(loader.problems()))
        return 1;

    QString summary;
    for (BoardFamily family : kAllFamilies) {
        for (int card = 0; card < state.registry.cardCount(family); ++card) {
            startup.readCardInfo(family, static_cast<CardNo>(card));
            summary += QString::fromStdString(
                           BoardTexts::cardLabel(card, state.registry.modelName(family, card))) +
                       QLatin1Char('\n');
        }
    }
    QLabel window(summary);
    window.setWindowTitle(QStringLiteral("Orvane"));
    window.show();
    const int result = QApplication::exec();
    startup.offerSave();
    startup.unloadDevices();
    return result;
}
