#include "ParameterImport.h"

#include "BoardApi.h"
#include "CardRegistry.h"

#include <algorithm>

ParameterImport::ParameterImport(const ParameterSet& file, BoardApi& board,
                                 const CardRegistry& registry)
    : m_board(board)
{
    check(file, registry);
}

void ParameterImport::check(const ParameterSet& file, const CardRegistry& registry)
{
    for (const ParameterSection& section : file.sections) {
        const QString family = QLatin1String(familyShortName(section.family));
        if (!registry.hasBoards(section.family)) {
            if (section.axis < 0)
                m_faults.push_back(
                    {section.line, tr("this PC has no %1 board")
                                       .arg(QLatin1String(familyDisplayName(section.family)))});
            continue;
        }
        if (section.card >= registry.cardCount(section.family)) {
            if (section.axis < 0)
                m_faults.push_back(
                    {section.line, tr("this PC has no %1 card %2").arg(family).arg(section.card)});
            continue;
        }
        if (section.axis >= registry.axisCount(section.family, section.card)) {
            const CardDescription* described = file.card(section.family, section.card);
            const std::string model = registry.modelName(section.family, section.card);
            // Same family, other model: the axes both have are what the user is after.
            if (described != nullptr && !described->model.empty() && described->model != model)
                m_skipped << tr("%1 (the file is for a %2, the card is a %3)")
                                 .arg(QString::fromStdString(section.name()),
                                      QString::fromStdString(described->model),
                                      QString::fromStdString(model));
            else
                m_faults.push_back({section.line, tr("%1 card %2 has no axis %3")
                                                      .arg(family)
                                                      .arg(section.card)
                                                      .arg(section.axis)});
            continue;
        }
        if (section.axis < 0) {
            // A renamed section or a file of another card: the values still go, but the
            // preview says whose they were.
            const CardDescription* described = file.card(section.family, section.card);
            const std::string model = registry.modelName(section.family, section.card);
            if (described != nullptr && !described->model.empty() && described->model != model)
                m_otherModels << tr("%1 is a %2; the file describes it as a %3")
                                     .arg(QString::fromStdString(section.name()),
                                          QString::fromStdString(model),
                                          QString::fromStdString(described->model));
        }
        collect(section);
    }
}

void ParameterImport::collect(const ParameterSection& section)
{
    const auto onBoard = ParameterSet::readSection(m_board, section.family,
                                                   static_cast<CardNo>(section.card), section.axis);
    for (const ParameterValue& wanted : section.values) {
        const auto held =
            std::find_if(onBoard.begin(), onBoard.end(),
                         [&](const ParameterValue& v) { return v.info == wanted.info; });
        if (held != onBoard.end() && held->value != wanted.value)
            m_changes.push_back({section.family, section.card, section.axis, wanted.info,
                                 held->value, wanted.value});
    }
}

std::vector<std::pair<BoardFamily, int>> ParameterImport::apply()
{
    std::vector<std::pair<BoardFamily, int>> touched;
    if (!canApply())
        return touched;
    for (std::size_t i = 0; i < m_changes.size();) {
        // The changes of one call on one axis go out together, with the values the board
        // holds for the slots the file leaves as they are.
        const ParameterChange& first = m_changes[i];
        const auto card = static_cast<CardNo>(first.card);
        const auto axis = static_cast<AxisNo>(first.axis < 0 ? 0 : first.axis);
        CallValues values =
            ParameterCatalog::read(m_board, first.family, first.info->call, card, axis);
        std::size_t end = i;
        for (; end < m_changes.size(); ++end) {
            const ParameterChange& c = m_changes[end];
            if (c.family != first.family || c.card != first.card || c.axis != first.axis ||
                c.info->call != first.info->call)
                break;
            values[static_cast<std::size_t>(c.info->slot)] = c.fileValue;
        }
        ParameterCatalog::write(m_board, first.family, first.info->call, card, axis, values);
        const std::pair<BoardFamily, int> written{first.family, first.card};
        if (std::find(touched.begin(), touched.end(), written) == touched.end())
            touched.push_back(written);
        i = end;
    }
    return touched;
}
