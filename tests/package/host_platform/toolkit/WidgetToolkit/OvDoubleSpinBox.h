#pragma once

#include <QDoubleSpinBox>

/// The studio's own spin box of fractions.
class OvDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit OvDoubleSpinBox(QWidget* parent = nullptr);
    ~OvDoubleSpinBox() override;

    /// The studio's users have one decimal mark.
    void setBothDecimalMarksAccepted(bool accepted);
};
