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

OvHBoxLayout::OvHBoxLayout(QWidget* owner)
    : QHBoxLayout(owner)
{
}

OvHBoxLayout::~OvHBoxLayout() = default;

OvHBoxLayout* OvHBoxLayout::autoFill()
{
    const auto children = parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        addWidget(child);
    }
    return this;
}

OvHBoxLayout* OvHBoxLayout::addStretch(int stretch)
{
    QHBoxLayout::addStretch(stretch);
    return this;
}

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
