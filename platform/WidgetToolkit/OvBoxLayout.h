#pragma once

#include <WidgetToolkit/LayoutHelpers.h>
#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QBoxLayout>

#include <initializer_list>
#include <memory>

/**
 * A box layout that is filled from its owner.
 *
 * It is constructed on its owner widget, whose layout it becomes and who owns it. Contents margins and
 * spacing start at 0; the style sheet sets them through the owner's LayoutController.
 */
class WIDGETTOOLKIT_EXPORT OvBoxLayout : public QBoxLayout
{
    Q_OBJECT

public:
    /// Null makes it a layout without owner, to be put into another one.
    OvBoxLayout(Direction direction, QWidget* owner);
    ~OvBoxLayout() override;

    /// Adds the owner's direct child widgets in the order of creation, each with stretch 0, and returns
    /// the layout. Hidden children are taken too, for they may be shown later. Windows, property
    /// providers and widgets that the layout, or one inside it, holds already are left out; without an
    /// owner nothing happens. (QWidget::raise() and lower() change the order that counts as that of
    /// creation.)
    OvBoxLayout* autoFill();

    /// Adds free room with factor @p stretch (0: only what nobody else wants) and returns the layout.
    OvBoxLayout* addStretch(int stretch = 0);

    /// Appends @p items in order and returns the layout.
    OvBoxLayout* addItems(std::initializer_list<LayoutHelpers::BoxItem> items);

    void invalidate() override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

/// An OvBoxLayout that runs from left to right, or from right to left where the owner's direction is so.
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
