#include "COV_AxisUnitsDlg.h"

#include "AppState.h"
#include "AxisUnitScale.h"
#include "DialogFlags.h"
#include "OrvaneLog.h"
#include "PromptService.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

COV_AxisUnitsDlg::COV_AxisUnitsDlg(AppState& state, PromptService& prompt, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_state(state), m_prompt(prompt)
{
    setWindowTitle(tr("Axis Units - %1(%2)")
                       .arg(QString::fromLatin1(familyDisplayName(state.active.family)))
                       .arg(state.active.card));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createRows());
    auto* note = new QLabel(tr("Leave Pulses/Unit empty to show an axis in pulses."), this);
    layout->addWidget(note);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

QWidget* COV_AxisUnitsDlg::createRows()
{
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new QLabel(tr("Axis"), box), 0, 0);
    grid->addWidget(new QLabel(tr("Unit"), box), 0, 1);
    grid->addWidget(new QLabel(tr("Pulses/Unit"), box), 0, 2);
    grid->addWidget(new QLabel(tr("Decimals"), box), 0, 3);
    const AppState& state = m_state;
    const int axes = state.activeAxisCount();
    for (int axis = 0; axis < axes; ++axis) {
        const AxisUnitScale scale = state.units.scale(state.active.family, state.active.card, axis);
        Row row;
        row.unit = new QComboBox(box);
        row.unit->setEditable(true);
        row.unit->setMinimumContentsLength(6);
        row.unit->addItems({QStringLiteral("mm"), QStringLiteral("deg"), QStringLiteral("inch"),
                            QStringLiteral("rev")});
        row.unit->setCurrentText(scale.isSet() ? scale.unit() : QStringLiteral("mm"));
        row.pulses = new QLineEdit(box);
        row.pulses->setObjectName(QStringLiteral("pulsesPerUnit%1").arg(axis));
        if (scale.isSet())
            row.pulses->setText(AxisUnitScale::pulsesPerUnitText(scale.pulsesPerUnit()));
        row.decimals = new QSpinBox(box);
        row.decimals->setRange(0, AxisUnitScale::kMaxDecimals);
        row.decimals->setValue(scale.decimals());
        const int line = axis + 1;
        grid->addWidget(new QLabel(tr("%1 Axis").arg(axis), box), line, 0);
        grid->addWidget(row.unit, line, 1);
        grid->addWidget(row.pulses, line, 2);
        grid->addWidget(row.decimals, line, 3);
        m_rows.push_back(row);
    }
    return box;
}

void COV_AxisUnitsDlg::accept()
{
    std::vector<AxisUnitScale> scales;
    for (int axis = 0; axis < rowCount(); ++axis) {
        const Row& row = m_rows[static_cast<std::size_t>(axis)];
        const QString pulses = row.pulses->text().trimmed();
        const QString unit = row.unit->currentText().trimmed();
        if (pulses.isEmpty()) {
            scales.emplace_back();
            continue;
        }
        const auto value = AxisUnitScale::parsePulsesPerUnit(pulses);
        QString problem;
        if (!value)
            problem =
                tr("%1 Axis : Pulses/Unit \"%2\" is not a positive number.").arg(axis).arg(pulses);
        else if (unit.isEmpty())
            problem = tr("%1 Axis : enter the name of the unit.").arg(axis);
        if (!problem.isEmpty()) {
            qCInfo(lcUi) << "Axis units refused:" << problem;
            m_prompt.inform(problem);
            (value ? static_cast<QWidget*>(row.unit) : row.pulses)->setFocus();
            return;
        }
        scales.emplace_back(unit, *value, row.decimals->value());
    }
    const BoardFamily family = m_state.active.family;
    const int card = m_state.active.card;
    for (int axis = 0; axis < rowCount(); ++axis)
        m_state.units.setScale(family, card, axis, scales[static_cast<std::size_t>(axis)]);
    if (!m_state.units.writeCard(m_state.settingsFilePath, family, card, rowCount()))
        m_prompt.inform(
            tr("The axis units could not be written to %1.").arg(m_state.settingsFilePath));
    QDialog::accept();
}
