#pragma once

#include <WidgetToolkit/LayoutHelpers.h>
#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QBoxLayout>

#include <initializer_list>

/**
 * A box layout that is filled from its owner.
 *
 * The owner widget, given to the constructor, owns it and has it as its layout. Contents margins and spacing
 * are 0 by default; the style sheet sets them through the owner's LayoutController.
 * @see OvGridLayout, OvFrame, LayoutHelpers
 */
class WIDGETTOOLKIT_EXPORT OvBoxLayout : public QBoxLayout
{
    Q_OBJECT

public:
    /// A null @p owner makes it a layout to be added to another one.
    OvBoxLayout(Direction direction, QWidget* owner);
    ~OvBoxLayout() override;

    /// Adds the owner's direct child widgets in the order of creation, each with stretch 0, and returns the
    /// layout. QWidget::raise() and lower() change that order. Adds hidden children too, but neither windows
    /// nor property providers nor widgets that the layout, or one inside it, holds already. Does nothing
    /// without an owner.
    OvBoxLayout* autoFill();

    /// Adds a stretch of factor @p stretch (0: only room that nothing else takes) and returns the layout.
    OvBoxLayout* addStretch(int stretch = 0);

    /// Appends @p items in order and returns the layout.
    OvBoxLayout* addItems(std::initializer_list<LayoutHelpers::BoxItem> items);
};

/// An OvBoxLayout that runs from left to right, or from right to left with the owner's layout direction.
class WIDGETTOOLKIT_EXPORT OvHBoxLayout : public OvBoxLayout
{
    Q_OBJECT

public:
    explicit OvHBoxLayout(QWidget* owner);
    ~OvHBoxLayout() override;
};

/// An OvBoxLayout that runs from top to bottom.
class WIDGETTOOLKIT_EXPORT OvVBoxLayout : public OvBoxLayout
{
    Q_OBJECT

public:
    explicit OvVBoxLayout(QWidget* owner);
    ~OvVBoxLayout() override;
};
