#include "AxisTestForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <optional>

namespace {
// The field's text as a whole number; nothing for any other text.
std::optional<long long> wholeNumber(const QLineEdit* field)
{
    bool ok = false;
    const long long value = field->text().trimmed().toLongLong(&ok);
    if (!ok || value < INT32_MIN || value > INT32_MAX)
        return std::nullopt;
    return value;
}
} // namespace

AxisTestForm::AxisTestForm(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* top = new QFormLayout;
    m_top = top;
    m_kind = new QComboBox(this);
    m_kind->addItems({tr("Home Repeatability"), tr("Positioning (ISO 230-2)"), tr("Run-in")});
    top->addRow(tr("Test"), m_kind);
    m_axis = new QComboBox(this);
    top->addRow(tr("Axis"), m_axis);
    m_runInAxes = new QListWidget(this);
    m_runInAxes->setFlow(QListView::LeftToRight);
    m_runInAxes->setMaximumHeight(m_runInAxes->fontMetrics().height() * 2 + 8);
    top->addRow(tr("Axes"), m_runInAxes);
    layout->addLayout(top);

    m_pages = new QStackedWidget(this);
    m_pages->addWidget(homePage());
    m_pages->addWidget(positioningPage());
    m_pages->addWidget(runInPage());
    layout->addWidget(m_pages);

    auto* common = new QFormLayout;
    m_speed = new QLineEdit(QStringLiteral("0"), this);
    m_speed->setObjectName(QStringLiteral("speed"));
    m_speed->setToolTip(tr("Drive speed of the test's moves; 0 keeps the axis's positioning "
                           "profile"));
    common->addRow(tr("Speed [pps]"), m_speed);
    m_servoOn = new QCheckBox(tr("Switch the servo on first"), this);
    common->addRow(QString(), m_servoOn);
    auto* folderRow = new QHBoxLayout;
    m_folder = new QLineEdit(this);
    m_folder->setPlaceholderText(
        tr("Documents/Orvane Axis Tests; each run in a dated folder inside"));
    auto* browse = new QPushButton(tr("Browse..."), this);
    folderRow->addWidget(m_folder);
    folderRow->addWidget(browse);
    common->addRow(tr("Report folder"), folderRow);
    layout->addLayout(common);

    connect(browse, &QPushButton::clicked, this, [this] {
        const QString folder =
            QFileDialog::getExistingDirectory(this, tr("Report folder"), m_folder->text());
        if (!folder.isEmpty())
            m_folder->setText(folder);
    });
    const auto showKind = [this] {
        const int index = m_kind->currentIndex();
        m_pages->setCurrentIndex(index);
        const bool runIn = kind() == AxisTestKind::RunIn;
        m_top->setRowVisible(m_axis, !runIn);
        m_top->setRowVisible(m_runInAxes, runIn);
        emit kindChanged();
    };
    connect(m_kind, &QComboBox::currentIndexChanged, this, showKind);
    showKind();
}

QLineEdit* AxisTestForm::numberField(QFormLayout* form, const QString& caption,
                                     const QString& value, const QString& name)
{
    auto* field = new QLineEdit(value, this);
    field->setObjectName(name);
    form->addRow(caption, field);
    return field;
}

QWidget* AxisTestForm::homePage()
{
    auto* page = new QWidget(this);
    auto* form = new QFormLayout(page);
    m_homeRuns =
        numberField(form, tr("Searches"), QStringLiteral("10"), QStringLiteral("searches"));
    m_away =
        numberField(form, tr("Move away [pulse]"), QStringLiteral("10000"), QStringLiteral("away"));
    m_homeTolerance = numberField(form, tr("Tolerance of the range [pulse]"), QStringLiteral("0"),
                                  QStringLiteral("tolerance"));
    return page;
}

QWidget* AxisTestForm::positioningPage()
{
    auto* page = new QWidget(this);
    auto* form = new QFormLayout(page);
    m_from = numberField(form, tr("From [pulse]"), QStringLiteral("0"), QStringLiteral("from"));
    m_to = numberField(form, tr("To [pulse]"), QStringLiteral("100000"), QStringLiteral("to"));
    m_targets = numberField(form, tr("Targets"), QStringLiteral("5"), QStringLiteral("targets"));
    m_positioningRuns = numberField(form, tr("Approaches each way"), QStringLiteral("5"),
                                    QStringLiteral("approaches"));
    m_overrun =
        numberField(form, tr("Overrun [pulse]"), QStringLiteral("1000"), QStringLiteral("overrun"));
    m_positioningDwell =
        numberField(form, tr("Dwell [ms]"), QStringLiteral("500"), QStringLiteral("dwell"));
    m_positioningTolerance = numberField(form, tr("Tolerance of the accuracy A [pulse]"),
                                         QStringLiteral("0"), QStringLiteral("tolerance"));
    return page;
}

