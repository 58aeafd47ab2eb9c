#pragma once

#include "LayoutHelpers.h"

#include <QBoxLayout>

#include <initializer_list>

/// The studio's own row or column.
class OvBoxLayout : public QBoxLayout
{
    Q_OBJECT

public:
    OvBoxLayout(Direction direction, QWidget* owner);
    ~OvBoxLayout() override;

    OvBoxLayout* autoFill();
    OvBoxLayout* addStretch(int stretch = 0);
    void addItems(std::initializer_list<LayoutHelpers::BoxItem> items);
};

class OvHBoxLayout : public OvBoxLayout
{
    Q_OBJECT

public:
    explicit OvHBoxLayout(QWidget* owner);
    ~OvHBoxLayout() override;
};

class OvVBoxLayout : public OvBoxLayout
{
    Q_OBJECT

public:
    explicit OvVBoxLayout(QWidget* owner);
    ~OvVBoxLayout() override;
};
