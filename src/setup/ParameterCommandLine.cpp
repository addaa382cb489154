#include "ParameterCommandLine.h"

#include "BoardApi.h"
#include "CardRegistry.h"
#include "CommandLineStart.h"
#include "HeadlessBoards.h"
#include "OrvaneLog.h"
#include "ParameterComparison.h"
#include "ParameterImport.h"
#include "ParameterText.h"
#include "PromptService.h"
#include "UnitScaleImport.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTextStream>

#include <algorithm>
#include <cstring>
#include <map>

namespace {

// Splits arguments into the positional ones and the options; false on an unknown option.
bool splitArguments(const QStringList& arguments, const QStringList& flags,
                    const QStringList& valued, QStringList& positional,
                    std::map<QString, QString>& options, QTextStream& err)
{
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& a = arguments[i];
        if (!a.startsWith(QLatin1String("--"))) {
            positional << a;
        } else if (flags.contains(a)) {
            options[a] = QString();
        } else if (valued.contains(a) && i + 1 < arguments.size()) {
            options[a] = arguments[++i];
        } else {
            err << "orvane params: unknown option or missing value: " << a << Qt::endl;
            return false;
        }
    }
    return true;
}

QString where(const ParameterChange& c)
{
    ParameterSection section;
    section.family = c.family;
    section.card = c.card;
    section.axis = c.axis;
    return QString::fromStdString(section.name());
}

} // namespace

ParameterCommandLine::ParameterCommandLine(BoardApi& board, const CardRegistry& registry,
                                           QTextStream& out, QTextStream& err)
    : m_board(board), m_registry(registry), m_out(out), m_err(err)
{}

QString ParameterCommandLine::usage()
{
    return QStringLiteral(
        "Usage: orvane params COMMAND ...\n"
        "Board parameters as readable text, without a window.\n"
        "\n"
        "  export FILE [--family RL|RM|RN [--card N]]\n"
        "      Write the parameters of every card (or of one family or card) to FILE.\n"
        "  import FILE [--yes] [--save]\n"
        "      Check FILE and list what it would change on the boards. Only with --yes\n"
        "      are the changes written; --save then saves the parameter file of every\n"
        "      card written to, so the boards keep the values after power-off.\n"
        "      Simulated boards belong to the one command that runs them: without\n"
        "      --save what import writes to them is gone when it ends.\n"
        "  diff A B\n"
        "      Compare two sources, each a FILE or a board as RL:0 (a card) or RL:0:1\n"
        "      (an axis), and list the parameters that differ.\n"
        "\n"
        "Exit codes: 0 success (diff: no difference), 1 diff found differences,\n"
        "2 bad input (a wrong argument, a damaged file, a board the PC lacks),\n"
        "3 export left out a family whose boards failed to load,\n"
        "4 import: a board refused a write or a save.\n");
}

bool ParameterCommandLine::isCommand(int argc, char** argv)
{
    return argc >= 2 && std::strcmp(argv[1], "params") == 0;
}

bool ParameterCommandLine::isStray(int argc, char** argv)
{
    // Qt's own options start with "-"; any other first word must be a command.
    return argc >= 2 && argv[1][0] != '-' && !isCommand(argc, argv);
}

int ParameterCommandLine::main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    CommandLineStart start;
    int exit = Success;
    if (start.printedUsage(usage(), BadInput, &exit))
        return exit;
    HeadlessBoards boards(start.err);
    if (!boards.load())
        return BadInput;
    ParameterCommandLine command(boards.api(), boards.registry(), start.out, start.err);
    command.setSimulated(boards.simulated());
    command.setSettingsFile(settingsFilePath());
    return command.run(start.arguments());
}

QString ParameterCommandLine::settingsFilePath()
{
    // Where the window keeps its settings: beside the program, or in the user's data folder
    // when that is not writable (an installed copy).
    QString folder = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    if (!QFileInfo(folder).isWritable())
        folder =
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1Char('/');
    return folder + QStringLiteral("ZelbrinOrvane.ini");
}

void ParameterCommandLine::setSettingsFile(const QString& path)
{
    m_settingsFile = path;
    m_units = AxisUnits::read(path);
}

int ParameterCommandLine::run(const QStringList& arguments)
{
    const QString command = arguments.value(0);
    const QStringList rest = arguments.mid(1);
    if (command == QLatin1String("export"))
        return exportFile(rest);
    if (command == QLatin1String("import"))
        return importFile(rest);
    if (command == QLatin1String("diff"))
        return diff(rest);
    m_err << "orvane params: unknown command \"" << command << "\"\n" << usage();
    m_err.flush();
    return BadInput;
}

