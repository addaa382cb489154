#include "COV_BoardCallWnd.h"

#include "BoardApi.h"
#include "BoardCallModel.h"
#include "BoardCallText.h"
#include "FileDialogPlace.h"
#include "PollInterval.h"
#include "PromptService.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// A trace for a program started without one: the window then shows an empty table.
BoardCallTrace& emptyTrace()
{
    static BoardCallTrace trace(1);
    return trace;
}

QComboBox* numberCombo(const QString& objectName, int count, QWidget* parent)
{
    auto* combo = new QComboBox(parent);
    combo->setObjectName(objectName);
    combo->addItem(QCoreApplication::translate("COV_BoardCallWnd", "All"), -1);
    for (int i = 0; i < count; ++i)
        combo->addItem(QString::number(i), i);
    return combo;
}

} // namespace

COV_BoardCallWnd::COV_BoardCallWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context), m_trace(context.board.trace())
{
    setWindowTitle(tr("Board Calls"));
    m_model =
        new BoardCallModel(m_trace ? *m_trace : emptyTrace(), m_context.board.callers(), this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createFilters());
    layout->addWidget(createActions());
    createTable();
    layout->addWidget(m_table, 1);
    applyFilters();

    m_timer.setInterval(kPollIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
    m_timer.start();
}

COV_BoardCallWnd::~COV_BoardCallWnd()
{
    // Nobody could resume a trace paused from here once the window is gone.
    if (m_trace)
        m_trace->setPaused(false);
}

QWidget* COV_BoardCallWnd::createFilters()
{
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    m_family = new QComboBox(box);
    m_family->setObjectName(QStringLiteral("family"));
    m_family->addItem(tr("All"), -1);
    for (BoardFamily family : kAllFamilies)
        m_family->addItem(QString::fromLatin1(familyShortName(family)), familyIndex(family));
    m_card = numberCombo(QStringLiteral("card"), kMaxCards, box);
    m_axis = numberCombo(QStringLiteral("axis"), kMaxAxes, box);
    m_operation = new QLineEdit(box);
    m_operation->setObjectName(QStringLiteral("operation"));
    m_operation->setPlaceholderText(tr("any"));
    m_operation->setToolTip(tr("Show operations whose name contains this text"));
    m_caller = new QComboBox(box);
    m_caller->setObjectName(QStringLiteral("caller"));
    m_caller->addItem(tr("All"), -1);
    m_caller->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_caller->setToolTip(tr("The window or pane that made the call"));
    updateCallers();

    const std::pair<const char*, QWidget*> fields[] = {{QT_TR_NOOP("Family"), m_family},
                                                       {QT_TR_NOOP("Card"), m_card},
                                                       {QT_TR_NOOP("Axis"), m_axis},
                                                       {QT_TR_NOOP("Operation"), m_operation},
                                                       {QT_TR_NOOP("Caller"), m_caller}};
    for (const auto& [caption, field] : fields) {
        row->addWidget(new QLabel(tr(caption), box));
        row->addWidget(field, field == m_operation ? 1 : 0);
    }
    for (QComboBox* combo : {m_family, m_card, m_axis, m_caller})
        connect(combo, &QComboBox::currentIndexChanged, this, [this] { applyFilters(); });
    connect(m_operation, &QLineEdit::textChanged, this, [this] { applyFilters(); });
    return box;
}

QWidget* COV_BoardCallWnd::createActions()
{
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    m_hidePolling = new QCheckBox(tr("Hide polling reads"), box);
    m_hidePolling->setObjectName(QStringLiteral("hidePolling"));
    m_hidePolling->setChecked(true);
    m_hidePolling->setToolTip(
        tr("Hide the reads the windows repeat every 10 ms (Done, positions, status "
           "words, inputs)"));
    m_failuresOnly = new QCheckBox(tr("Failures only"), box);
    m_failuresOnly->setObjectName(QStringLiteral("failuresOnly"));
    m_failuresOnly->setToolTip(
        tr("Show only setters, moves and stops that the board refused (a negative "
           "result)"));
    for (QCheckBox* check : {m_hidePolling, m_failuresOnly}) {
        row->addWidget(check);
        connect(check, &QCheckBox::toggled, this, [this] { applyFilters(); });
    }
    row->addStretch(1);

    m_pause = new QPushButton(tr("Pause"), box);
    m_pause->setObjectName(QStringLiteral("pause"));
    m_pause->setCheckable(true);
    m_pause->setToolTip(tr("Stop or resume recording board calls"));
    connect(m_pause, &QPushButton::toggled, this, [this](bool on) { setPaused(on); });
    auto* clearButton = new QPushButton(tr("Clear"), box);
    clearButton->setToolTip(tr("Forget every call recorded so far"));
    connect(clearButton, &QPushButton::clicked, this, [this] { clear(); });
    auto* copyButton = new QPushButton(tr("Copy"), box);
    copyButton->setToolTip(tr("Copy the selected rows to the clipboard"));
    connect(copyButton, &QPushButton::clicked, this, [this] { copySelection(); });
    auto* exportButton = new QPushButton(tr("Export CSV..."), box);
    exportButton->setToolTip(tr("Save the rows shown to a CSV file"));
    connect(exportButton, &QPushButton::clicked, this, [this] {
        const QString dialog = QStringLiteral("BoardCallsCsv");
        const QString path = QFileDialog::getSaveFileName(
            this, tr("Export CSV"),
            FileDialogPlace::start(dialog, FileDialogPlace::datedName(QStringLiteral("BoardCalls"),
                                                                      QStringLiteral("csv"))),
            tr("CSV files (*.csv)"));
        FileDialogPlace::remember(dialog, path);
        if (!path.isEmpty() && !exportCsv(path))
            m_context.prompt.inform(tr("Can not write %1 !").arg(path));
    });
    for (QPushButton* button : {m_pause, clearButton, copyButton, exportButton})
        row->addWidget(button);
    return box;
}

void COV_BoardCallWnd::createTable()
{
    m_table = new QTableView(this);
    m_table->setObjectName(QStringLiteral("calls"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    // Fixed heights and widths: nothing measures the (many) rows' contents.
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    QHeaderView* header = m_table->horizontalHeader();
    const int widths[BoardCallText::ColumnCount] = {80, 46, 120, 40, 40, 0, 70, 120};
    for (int c = 0; c < BoardCallText::ColumnCount; ++c) {
        if (widths[c] > 0)
            header->resizeSection(c, widths[c]);
    }
    header->setSectionResizeMode(BoardCallText::Arguments, QHeaderView::Stretch);
}

QSize COV_BoardCallWnd::sizeHint() const
{
    // fits the tool-window area of a 1366 x 768 screen beside the docked panes
    return {800, 400};
}

void COV_BoardCallWnd::handleUserMessage(UserMessage, int) {}

void COV_BoardCallWnd::updateCallers()
{
    const QStringList& callers = m_context.board.callers();
    // Callers only ever join the list; add the newcomers.
    for (int id = m_caller->count() - 1; id < callers.size(); ++id)
        m_caller->addItem(callers[id], id);
}

void COV_BoardCallWnd::applyFilters()
{
    if (!m_failuresOnly)
        return; // still being built
    BoardCallFilter filter;
    filter.family = m_family->currentData().toInt();
    filter.card = m_card->currentData().toInt();
    filter.axis = m_axis->currentData().toInt();
    filter.caller = m_caller->currentData().toInt();
    filter.operation = m_operation->text().trimmed();
    filter.hidePolling = m_hidePolling->isChecked();
    filter.failuresOnly = m_failuresOnly->isChecked();
    m_model->setFilter(filter);
    m_table->scrollToBottom();
}

void COV_BoardCallWnd::tick()
{
    if (++m_ticks < kTicksPerUpdate)
        return;
    m_ticks = 0;
    refresh();
}

void COV_BoardCallWnd::refresh()
{
    if (m_caller->count() - 1 != m_context.board.callers().size())
        updateCallers();
    const QScrollBar* bar = m_table->verticalScrollBar();
    const bool atEnd = bar->value() >= bar->maximum();
    if (m_model->refresh() && atEnd)
        m_table->scrollToBottom();
}

void COV_BoardCallWnd::setPaused(bool paused)
{
    if (m_trace)
        m_trace->setPaused(paused);
    if (m_pause->isChecked() != paused)
        m_pause->setChecked(paused);
    m_pause->setText(paused ? tr("Resume") : tr("Pause"));
}

void COV_BoardCallWnd::clear()
{
    if (m_trace)
        m_trace->clear();
    m_model->refresh();
}

void COV_BoardCallWnd::copySelection()
{
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(),
              [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
    QStringList lines;
    for (const QModelIndex& index : rows)
        lines << m_model->rowText(index.row());
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

bool COV_BoardCallWnd::exportCsv(const QString& path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && m_model->writeCsv(file) && file.commit();
}
