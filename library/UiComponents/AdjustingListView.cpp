#include "AdjustingListView.h"

namespace {

// To Qt, QWIDGETSIZE_MAX means no minimum, and it warns of more.
constexpr int maxMinimumHeight = QWIDGETSIZE_MAX - 1;

} // namespace

AdjustingListView::AdjustingListView(QWidget* parent)
    : QListView(parent)
{
    setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
}

AdjustingListView::~AdjustingListView() = default;

void AdjustingListView::setLoadingFinished(bool finished)
{
    m_loadingFinished = finished;
    updateSize();
}

void AdjustingListView::resizeEvent(QResizeEvent* event)
{
    resizeContents(viewport()->width(), contentsSize().height());
    QListView::resizeEvent(event);
    updateSize();
}

void AdjustingListView::updateSize()
{
    qint64 height = 0;
    if (!m_loadingFinished && model()) {
        const int rows = model()->rowCount(QModelIndex());
        for (int row = 0; row < rows; ++row) {
            height += sizeHintForRow(row);
        }
    }
    setMinimumHeight(static_cast<int>(qBound<qint64>(0, height, maxMinimumHeight)));
}
