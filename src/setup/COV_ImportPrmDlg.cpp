#include "COV_ImportPrmDlg.h"

#include "AppState.h"
#include "DialogFlags.h"
#include "FileDialogPlace.h"
#include "FrameRelay.h"
#include "OrvaneLog.h"
#include "ParameterComparison.h"
#include "ParameterImport.h"
#include "ParameterText.h"
#include "PromptService.h"
#include "ToolContext.h"
#include "UnitScaleImport.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

COV_ImportPrmDlg::COV_ImportPrmDlg(const ToolContext& context, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_context(context)
{
    setWindowTitle(tr("Import Parameters"));
    resize(720, 520);
    auto* layout = new QVBoxLayout(this);

    auto* fileRow = new QHBoxLayout;
    m_file = new QLineEdit(this);
    m_file->setReadOnly(true);
    auto* browse = new QPushButton(tr("Browse..."), this);
    browse->setToolTip(tr("Choose the parameter file to import"));
    fileRow->addWidget(new QLabel(tr("File"), this));
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(browse);
    layout->addLayout(fileRow);

    m_summary = new QLabel(this);
    m_summary->setWordWrap(true);
    layout->addWidget(m_summary);
    m_faults = new QPlainTextEdit(this);
    m_faults->setReadOnly(true);
    m_faults->setVisible(false);
    layout->addWidget(m_faults, 1);
    m_changes = new QTableWidget(0, 4, this);
    m_changes->setHorizontalHeaderLabels(
        {tr("Section"), tr("Parameter"), tr("Board value"), tr("File value")});
    m_changes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_changes->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_changes->verticalHeader()->setVisible(false);
    m_changes->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    for (int column = 0; column < 3; ++column)
        m_changes->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    m_changes->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
    layout->addWidget(m_changes, 1);

    auto* buttons = new QDialogButtonBox(this);
    m_write = buttons->addButton(tr("Write to Boards"), QDialogButtonBox::ActionRole);
    m_write->setToolTip(tr("Write the file values listed above to the boards"));
    m_write->setEnabled(false);
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);

    connect(browse, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(
            this, tr("Import Parameters"),
            m_file->text().isEmpty() ? FileDialogPlace::start(QStringLiteral("ImportParameters"))
                                     : m_file->text(),
            tr("Parameter files (*.ini *.txt);;All files (*)"));
        FileDialogPlace::remember(QStringLiteral("ImportParameters"), path);
        if (!path.isEmpty())
            load(path);
    });
    connect(m_write, &QPushButton::clicked, this, [this] { writeToBoards(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

COV_ImportPrmDlg::~COV_ImportPrmDlg() = default;

void COV_ImportPrmDlg::load(const QString& path)
{
    m_file->setText(path);
    std::vector<ParameterFault> faults;
    const ParameterSet file = ParameterText::readFile(path, faults);
    m_import = std::make_unique<ParameterImport>(file, m_context.board, m_context.state.registry);
    m_units =
        std::make_unique<UnitScaleImport>(file, m_context.state.units, m_context.state.registry);
    // One list of everything wrong: the text's faults and what the PC lacks.
    ParameterText::merge(faults, m_import->faults());
    m_faults->setVisible(!faults.empty());
    m_changes->setVisible(faults.empty());
    if (!faults.empty()) {
        m_import.reset();
        m_summary->setText(tr("The file cannot be imported; nothing will be written:"));
        m_faults->setPlainText(ParameterText::faultList(faults));
        m_write->setEnabled(false);
        return;
    }
    showChanges();
}

void COV_ImportPrmDlg::showChanges()
{
    const auto& changes = m_import->changes();
    m_changes->setRowCount(static_cast<int>(changes.size()));
    for (int row = 0; row < m_changes->rowCount(); ++row) {
        const ParameterChange& c = changes[static_cast<std::size_t>(row)];
        ParameterSection at;
        at.family = c.family;
        at.card = c.card;
        at.axis = c.axis;
        const QStringList cells{QString::fromStdString(at.name()), QLatin1String(c.info->name),
                                ParameterComparison::valueText(*c.info, c.boardValue),
                                ParameterComparison::valueText(*c.info, c.fileValue)};
        for (int column = 0; column < cells.size(); ++column)
            m_changes->setItem(row, column, new QTableWidgetItem(cells[column]));
    }
    showUnitChanges();
    QString summary = changes.empty() ? tr("The boards already hold every value of the file.")
                                      : tr("%1 parameter(s) would change:").arg(changes.size());
    if (!m_units->changes().empty())
        summary += tr("\n%1 axis unit scale(s) would change.").arg(m_units->changes().size());
    for (const QString& other : m_import->otherModels())
        summary += QLatin1Char('\n') + other + QLatin1Char('.');
    for (const QString& skipped : m_import->skipped())
        summary += tr("\nSkipped %1.").arg(skipped);
    m_summary->setText(summary);
    m_write->setEnabled(!changes.empty() || !m_units->changes().empty());
}

// The axis scales the file would change, below the parameters: they go to the settings file.
void COV_ImportPrmDlg::showUnitChanges()
{
    const int first = m_changes->rowCount();
    m_changes->setRowCount(first + static_cast<int>(m_units->changes().size()));
    int row = first;
    for (const UnitSection& change : m_units->changes()) {
        const QStringList cells{QString::fromStdString(change.name()), tr("Scale"),
                                UnitScaleImport::scaleText(m_units->before(change)),
                                UnitScaleImport::scaleText(change.scale)};
        for (int column = 0; column < cells.size(); ++column)
            m_changes->setItem(row, column, new QTableWidgetItem(cells[column]));
        ++row;
    }
}

void COV_ImportPrmDlg::writeUnits()
{
    AppState& state = m_context.state;
    if (!m_units->apply(state.units, state.settingsFilePath))
        m_context.prompt.inform(
            tr("The axis unit scales could not be written to %1.").arg(state.settingsFilePath));
    qCInfo(lcParams).noquote() << "Import of" << m_units->changes().size() << "axis scale(s) from"
                               << m_file->text();
}

bool COV_ImportPrmDlg::writeToBoards()
{
    if (!m_import || (m_import->changes().empty() && m_units->changes().empty()))
        return false;
    // Scales alone touch no board, only this PC's settings.
    if (m_import->changes().empty()) {
        if (!m_context.prompt.askYesNo(tr("Keep %1 axis unit scale(s) of the file on this PC?")
                                           .arg(m_units->changes().size())))
            return false;
        writeUnits();
        load(m_file->text());
        return true;
    }
    // New limits or pulse settings under a moving axis could run it anywhere.
    // Any window's motion, not only the two motion windows' flags.
    if (m_context.state.active.anyAxesMoving() || m_context.frame.anyMotion()) {
        m_context.prompt.inform(tr("Axes are moving !\nCan not import parameters !"));
        return false;
    }
    if (!m_context.prompt.askYesNo(
            tr("Write %1 changed parameter(s) to the boards?").arg(m_import->changes().size())))
        return false;
    // An open Parameter window reloads after the import: it asks about its edits first.
    m_context.frame.sendToFrame(UM_PARAM_LEAVE_CHECK);
    AppState& state = m_context.state;
    const auto touched = m_import->apply();
    qCInfo(lcParams).noquote() << "Import of" << m_import->changes().size() << "change(s) from"
                               << m_file->text() << "written to" << touched.size() << "card(s)";
    QStringList cards;
    for (const auto& [family, card] : touched) {
        cards << state.cardName(family, card);
        // The frame marks the active family's cards; the others are marked here the same way.
        if (family == state.active.family)
            m_context.frame.sendToFrame(UM_PARAM_CHANGED, card);
        else
            state.registry.setParametersChanged(family, card, true);
    }
    if (!m_units->changes().empty())
        writeUnits();
    for (ToolKind kind : {ToolParameter, ToolSingleAxis, ToolMultiAxis, ToolDigitalIo})
        m_context.frame.sendToFrame(UM_VIEW_COMMAND, kind);
    m_context.frame.showNote(
        tr("Wrote the parameters of %1 to %2 (not saved yet)")
            .arg(QFileInfo(m_file->text()).fileName(), cards.join(QStringLiteral(", "))));
    if (!m_import->refused().isEmpty())
        m_context.prompt.inform(tr("The boards refused %1 write(s); these values were not "
                                   "written:\n%2")
                                    .arg(m_import->refused().size())
                                    .arg(m_import->refused().join(QLatin1Char('\n'))));
    load(m_file->text());
    return true;
}
