#include "BoardStartup.h"

#include "BoardApi.h"
#include "BoardLoader.h"
#include "BoardTexts.h"
#include "CardRegistry.h"
#include "OrvaneLog.h"
#include "PromptService.h"

#include <array>

BoardStartup::BoardStartup(BoardApi& board, CardRegistry& registry, PromptService& prompt)
    : m_board(board), m_registry(registry), m_prompt(prompt)
{}

QString BoardStartup::loadFailureText(BoardFamily family, std::int32_t result)
{
    const QString controller = QString::fromLatin1(familyControllerName(family));
    switch (result) {
    case -10:
        return tr("FAIL! %1 NOT SUPPORT THE PROCESS....").arg(controller);
    case -7:
        return tr("FAIL! %1 CHECK THE HARDWARE VERSION....").arg(controller);
    case -5:
        return tr("FAIL! %1 CEHCK UP-BOARD POSITION....").arg(controller);
    case -4:
        // The RM library's message has always read "ERRORR"; users search for it as written.
        return family == BoardFamily::RM ? tr("FAIL! %1 DATA BUS LINE ERRORR....").arg(controller)
                                         : tr("FAIL! %1 DATA BUS LINE ERROR....").arg(controller);
    case -2:
        return tr("FAIL! %1 PARAMETER FILE DOES NOT MATCH....").arg(controller);
    default:
        return QString();
    }
}

bool BoardStartup::loadDevices(const QStringList& libraryProblems)
{
    if (!libraryProblems.isEmpty())
        m_prompt.inform(libraryProblems.join(QLatin1Char('\n')));

    std::array<std::int32_t, kFamilyCount> results{};
    for (BoardFamily family : kAllFamilies) {
        // A family whose library could not be loaded counts as having no board.
        results[static_cast<std::size_t>(familyIndex(family))] =
            m_board.hasLibrary(family) ? m_board.LoadDevice(family) : -1;
    }

    bool anyBoard = false;
    for (BoardFamily family : kAllFamilies) {
        const std::int32_t result = results[static_cast<std::size_t>(familyIndex(family))];
        if (result < -1) {
            const QString text = loadFailureText(family, result);
            if (!text.isEmpty())
                m_prompt.inform(text);
        }
        anyBoard = anyBoard || result >= 0;
    }
    if (!anyBoard) {
        m_prompt.inform(tr("FAIL! LOAD DEVICE DRIVER ...."));
        return false;
    }
    for (BoardFamily family : kAllFamilies)
        m_registry.setLoadResult(family, results[static_cast<std::size_t>(familyIndex(family))]);
    return true;
}

QString BoardStartup::boardsFileNote(const BoardSimulator& simulator)
{
    // Every family reads the one file, so the problems of shared sections come once.
    QStringList problems;
    for (BoardFamily family : kAllFamilies) {
        for (const QString& problem : simulator.setupWarnings(family)) {
            if (!problems.contains(problem))
                problems << problem;
        }
    }
    if (problems.isEmpty())
        return QString();
    qCWarning(lcApp).noquote() << "NrxSimBoards.ini:" << problems.join(QStringLiteral("; "));
    return tr("NrxSimBoards.ini: %1").arg(problems.join(QStringLiteral("; ")));
}

std::int32_t BoardStartup::readCardInfo(BoardFamily family, CardNo card)
{
    nrx_i32 reserved = 0;
    nrx_i32 firmware = 0;
    nrx_i32 axisCount = 0;
    nrx_i32 infoValue = 0;
    nrx_i32 ioCount = 0;
    m_board.BoardInfo(family, card, &reserved, &firmware, &axisCount, &infoValue, &ioCount);
    m_registry.setCardInfo(family, card, axisCount, infoValue, ioCount);
    return firmware;
}

std::string BoardStartup::libraryVersionText(BoardFamily family)
{
    const QByteArray fileName = BoardLoader::libraryFileName(family).toLatin1();
    return BoardTexts::libraryVersionText(m_board.GetDllVersion(family, fileName.constData()));
}

bool BoardStartup::offerSave()
{
    QStringList refused;
    for (BoardFamily family : kAllFamilies) {
        for (int card = 0; card < kMaxCards; ++card) {
            if (!m_registry.parametersChanged(family, card))
                continue;
            const QString text = tr("%1(%2) board parameters are changed.\n"
                                    "Do you want to save parameter to file?")
                                     .arg(QLatin1String(familyDisplayName(family)))
                                     .arg(card);
            const PromptAnswer answer = m_prompt.askYesNoCancel(text);
            if (answer == PromptAnswer::Cancel)
                return false;
            if (answer != PromptAnswer::Yes)
                continue;
            const nrx_i32 result = m_board.SaveFile(family, static_cast<CardNo>(card));
            qCInfo(lcParams) << "Save Parameter at exit" << familyShortName(family) << "card"
                             << card << "returned" << result;
            if (result < 0)
                refused << tr("%1(%2): SaveFile returned %3")
                               .arg(QString::fromStdString(m_registry.modelName(family, card)))
                               .arg(card)
                               .arg(result);
        }
    }
    if (refused.isEmpty())
        return true;
    // The values would be lost with the program: it stays open, and the next exit asks again.
    m_prompt.inform(tr("The parameter file was not saved:\n%1\nOrvane stays open; exit again "
                       "to retry, or answer No to leave the values unsaved.")
                        .arg(refused.join(QLatin1Char('\n'))));
    return false;
}

void BoardStartup::unloadDevices()
{
    for (BoardFamily family : kAllFamilies) {
        if (m_registry.count(family) > 0)
            m_board.UnloadDevice(family);
    }
}
