#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QListView>

/**
 * A list view that can grow until all its rows are seen at once, for panels that scroll as a whole.
 *
 *     auto* list = new AdjustingListView(panel);
 *     list->setModel(model);
 *     list->setLoadingFinished(false); // every row counts, the panel makes room for all of them
 *     ...
 *     list->setLoadingFinished(true);  // the list may be as small as any other and scrolls by itself
 *
 * While loading is not finished, the view's minimum height is the sum of the heights of its rows, so that
 * the layout around it makes room for every row. Once loading is finished, as it is at first, the view sets
 * a minimum height of 0. Mind the direction: it is the unfinished list that is held at its full height.
 *
 * **The sum** is that of QAbstractItemView::sizeHintForRow() over the top-level rows of the model, in pixels;
 * rows that are hidden count. The view's frame, margins and spacing are not added. It ends at 16,777,214
 * pixels, the largest minimum that Qt takes. The rows are asked one by one: a resize of a loading list
 * costs as much as that.
 *
 * **When.** The height is computed by setLoadingFinished() and on every resize, and at no other time: the
 * view does not watch its model. Rows that come, go or change their height, another model and another root
 * count from the next resize or setLoadingFinished() on. Both write the minimum height, so one that a host
 * sets by itself lasts until then only. A view without a model has no rows.
 *
 * **Layout.** The size-adjust policy is QAbstractScrollArea::AdjustToContents. The width of the contents
 * follows that of the viewport.
 *
 * **Style sheet.** It has no class of its own for Qt's meta-object: a sheet selects it as `QListView`, or by
 * an object name. A `min-height` of the sheet is lost, because the view writes its own.
 */
// Without signals, slots or properties it needs no meta-object, and selectors take it for what it is.
class UICOMPONENTS_EXPORT AdjustingListView : public QListView // clazy:exclude=missing-qobject-macro
{
public:
    /// A list whose loading is finished. @p parent owns the view as usual.
    explicit AdjustingListView(QWidget* parent);
    ~AdjustingListView() override;

    /// Whether the rows are all there. While they are not (false), the minimum height is that of all rows;
    /// true lets the view be of any height. The minimum is computed anew in either case, also when
    /// @p finished is what it was.
    void setLoadingFinished(bool finished);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateSize();

    bool m_loadingFinished = true;
};
