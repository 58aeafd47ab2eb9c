#include "OvBoxLayout.h"

#include "PropertyProviderBase.h"

#include <QWidget>

namespace {

bool holds(const QLayout* layout, QWidget* widget)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* const item = layout->itemAt(i);
        if (item->widget() == widget || (item->layout() && holds(item->layout(), widget))) {
            return true;
        }
    }
    return false;
}

} // namespace

OvBoxLayout::OvBoxLayout(Direction direction, QWidget* owner)
    : QBoxLayout(direction, owner)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(0);
}

OvBoxLayout::~OvBoxLayout() = default;

OvBoxLayout* OvBoxLayout::autoFill()
{
    const QWidget* const owner = parentWidget();
    if (!owner) {
        return this;
    }
    const auto children = owner->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (!child->isWindow() && !qobject_cast<PropertyProviderBase*>(child) && !holds(this, child)) {
            addWidget(child);
        }
    }
    return this;
}

OvBoxLayout* OvBoxLayout::addStretch(int stretch)
{
    QBoxLayout::addStretch(stretch);
    return this;
}

OvBoxLayout* OvBoxLayout::addItems(std::initializer_list<LayoutHelpers::BoxItem> items)
{
    for (const LayoutHelpers::BoxItem& item : items) {
        if (item.isSpacer()) {
            if (item.policy() == LayoutHelpers::SpacerPolicy::Stretch) {
                QBoxLayout::addStretch(item.number());
            } else {
                addSpacing(item.number());
            }
        } else if (item.widget()) {
            addWidget(item.widget(), item.number());
        }
    }
    return this;
}

OvHBoxLayout::OvHBoxLayout(QWidget* owner)
    : OvBoxLayout(LeftToRight, owner)
{
}

OvHBoxLayout::~OvHBoxLayout() = default;

OvVBoxLayout::OvVBoxLayout(QWidget* owner)
    : OvBoxLayout(TopToBottom, owner)
{
}

OvVBoxLayout::~OvVBoxLayout() = default;
