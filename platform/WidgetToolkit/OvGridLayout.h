#pragma once

#include <WidgetToolkit/LayoutHelpers.h>
#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QGridLayout>

#include <initializer_list>
#include <memory>

/**
 * A grid layout that is filled row by row.
 *
 * The owner widget, given to the constructor, owns it and has it as its layout; null makes it a layout
 * without owner. Contents margins and spacing are 0 by default; the style sheet sets them through the
 * owner's LayoutController.
 *
 *     auto* grid = new OvGridLayout(panel);
 *     using namespace LayoutHelpers;
 *     grid->addRow({{title, Alignment::Default}, CellModifier::SpanPrevious}, 0)
 *         ->addRow({slider, spinBox}, 0);
 *
 * Rows may be mixed with QGridLayout's own addWidget() and addLayout(): a row goes below everything in the
 * grid and below every row added before, empty ones included. The first cell is at the right where the
 * owner's layout direction is from right to left.
 *
 * Both forms of addRow() reparent the widgets to the owner. `flag` is the stretch factor of the row: a row of
 * 0 takes free height only when no row has a factor; a negative number counts as 0.
 * @see OvBoxLayout, LayoutHelpers
 */
class WIDGETTOOLKIT_EXPORT OvGridLayout : public QGridLayout
{
    Q_OBJECT

public:
    explicit OvGridLayout(QWidget* parent);
    ~OvGridLayout() override;

    /// Appends a row with one widget a cell, from column 0, and returns the layout. A null widget leaves
    /// its cell free.
    OvGridLayout* addRow(std::initializer_list<QWidget*> widgets, int flag);

    /// Appends a row of @p items, from column 0, and returns the layout. Each item takes one cell;
    /// CellModifier::SpanPrevious gives its cell to the item before it, several in a row one after the
    /// other. A modifier after a free cell, or as the first item, leaves its cell free.
    OvGridLayout* addRow(std::initializer_list<LayoutHelpers::GridItem> items, int flag);

private:
    int beginRow(int flag);

    class WIDGETTOOLKIT_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
