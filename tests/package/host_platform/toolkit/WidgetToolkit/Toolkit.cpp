#include "OvBoxLayout.h"
#include "OvComboBox.h"
#include "OvFrame.h"
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

OvComboBox::OvComboBox(QWidget* parent)
    : QComboBox(parent)
{
}

OvComboBox::~OvComboBox() = default;

void Util::applyProperty(QWidget* widget, const char* name, const QVariant& value)
{
    widget->setProperty(name, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

LayoutController* Util::installLayoutController(QWidget*)
{
    return nullptr;
}
