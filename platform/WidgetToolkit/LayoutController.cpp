#include "LayoutController.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLayout>

#include <optional>

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

class LayoutController::Private
{
public:
    explicit Private(LayoutController* owner)
        : q(owner)
    {
    }

    void set(std::optional<int>& value, int pixels);

    LayoutController* const q;
    std::optional<int> marginLeft;
    std::optional<int> marginTop;
    std::optional<int> marginRight;
    std::optional<int> marginBottom;
    std::optional<int> horizontalSpacing;
    std::optional<int> verticalSpacing;
};

void LayoutController::Private::set(std::optional<int>& value, int pixels)
{
    if (pixels >= 0) {
        value = pixels;
        q->applyLayoutMetrics();
    }
}

LayoutController::LayoutController()
    : d(std::make_unique<Private>(this))
{
}

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
    return d->marginLeft.value_or(marginsOf(getLayout()).left());
}

void LayoutController::setLayoutMarginLeft(int pixels)
{
    d->set(d->marginLeft, pixels);
}

int LayoutController::layoutMarginTop() const
{
    return d->marginTop.value_or(marginsOf(getLayout()).top());
}

void LayoutController::setLayoutMarginTop(int pixels)
{
    d->set(d->marginTop, pixels);
}

int LayoutController::layoutMarginRight() const
{
    return d->marginRight.value_or(marginsOf(getLayout()).right());
}

void LayoutController::setLayoutMarginRight(int pixels)
{
    d->set(d->marginRight, pixels);
}

int LayoutController::layoutMarginBottom() const
{
    return d->marginBottom.value_or(marginsOf(getLayout()).bottom());
}

void LayoutController::setLayoutMarginBottom(int pixels)
{
    d->set(d->marginBottom, pixels);
}

void LayoutController::setLayoutSpacing(int pixels)
{
    setLayoutHorizontalSpacing(pixels);
    setLayoutVerticalSpacing(pixels);
}

int LayoutController::layoutHorizontalSpacing() const
{
    return d->horizontalSpacing.value_or(horizontalSpacingOf(getLayout()));
}

void LayoutController::setLayoutHorizontalSpacing(int pixels)
{
    d->set(d->horizontalSpacing, pixels);
}

int LayoutController::layoutVerticalSpacing() const
{
    return d->verticalSpacing.value_or(verticalSpacingOf(getLayout()));
}

void LayoutController::setLayoutVerticalSpacing(int pixels)
{
    d->set(d->verticalSpacing, pixels);
}

void LayoutController::applyLayoutMetrics()
{
    QLayout* const layout = getLayout();
    if (!layout) {
        return;
    }
    const QMargins now = layout->contentsMargins();
    const QMargins wanted(d->marginLeft.value_or(now.left()), d->marginTop.value_or(now.top()),
                          d->marginRight.value_or(now.right()), d->marginBottom.value_or(now.bottom()));
    if (wanted != now) {
        layout->setContentsMargins(wanted);
    }
    const int horizontal = d->horizontalSpacing.value_or(horizontalSpacingOf(layout));
    const int vertical = d->verticalSpacing.value_or(verticalSpacingOf(layout));
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
