#include "ParameterSourceBox.h"

#include "CardRegistry.h"
#include "FileDialogPlace.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {
const char* kindText(ParameterSourceBox::Kind kind)
{
    switch (kind) {
    case ParameterSourceBox::Axis:
        return QT_TRANSLATE_NOOP("ParameterSourceBox", "An axis");
    case ParameterSourceBox::Card:
        return QT_TRANSLATE_NOOP("ParameterSourceBox", "A card");
    case ParameterSourceBox::EveryCard:
        return QT_TRANSLATE_NOOP("ParameterSourceBox", "Every card");
    case ParameterSourceBox::File:
        return QT_TRANSLATE_NOOP("ParameterSourceBox", "A file");
    }
    return "";
}
} // namespace

ParameterSourceBox::ParameterSourceBox(const QString& title, const QList<Kind>& kinds,
                                       const CardRegistry& registry, QWidget* parent)
    : QGroupBox(title, parent), m_registry(registry), m_kinds(kinds)
{
    auto* form = new QFormLayout(this);
    m_kind = new QComboBox(this);
    for (Kind kind : kinds)
        m_kind->addItem(tr(kindText(kind)));
    m_family = new QComboBox(this);
    for (BoardFamily family : kAllFamilies) {
        if (registry.hasBoards(family))
            m_family->addItem(QString::fromLatin1(familyDisplayName(family)), familyIndex(family));
    }
    m_card = new QComboBox(this);
    m_axis = new QComboBox(this);
    m_file = new QLineEdit(this);
    m_browse = new QPushButton(tr("Browse..."), this);
    m_browse->setToolTip(tr("Choose a parameter file"));
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(m_file);
    fileRow->addWidget(m_browse);
    form->addRow(tr("Source"), m_kind);
    form->addRow(tr("Card Type"), m_family);
    form->addRow(tr("Card No."), m_card);
    form->addRow(tr("Axis No."), m_axis);
    form->addRow(tr("File"), fileRow);
    // Only the rows the kinds on offer can use.
    form->setRowVisible(m_axis, kinds.contains(Axis));
    form->setRowVisible(fileRow, kinds.contains(File));
    form->setRowVisible(m_kind, kinds.size() > 1);

    connect(m_kind, &QComboBox::currentIndexChanged, this, [this] { updateEnabled(); });
    connect(m_family, &QComboBox::currentIndexChanged, this, [this] { fillCards(); });
    connect(m_card, &QComboBox::currentIndexChanged, this, [this] { fillAxes(); });
    connect(m_browse, &QPushButton::clicked, this, [this] {
        const QString path = QFileDialog::getOpenFileName(
            this, tr("Parameter File"),
            m_file->text().isEmpty() ? FileDialogPlace::start(QStringLiteral("CompareParameters"))
                                     : m_file->text(),
            tr("Parameter files (*.ini *.txt);;All files (*)"));
        FileDialogPlace::remember(QStringLiteral("CompareParameters"), path);
        if (!path.isEmpty())
            m_file->setText(path);
    });
    fillCards();
    updateEnabled();
}

ParameterSourceBox::Kind ParameterSourceBox::kind() const
{
    return m_kinds.value(m_kind->currentIndex(), Card);
}

void ParameterSourceBox::setKind(Kind kind)
{
    m_kind->setCurrentIndex(static_cast<int>(m_kinds.indexOf(kind)));
}

ParameterScope ParameterSourceBox::scope() const
{
    ParameterScope scope;
    if (kind() == EveryCard || m_family->count() == 0)
        return scope;
    scope.family = static_cast<BoardFamily>(m_family->currentData().toInt());
    scope.card = m_card->currentIndex();
    if (kind() == Axis)
        scope.axis = m_axis->currentIndex();
    return scope;
}

void ParameterSourceBox::setScope(BoardFamily family, int card, int axis)
{
    m_family->setCurrentIndex(m_family->findData(familyIndex(family)));
    m_card->setCurrentIndex(card);
    m_axis->setCurrentIndex(axis);
}

QString ParameterSourceBox::filePath() const
{
    return m_file->text().trimmed();
}

void ParameterSourceBox::setFilePath(const QString& path)
{
    m_file->setText(path);
}

QString ParameterSourceBox::label() const
{
    const ParameterScope chosen = scope();
    switch (kind()) {
    case EveryCard:
        return tr("Every card");
    case File:
        return QFileInfo(filePath()).fileName();
    case Axis:
    case Card:
        break;
    }
    if (!chosen.family)
        return QString();
    QString text =
        QStringLiteral("%1(%2)")
            .arg(QString::fromStdString(m_registry.modelName(*chosen.family, chosen.card)))
            .arg(chosen.card);
    if (chosen.axis >= 0)
        text += tr(" Axis %1").arg(chosen.axis);
    return text;
}

void ParameterSourceBox::fillCards()
{
    const int cards =
        m_family->count() == 0
            ? 0
            : m_registry.cardCount(static_cast<BoardFamily>(m_family->currentData().toInt()));
    m_card->clear();
    for (int card = 0; card < cards; ++card)
        m_card->addItem(QString::number(card));
    fillAxes();
    updateEnabled();
}

void ParameterSourceBox::fillAxes()
{
    m_axis->clear();
    if (m_family->count() == 0 || m_card->currentIndex() < 0)
        return;
    const auto family = static_cast<BoardFamily>(m_family->currentData().toInt());
    for (int axis = 0; axis < m_registry.axisCount(family, m_card->currentIndex()); ++axis)
        m_axis->addItem(QString::number(axis));
}

void ParameterSourceBox::updateEnabled()
{
    const Kind chosen = kind();
    const bool boards = chosen == Axis || chosen == Card;
    m_family->setEnabled(boards && m_family->count() > 1);
    m_card->setEnabled(boards && m_card->count() > 1);
    m_axis->setEnabled(chosen == Axis);
    m_file->setEnabled(chosen == File);
    m_browse->setEnabled(chosen == File);
}
