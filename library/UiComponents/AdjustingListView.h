#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QListView>

/**
 * A list view that can grow until all its rows are visible, for panels that scroll as a whole.
 *
 *     auto* list = new AdjustingListView(panel);
 *     list->setModel(model);
 *     list->setLoadingFinished(false); // every row counts, the panel makes room for all of them
 *     ...
 *     list->setLoadingFinished(true);  // the list may be as small as any other and scrolls by itself
 *
 * While loading is not finished, the minimum height is the sum of the heights of all rows; once it is
 * finished, which is the default, it is 0.
 *
 * **Sum.** QAbstractItemView::sizeHintForRow() over the top-level rows of the model, in pixels, hidden rows
 * included; without frame, margins and spacing; at most 16,777,214 pixels, the largest minimum that Qt takes.
 * Each resize of a loading list measures all of them. A view without a model has no rows, and a root
 * index is not supported.
 *
 * **When.** setLoadingFinished() and each resize compute the height and overwrite a minimum height of the
 * host. The view does not watch its model: rows that come, go or change their height and another model
 * count from the next of these on.
 *
 * **Layout.** The size-adjust policy is QAbstractScrollArea::AdjustToContents. The width of the contents
 * follows the viewport's: do not set a gridSize() without a width, or QListView, which goes from cell to cell
 * of it, never comes to the end of a row.
 *
 * **Readers.** They find a list, as any other of Qt: with its accessible name, since Qt asks no label for it,
 * and its rows. The keys are those of any list.
 *
 * **Style sheet.** Qt's meta-object knows no class of this name: a sheet selects it as `QListView`, or by an
 * object name. A `min-height` of the sheet is overwritten.
 */
// Without signals, slots or properties it needs no meta-object, and selectors take it for what it is.
class UICOMPONENTS_EXPORT AdjustingListView : public QListView // clazy:exclude=missing-qobject-macro
{
public:
    /// @p parent owns the view. Loading is finished.
    explicit AdjustingListView(QWidget* parent);
    ~AdjustingListView() override;

    /// Sets whether the rows are all there: false holds the view at the height of all rows, true lets it have
    /// any height. Computes the minimum height anew, also when @p finished does not change.
    void setLoadingFinished(bool finished);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateSize();

    bool m_loadingFinished = true;
};
