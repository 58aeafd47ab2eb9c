#pragma once

#include <WidgetToolkit/LayoutHelpers.h>
#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QGridLayout>

#include <initializer_list>
#include <memory>

/**
 * A grid layout that is filled row by row.
 *
 * It is constructed on its owner widget, whose layout it becomes and who owns it; null makes it a layout
 * without owner. Contents margins and spacing start at 0; the style sheet sets them through the owner's
 * LayoutController.
 *
 *     auto* grid = new OvGridLayout(panel);
 *     grid->addRow({{title, LayoutHelpers::Alignment::Default}, LayoutHelpers::CellModifier::SpanPrevious},
 * 0)
 *         ->addRow({slider, spinBox}, 0);
 *
 * Rows may be mixed with QGridLayout's own addWidget() and addLayout(): a row goes below everything that
 * the grid holds and below every row that was added before, the empty ones included. Columns follow the
 * owner's direction, so that the first cell is at the right where text runs from right to left.
 *
 * In both forms widgets are reparented to the owner and `flag` is the stretch factor of the row: 0 makes
 * a plain row, which takes free height only when no row has a factor; a negative number counts as 0.
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
    /// other. A modifier behind a free cell, or as the first one, leaves its cell free.
    OvGridLayout* addRow(std::initializer_list<LayoutHelpers::GridItem> items, int flag);

    void invalidate() override;

private:
    int beginRow(int flag);

    class Private;
    const std::unique_ptr<Private> d;
};
