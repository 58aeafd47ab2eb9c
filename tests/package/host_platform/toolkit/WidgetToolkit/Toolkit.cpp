#include "OvBoxLayout.h"
#include "OvComboBox.h"
#include "OvFrame.h"
#include "OvGridLayout.h"
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
    setContentsMargins(0, 0, 0, 0);
    setSpacing(0);
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
        if (item.widget) {
            addWidget(item.widget, item.stretch);
        } else {
            addStretch(item.stretch);
        }
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

OvGridLayout::OvGridLayout(QWidget* parent)
    : QGridLayout(parent)
{
}

OvGridLayout::~OvGridLayout() = default;

OvGridLayout* OvGridLayout::addRow(std::initializer_list<QWidget*> widgets, int)
{
    int column = 0;
    for (QWidget* widget : widgets) {
        addWidget(widget, m_rows, column++);
    }
    ++m_rows;
    return this;
}

OvGridLayout* OvGridLayout::addRow(std::initializer_list<LayoutHelpers::GridItem> items, int)
{
    // The studio's rows hold one widget that takes all columns, or one a column.
    for (const LayoutHelpers::GridItem& item : items) {
        if (item.widget) {
            addWidget(item.widget, m_rows, 0, 1, static_cast<int>(items.size()));
        }
    }
    ++m_rows;
    return this;
}

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