QWidget* AxisTestForm::runInPage()
{
    auto* page = new QWidget(this);
    auto* form = new QFormLayout(page);
    m_pattern = new QComboBox(page);
    m_pattern->addItems({tr("Relative back and forth"), tr("Absolute between two points"),
                         tr("Absolute through a list of points")});
    m_pattern->setCurrentIndex(1);
    form->addRow(tr("Pattern"), m_pattern);
    m_points = new QLineEdit(QStringLiteral("0, 100000"), page);
    m_points->setObjectName(QStringLiteral("points"));
    m_points->setToolTip(tr("The distance, the two points or the list of points, in pulses, "
                            "separated by commas"));
    form->addRow(tr("Positions [pulse]"), m_points);
    m_cycles = numberField(form, tr("Cycles"), QStringLiteral("10"), QStringLiteral("cycles"));
    m_duration =
        numberField(form, tr("Or duration [s]"), QStringLiteral("0"), QStringLiteral("duration"));
    m_runInDwell =
        numberField(form, tr("Dwell [ms]"), QStringLiteral("200"), QStringLiteral("dwell"));
    m_followingLimit = numberField(form, tr("Largest following error [pulse]"), QStringLiteral("0"),
                                   QStringLiteral("tolerance"));
    m_stopAtFault = new QCheckBox(tr("Stop at the first fault"), page);
    m_stopAtFault->setChecked(true);
    form->addRow(QString(), m_stopAtFault);
    return page;
}

void AxisTestForm::setAxisCount(int count)
{
    const int chosen = m_axis->currentIndex();
    m_axis->clear();
    m_runInAxes->clear();
    for (int axis = 0; axis < count; ++axis) {
        m_axis->addItem(tr("Axis %1").arg(axis));
        auto* item = new QListWidgetItem(QString::number(axis), m_runInAxes);
        item->setCheckState(axis == 0 ? Qt::Checked : Qt::Unchecked);
    }
    m_axis->setCurrentIndex(chosen >= 0 && chosen < count ? chosen : 0);
}

AxisTestKind AxisTestForm::kind() const
{
    return static_cast<AxisTestKind>(m_kind->currentIndex());
}

QString AxisTestForm::outputFolder() const
{
    return m_folder->text().trimmed();
}

void AxisTestForm::setOutputFolder(const QString& folder)
{
    m_folder->setText(folder);
}

std::optional<AxisTestSettings> AxisTestForm::settings(QString* error) const
{
    AxisTestSettings s;
    s.kind = kind();
    bool sound = true;
    const auto read = [&](const QLineEdit* field, auto& into) {
        if (!sound)
            return;
        const auto value = wholeNumber(field);
        if (!value) {
            const auto* form = qobject_cast<QFormLayout*>(field->parentWidget()->layout());
            const auto* label =
                form ? qobject_cast<QLabel*>(form->labelForField(const_cast<QLineEdit*>(field)))
                     : nullptr;
            *error = tr("\"%1\" must be a whole number.")
                         .arg(label ? label->text() : field->objectName());
            sound = false;
            return;
        }
        into = static_cast<std::remove_reference_t<decltype(into)>>(*value);
    };
    s.axes = {static_cast<AxisNo>(std::max(0, m_axis->currentIndex()))};
    switch (s.kind) {
    case AxisTestKind::Home:
        read(m_homeRuns, s.runs);
        read(m_away, s.away);
        read(m_homeTolerance, s.tolerance);
        break;
    case AxisTestKind::Positioning:
        read(m_from, s.from);
        read(m_to, s.to);
        read(m_targets, s.targets);
        read(m_positioningRuns, s.runs);
        read(m_overrun, s.overrun);
        read(m_positioningDwell, s.dwellMs);
        read(m_positioningTolerance, s.tolerance);
        break;
    case AxisTestKind::RunIn: {
        s.axes.clear();
        for (int i = 0; i < m_runInAxes->count(); ++i) {
            if (m_runInAxes->item(i)->checkState() == Qt::Checked)
                s.axes.push_back(static_cast<AxisNo>(i));
        }
        s.pattern = static_cast<RunInPattern>(m_pattern->currentIndex());
        s.points.clear();
        for (const QString& part : m_points->text().split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            bool ok = false;
            const int point = part.trimmed().toInt(&ok);
            if (!ok) {
                *error = tr("\"Positions\" must be whole numbers separated by commas.");
                return std::nullopt;
            }
            s.points.push_back(point);
        }
        read(m_cycles, s.cycles);
        read(m_duration, s.durationS);
        read(m_runInDwell, s.dwellMs);
        read(m_followingLimit, s.tolerance);
        if (s.durationS > 0)
            s.cycles = 0;
        s.stopAtFault = m_stopAtFault->isChecked();
        break;
    }
    }
    read(m_speed, s.speed);
    s.servoOn = m_servoOn->isChecked();
    if (!sound)
        return std::nullopt;
    return s;
}
