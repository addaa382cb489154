#pragma once

#include "ParameterSetupPage.h"

class QCheckBox;
class QFrame;

// The "Filter" page: the input noise filter time of an axis and, per group of inputs, whether
// it applies; family RN adds the stop input.
class COV_FilterSetWnd : public ParameterSetupPage
{
    Q_OBJECT

public:
    explicit COV_FilterSetWnd(BoardApi& board, QWidget* parent = nullptr);

    void loadShown(BoardFamily family) override;

    // On axis 0 the sensor filter also covers the card's EMG input and, on RN, the external
    // filter the SYNC input.
    static QString sensorCaption(AxisNo axis);
    static QString externalCaption(BoardFamily family, AxisNo axis);

protected:
    PageParameters shown(BoardFamily family) override;

private:
    QComboBox* m_time = nullptr;
    QList<QCheckBox*> m_boxes; // sensor, servo, encoder Z, external, stop
    QFrame* m_stopRow = nullptr;
};
