#pragma once

#include "ParameterSetupPage.h"

#include <QStringList>

// The "System IO" page: how an axis's dedicated signals are used and which level is active
// (alarm, in-position, limits, origin, encoder Z, counter clear) and the card's EMG level.
class COV_SysIOSetWnd : public ParameterSetupPage
{
    Q_OBJECT

public:
    explicit COV_SysIOSetWnd(BoardApi& board, QWidget* parent = nullptr);

    void loadShown(BoardFamily family) override;

    // Set when the axis's home mode searches a limit instead of the origin sensor.
    void setHomeUsesLimit(bool uses) { m_homeUsesLimit = uses; }

protected:
    PageParameters shown(BoardFamily family) override;

private:
    bool m_homeUsesLimit = false;
    // The page's lists, in the order of the catalogue's names below.
    QList<QComboBox*> m_lists;
    QComboBox* m_limitLevel = nullptr;
    QComboBox* m_originLevel = nullptr;
};
