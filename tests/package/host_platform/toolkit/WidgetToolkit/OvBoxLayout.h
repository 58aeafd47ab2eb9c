#pragma once

#include <QHBoxLayout>

/// The studio's own row.
class OvHBoxLayout : public QHBoxLayout
{
    Q_OBJECT

public:
    explicit OvHBoxLayout(QWidget* owner);
    ~OvHBoxLayout() override;

    OvHBoxLayout* autoFill();
    OvHBoxLayout* addStretch(int stretch = 0);
};
