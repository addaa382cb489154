#pragma once

#include "AxisTestSettings.h"

#include <QWidget>

#include <optional>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QListWidget;
class QStackedWidget;

// The settings of the Axis Test window: the test, its axes and its own fields, read into
// the settings a run takes. Holds no board; the window fills the axes of the active card.
class AxisTestForm : public QWidget
{
    Q_OBJECT

public:
    explicit AxisTestForm(QWidget* parent = nullptr);

    // The axes of the card under test, as the lists offer them.
    void setAxisCount(int count);
    // The settings the fields hold; nothing, with the field named in `error`, when a field
    // holds no number.
    std::optional<AxisTestSettings> settings(QString* error) const;
    QString outputFolder() const;
    void setOutputFolder(const QString& folder);
    AxisTestKind kind() const;

    QComboBox* kindList() const { return m_kind; }

signals:
    void kindChanged();

private:
    QWidget* homePage();
    QWidget* positioningPage();
    QWidget* runInPage();
    QLineEdit* numberField(QFormLayout* form, const QString& caption, const QString& value,
                           const QString& name);

    QFormLayout* m_top = nullptr;
    QComboBox* m_kind = nullptr;
    QComboBox* m_axis = nullptr;
    QListWidget* m_runInAxes = nullptr;
    QStackedWidget* m_pages = nullptr;
    QLineEdit* m_homeRuns = nullptr;
    QLineEdit* m_away = nullptr;
    QLineEdit* m_homeTolerance = nullptr;
    QLineEdit* m_from = nullptr;
    QLineEdit* m_to = nullptr;
    QLineEdit* m_targets = nullptr;
    QLineEdit* m_positioningRuns = nullptr;
    QLineEdit* m_overrun = nullptr;
    QLineEdit* m_positioningDwell = nullptr;
    QLineEdit* m_positioningTolerance = nullptr;
    QComboBox* m_pattern = nullptr;
    QLineEdit* m_points = nullptr;
    QLineEdit* m_cycles = nullptr;
    QLineEdit* m_duration = nullptr;
    QLineEdit* m_runInDwell = nullptr;
    QLineEdit* m_followingLimit = nullptr;
    QCheckBox* m_stopAtFault = nullptr;
    QLineEdit* m_speed = nullptr;
    QCheckBox* m_servoOn = nullptr;
    QLineEdit* m_folder = nullptr;
};
