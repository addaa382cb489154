#include "COV_ExportPrmDlg.h"

#include "AppState.h"
#include "DialogFlags.h"
#include "FileDialogPlace.h"
#include "FrameRelay.h"
#include "OrvaneLog.h"
#include "ParameterSourceBox.h"
#include "ParameterText.h"
#include "PromptService.h"
#include "ToolContext.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
const QString kDialog = QStringLiteral("ExportParameters");
} // namespace

COV_ExportPrmDlg::COV_ExportPrmDlg(const ToolContext& context, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_context(context)
{
    setWindowTitle(tr("Export Parameters"));
    setMinimumWidth(460);
    auto* layout = new QVBoxLayout(this);
    m_source = new ParameterSourceBox(tr(" Cards "),
                                      {ParameterSourceBox::Card, ParameterSourceBox::EveryCard},
                                      context.state.registry, this);
    m_source->setScope(context.state.active.family, context.state.active.card, 0);
    layout->addWidget(m_source);

    auto* fileRow = new QHBoxLayout;
    m_file = new QLineEdit(this);
    m_file->setPlaceholderText(tr("file to write"));
    auto* browse = new QPushButton(tr("Browse..."), this);
    browse->setToolTip(tr("Choose the file to write"));
    fileRow->addWidget(new QLabel(tr("File"), this));
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(browse);
    layout->addLayout(fileRow);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* exportButton = buttons->addButton(tr("Export"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);

    connect(browse, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getSaveFileName(
            this, tr("Export Parameters"),
            m_file->text().isEmpty() ? FileDialogPlace::start(kDialog, suggestedName())
                                     : m_file->text(),
            tr("Parameter files (*.ini);;All files (*)"));
        FileDialogPlace::remember(kDialog, path);
        if (!path.isEmpty())
            m_file->setText(path);
    });
    connect(exportButton, &QPushButton::clicked, this, [this] {
        if (exportFile())
            accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QString COV_ExportPrmDlg::suggestedName() const
{
    const ParameterScope scope = m_source->scope();
    if (!scope.family || scope.card < 0)
        return FileDialogPlace::datedName(QStringLiteral("Orvane_AllCards"), QStringLiteral("ini"));
    const QString model =
        QString::fromStdString(m_context.state.registry.modelName(*scope.family, scope.card));
    return FileDialogPlace::datedName(QStringLiteral("%1_Card%2").arg(model).arg(scope.card),
                                      QStringLiteral("ini"));
}

void COV_ExportPrmDlg::setFilePath(const QString& path)
{
    m_file->setText(path);
}

bool COV_ExportPrmDlg::exportFile()
{
    const QString path = m_file->text().trimmed();
    if (path.isEmpty()) {
        m_context.prompt.inform(tr("Choose the file to export to."));
        return false;
    }
    ParameterSet set =
        ParameterSet::fromBoards(m_context.board, m_context.state.registry, m_source->scope());
    set.addUnits(m_context.state.units);
    const QString error = ParameterText::writeFile(path, set, QDateTime::currentDateTime());
    qCInfo(lcParams).noquote() << "Export of" << set.cards.size() << "card(s) to" << path
                               << (error.isEmpty() ? QStringLiteral("done") : error);
    if (!error.isEmpty()) {
        m_context.prompt.inform(
            tr("The parameters could not be exported to %1:\n%2").arg(path, error));
        return false;
    }
    m_context.prompt.notify(
        tr("The parameters of %1 card(s) were exported to %2.").arg(set.cards.size()).arg(path));
    QStringList cards;
    for (const auto& card : set.cards)
        cards << m_context.state.cardName(card.family, card.card);
    m_context.frame.showNote(tr("Exported %1 to %2").arg(cards.join(QStringLiteral(", ")), path));
    return true;
}
