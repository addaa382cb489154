#pragma once

#include "ParameterSet.h"

#include <QGroupBox>

class CardRegistry;
class QComboBox;
class QLineEdit;
class QPushButton;

// Picks where parameters come from or go to: an axis, a card, every card or a file.
class ParameterSourceBox : public QGroupBox
{
    Q_OBJECT

public:
    enum Kind
    {
        Axis,
        Card,
        EveryCard,
        File,
    };

    ParameterSourceBox(const QString& title, const QList<Kind>& kinds, const CardRegistry& registry,
                       QWidget* parent = nullptr);

    Kind kind() const;
    void setKind(Kind kind);
    // The boards chosen (family, card and, for an axis, the axis).
    ParameterScope scope() const;
    void setScope(BoardFamily family, int card, int axis);
    QString filePath() const;
    void setFilePath(const QString& path);
    // "NRX-RL416V(0) Axis 1", "every card" or the file's name: a column title.
    QString label() const;

private:
    void fillCards();
    void fillAxes();
    void updateEnabled();

    const CardRegistry& m_registry;
    QList<Kind> m_kinds;
    QComboBox* m_kind = nullptr;
    QComboBox* m_family = nullptr;
    QComboBox* m_card = nullptr;
    QComboBox* m_axis = nullptr;
    QLineEdit* m_file = nullptr;
    QPushButton* m_browse = nullptr;
};
