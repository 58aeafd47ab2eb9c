#pragma once

#include "LayoutHelpers.h"

#include <QGridLayout>

#include <initializer_list>

/// The studio's own columns.
class OvGridLayout : public QGridLayout
{
    Q_OBJECT

public:
    explicit OvGridLayout(QWidget* parent);
    ~OvGridLayout() override;

    OvGridLayout* addRow(std::initializer_list<QWidget*> widgets, int flag);
    OvGridLayout* addRow(std::initializer_list<LayoutHelpers::GridItem> items, int flag);

private:
    int m_rows = 0;
};