int ParameterCommandLine::exportFile(const QStringList& arguments)
{
    QStringList positional;
    std::map<QString, QString> options;
    if (!splitArguments(arguments, {}, {QStringLiteral("--family"), QStringLiteral("--card")},
                        positional, options, m_err))
        return BadInput;
    if (positional.size() != 1) {
        m_err << "orvane params export: give one FILE" << Qt::endl;
        return BadInput;
    }
    ParameterScope scope;
    if (options.count(QStringLiteral("--family"))) {
        QString text = options[QStringLiteral("--family")];
        if (options.count(QStringLiteral("--card")))
            text += QLatin1Char(':') + options[QStringLiteral("--card")];
        const auto parsed = ParameterScope::parse(text);
        if (!parsed || parsed->axis >= 0) {
            m_err << "orvane params export: no such family or card: " << text << Qt::endl;
            return BadInput;
        }
        scope = *parsed;
    } else if (options.count(QStringLiteral("--card"))) {
        m_err << "orvane params export: --card needs --family" << Qt::endl;
        return BadInput;
    }
    if (scope.family && (!m_registry.hasBoards(*scope.family) ||
                         scope.card >= m_registry.cardCount(*scope.family))) {
        m_err << "orvane params export: this PC has no such board" << Qt::endl;
        return BadInput;
    }
    ParameterSet set = ParameterSet::fromBoards(m_board, m_registry, scope);
    set.addUnits(m_units);
    const QString error =
        ParameterText::writeFile(positional[0], set, QDateTime::currentDateTime());
    if (!error.isEmpty()) {
        qCWarning(lcParams).noquote() << "params export to" << positional[0] << "failed:" << error;
        m_err << "orvane params export: " << positional[0] << ": " << error << Qt::endl;
        return BadInput;
    }
    qCInfo(lcParams).noquote() << "params export:" << set.cards.size() << "card(s) to"
                               << positional[0];
    m_err << "Exported " << set.cards.size() << (set.cards.size() == 1 ? " card" : " cards")
          << " to " << positional[0] << Qt::endl;
    // A family whose boards failed to load is missing from the file: say so, and fail.
    bool missing = false;
    for (BoardFamily family : kAllFamilies) {
        if ((!scope.family || *scope.family == family) && m_registry.count(family) < 0) {
            m_err << "Not exported: " << familyDisplayName(family) << " (its boards failed to load)"
                  << Qt::endl;
            missing = true;
        }
    }
    return missing ? Incomplete : Success;
}

int ParameterCommandLine::importFile(const QStringList& arguments)
{
    QStringList positional;
    std::map<QString, QString> options;
    if (!splitArguments(arguments, {QStringLiteral("--yes"), QStringLiteral("--save")}, {},
                        positional, options, m_err))
        return BadInput;
    if (positional.size() != 1) {
        m_err << "orvane params import: give one FILE" << Qt::endl;
        return BadInput;
    }
    std::vector<ParameterFault> faults;
    const ParameterSet file = ParameterText::readFile(positional[0], faults);
    ParameterImport import(file, m_board, m_registry);
    // One list of everything wrong: the text's faults and what the PC lacks.
    ParameterText::merge(faults, import.faults());
    if (!faults.empty()) {
        qCInfo(lcParams).noquote()
            << "params import of" << positional[0] << "refused:" << faults.size() << "fault(s)";
        m_err << positional[0] << ": nothing written, the file has faults:\n"
              << ParameterText::faultList(faults) << Qt::endl;
        return BadInput;
    }
    for (const QString& other : import.otherModels())
        m_err << other << Qt::endl;
    for (const QString& skipped : import.skipped())
        m_err << "Skipped " << skipped << Qt::endl;
    for (const ParameterChange& c : import.changes()) {
        m_out << where(c) << ' ' << c.info->name << ": "
              << ParameterComparison::valueText(*c.info, c.boardValue) << " -> "
              << ParameterComparison::valueText(*c.info, c.fileValue) << '\n';
    }
    const UnitScaleImport units(file, m_units, m_registry);
    for (const UnitSection& u : units.changes())
        m_out << QString::fromStdString(u.name())
              << " Scale: " << UnitScaleImport::scaleText(units.before(u)) << " -> "
              << UnitScaleImport::scaleText(u.scale) << '\n';
    m_out.flush();
    const auto count = import.changes().size();
    const auto unitCount = units.changes().size();
    if (count == 0 && unitCount == 0) {
        m_err << "The boards already hold every value of " << positional[0] << Qt::endl;
        return Success;
    }
    if (!options.count(QStringLiteral("--yes"))) {
        m_err << count + unitCount
              << " change(s); nothing written. Run again with --yes to write them." << Qt::endl;
        return Success;
    }
    if (unitCount > 0) {
        if (m_settingsFile.isEmpty() || !units.apply(m_units, m_settingsFile)) {
            m_err << "orvane params import: the axis unit scales could not be kept in "
                  << m_settingsFile << Qt::endl;
            return BadInput;
        }
        qCInfo(lcParams).noquote()
            << "params import:" << unitCount << "axis scale(s) from" << positional[0];
        m_err << "Kept " << unitCount << " axis unit scale(s) in " << m_settingsFile << Qt::endl;
    }
    if (count == 0)
        return Success;
    const auto touched = import.apply();
    qCInfo(lcParams).noquote() << "params import:" << count << "change(s) from" << positional[0]
                               << "written to" << touched.size() << "card(s)";
    int exitCode = Success;
    const auto refused = import.refused().size();
    m_err << "Wrote " << count - refused << " change(s)." << Qt::endl;
    for (const QString& write : import.refused()) {
        m_err << "Refused: " << write << Qt::endl;
        exitCode = Refused;
    }
    if (options.count(QStringLiteral("--save"))) {
        for (const auto& [family, card] : touched) {
            const nrx_i32 saved = m_board.SaveFile(family, static_cast<CardNo>(card));
            qCInfo(lcParams) << "Save Parameter" << familyShortName(family) << "card" << card
                             << "returned" << saved;
            if (saved < 0) {
                m_err << "Not saved: SaveFile of " << familyDisplayName(family) << '(' << card
                      << ") returned " << saved << Qt::endl;
                exitCode = Refused;
                continue;
            }
            m_err << "Saved the parameter file of " << familyDisplayName(family) << '(' << card
                  << ')' << Qt::endl;
        }
    } else {
        m_err << "Not saved: the boards forget these values at power-off unless saved "
                 "(--save)."
              << Qt::endl;
        const bool simulated = std::any_of(touched.begin(), touched.end(), [this](const auto& t) {
            return std::find(m_simulated.begin(), m_simulated.end(), t.first) != m_simulated.end();
        });
        if (simulated)
            m_err << "The boards are simulated and belong to this command alone: without "
                     "--save these values are gone when it ends."
                  << Qt::endl;
    }
    return exitCode;
}

