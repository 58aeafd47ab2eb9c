#pragma once

#include <QSpinBox>

/// The studio's own spin box.
class OvSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit OvSpinBox(QWidget* parent = nullptr);
    ~OvSpinBox() override;
};
