#pragma once

#include <QComboBox>

/// The studio's own combo box.
class OvComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit OvComboBox(QWidget* parent = nullptr);
    ~OvComboBox() override;
};
