#include "OvBoxLayout.h"
#include "OvComboBox.h"
#include "OvFrame.h"
#include "PropertyProviderBase.h"
#include "Util.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

OvFrame::OvFrame(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

OvFrame::~OvFrame() = default;

QLayout* OvFrame::getLayout() const
{
    return layout();
}

OvBoxLayout::OvBoxLayout(Direction direction, QWidget* owner)
    : QBoxLayout(direction, owner)
{
}

OvBoxLayout::~OvBoxLayout() = default;

OvBoxLayout* OvBoxLayout::autoFill()
{
    const auto children = parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        addWidget(child);
    }
    return this;
}

OvBoxLayout* OvBoxLayout::addStretch(int stretch)
{
    QBoxLayout::addStretch(stretch);
    return this;
}

void OvBoxLayout::addItems(std::initializer_list<LayoutHelpers::BoxItem> items)
{
    for (const LayoutHelpers::BoxItem& item : items) {
        addWidget(item.widget, item.stretch);
    }
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

PropertyProviderBase::PropertyProviderBase(QWidget* owner)
    : QWidget(owner)
{
    hide();
}

PropertyProviderBase::~PropertyProviderBase() = default;

OvComboBox::OvComboBox(QWidget* parent)
    : QComboBox(parent)
{
}

OvComboBox::~OvComboBox() = default;

void Util::repolishWidget(QWidget* widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

void Util::applyProperty(QWidget* widget, const char* name, const QVariant& value)
{
    widget->setProperty(name, value);
    repolishWidget(widget);
}

LayoutController* Util::installLayoutController(QWidget*)
{
    return nullptr;
}
