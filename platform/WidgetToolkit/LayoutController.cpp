#include "LayoutController.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLayout>

namespace {

int horizontalSpacingOf(const QLayout* layout)
{
    if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
        return grid->horizontalSpacing();
    }
    return layout ? layout->spacing() : 0;
}

int verticalSpacingOf(const QLayout* layout)
{
    if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
        return grid->verticalSpacing();
    }
    return layout ? layout->spacing() : 0;
}

bool isColumn(const QLayout* layout)
{
    const auto* box = qobject_cast<const QBoxLayout*>(layout);
    return box &&
           (box->direction() == QBoxLayout::TopToBottom || box->direction() == QBoxLayout::BottomToTop);
}

QMargins marginsOf(const QLayout* layout)
{
    return layout ? layout->contentsMargins() : QMargins();
}

} // namespace

LayoutController::LayoutController() = default;

LayoutController::~LayoutController() = default;

void LayoutController::setLayoutMargin(int pixels)
{
    setLayoutMarginLeft(pixels);
    setLayoutMarginTop(pixels);
    setLayoutMarginRight(pixels);
    setLayoutMarginBottom(pixels);
}

int LayoutController::layoutMarginLeft() const
{
    return m_marginLeft.value_or(marginsOf(getLayout()).left());
}

void LayoutController::setLayoutMarginLeft(int pixels)
{
    set(m_marginLeft, pixels);
}

int LayoutController::layoutMarginTop() const
{
    return m_marginTop.value_or(marginsOf(getLayout()).top());
}

void LayoutController::setLayoutMarginTop(int pixels)
{
    set(m_marginTop, pixels);
}

int LayoutController::layoutMarginRight() const
{
    return m_marginRight.value_or(marginsOf(getLayout()).right());
}

void LayoutController::setLayoutMarginRight(int pixels)
{
    set(m_marginRight, pixels);
}

int LayoutController::layoutMarginBottom() const
{
    return m_marginBottom.value_or(marginsOf(getLayout()).bottom());
}

void LayoutController::setLayoutMarginBottom(int pixels)
{
    set(m_marginBottom, pixels);
}

void LayoutController::setLayoutSpacing(int pixels)
{
    setLayoutHorizontalSpacing(pixels);
    setLayoutVerticalSpacing(pixels);
}

int LayoutController::layoutHorizontalSpacing() const
{
    return m_horizontalSpacing.value_or(horizontalSpacingOf(getLayout()));
}

void LayoutController::setLayoutHorizontalSpacing(int pixels)
{
    set(m_horizontalSpacing, pixels);
}

int LayoutController::layoutVerticalSpacing() const
{
    return m_verticalSpacing.value_or(verticalSpacingOf(getLayout()));
}

void LayoutController::setLayoutVerticalSpacing(int pixels)
{
    set(m_verticalSpacing, pixels);
}

void LayoutController::applyLayoutMetrics()
{
    QLayout* const layout = getLayout();
    if (!layout) {
        return;
    }
    const QMargins now = layout->contentsMargins();
    const QMargins wanted(m_marginLeft.value_or(now.left()), m_marginTop.value_or(now.top()),
                          m_marginRight.value_or(now.right()), m_marginBottom.value_or(now.bottom()));
    if (wanted != now) {
        layout->setContentsMargins(wanted);
    }
    const int horizontal = m_horizontalSpacing.value_or(horizontalSpacingOf(layout));
    const int vertical = m_verticalSpacing.value_or(verticalSpacingOf(layout));
    if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
        if (grid->horizontalSpacing() != horizontal) {
            grid->setHorizontalSpacing(horizontal);
        }
        if (grid->verticalSpacing() != vertical) {
            grid->setVerticalSpacing(vertical);
        }
        return;
    }
    const int spacing = isColumn(layout) ? vertical : horizontal;
    if (layout->spacing() != spacing) {
        layout->setSpacing(spacing);
    }
}

void LayoutController::set(std::optional<int>& value, int pixels)
{
    if (pixels >= 0) {
        value = pixels;
        applyLayoutMetrics();
    }
}