bool ParameterCommandLine::source(const QString& text, ParameterSet& set)
{
    const auto scope = ParameterScope::parse(text);
    if (!scope || QFileInfo::exists(text)) {
        std::vector<ParameterFault> faults;
        set = ParameterText::readFile(text, faults);
        if (faults.empty())
            return true;
        m_err << text << ":\n" << ParameterText::faultList(faults) << Qt::endl;
        return false;
    }
    const BoardFamily family = *scope->family;
    const bool known = m_registry.hasBoards(family) && scope->card >= 0 &&
                       scope->card < m_registry.cardCount(family) &&
                       scope->axis < m_registry.axisCount(family, scope->card);
    const bool card = m_registry.hasBoards(family) && scope->card >= 0 &&
                      scope->card < m_registry.cardCount(family);
    if (!known && card) {
        m_err << "orvane params diff: " << familyDisplayName(family) << '(' << scope->card
              << ") has no axis " << scope->axis << " on this PC" << Qt::endl;
        return false;
    }
    if (!known) {
        m_err << "orvane params diff: this PC has no board " << text
              << " (give a card, e.g. RL:0, or an axis, e.g. RL:0:1)" << Qt::endl;
        return false;
    }
    set = ParameterSet::fromBoards(m_board, m_registry, *scope);
    set.addUnits(m_units);
    return true;
}

int ParameterCommandLine::diff(const QStringList& arguments)
{
    if (arguments.size() != 2) {
        m_err << "orvane params diff: give two sources, A and B" << Qt::endl;
        return BadInput;
    }
    ParameterSet first;
    ParameterSet second;
    if (!source(arguments[0], first) || !source(arguments[1], second))
        return BadInput;
    const auto rows = ParameterComparison::compare(first, second);
    for (const ComparisonRow& row : rows) {
        if (!row.differs())
            continue;
        auto shown = [&](std::optional<std::int32_t> v) {
            return v ? ParameterComparison::valueText(*row.info, v) : QStringLiteral("(none)");
        };
        m_out << row.section << ' ' << row.info->name << ": " << shown(row.first) << " | "
              << shown(row.second) << '\n';
    }
    int unitDifferences = 0;
    for (const UnitComparisonRow& row : ParameterComparison::compareUnits(first, second)) {
        if (!row.differs())
            continue;
        ++unitDifferences;
        m_out << row.section << " Unit Scale: " << UnitScaleImport::scaleText(row.first) << " | "
              << UnitScaleImport::scaleText(row.second) << '\n';
    }
    m_out.flush();
    const int count = ParameterComparison::differenceCount(rows) + unitDifferences;
    m_err << count << (count == 1 ? " difference" : " differences") << " in " << rows.size()
          << " parameters" << Qt::endl;
    return count == 0 ? Success : Differences;
}
