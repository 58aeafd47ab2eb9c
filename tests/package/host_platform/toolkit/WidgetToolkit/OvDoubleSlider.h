#pragma once

#include "OvCustomSlider.h"

/// The studio's own slider of fractions.
class OvDoubleSlider : public OvCustomSlider
{
    Q_OBJECT

public:
    explicit OvDoubleSlider(QWidget* parent = nullptr);
    ~OvDoubleSlider() override;

    double multiplier() const { return m_multiplier; }
    void setMultiplier(double multiplier);
    double doubleValue() const;
    void setDoubleValue(double value);

Q_SIGNALS:
    void doubleValueChanged(double value);

private:
    double m_multiplier = 1.0;
};
