#include "OvGridLayout.h"

#include <QWidget>

namespace {

Qt::Alignment toQt(LayoutHelpers::Alignment alignment)
{
    switch (alignment) {
    case LayoutHelpers::Alignment::Left:
        return Qt::AlignLeft;
    case LayoutHelpers::Alignment::HCenter:
        return Qt::AlignHCenter;
    case LayoutHelpers::Alignment::Right:
        return Qt::AlignRight;
    case LayoutHelpers::Alignment::Top:
        return Qt::AlignTop;
    case LayoutHelpers::Alignment::VCenter:
        return Qt::AlignVCenter;
    case LayoutHelpers::Alignment::Bottom:
        return Qt::AlignBottom;
    case LayoutHelpers::Alignment::Center:
        return Qt::AlignCenter;
    case LayoutHelpers::Alignment::Default:
        break;
    }
    return {};
}

} // namespace

class OvGridLayout::Private
{
public:
    // QGridLayout counts a row as soon as something asks for it, and an empty grid has one already.
    int nextRow = 0;
};

OvGridLayout::OvGridLayout(QWidget* parent)
    : QGridLayout(parent)
    , d(std::make_unique<Private>())
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(0);
}

OvGridLayout::~OvGridLayout() = default;

OvGridLayout* OvGridLayout::addRow(std::initializer_list<QWidget*> widgets, int flag)
{
    const int row = beginRow(flag);
    int column = 0;
    for (QWidget* widget : widgets) {
        if (widget) {
            addWidget(widget, row, column);
        }
        ++column;
    }
    return this;
}

OvGridLayout* OvGridLayout::addRow(std::initializer_list<LayoutHelpers::GridItem> items, int flag)
{
    const int row = beginRow(flag);
    int column = 0;
    for (auto item = items.begin(); item != items.end();) {
        const auto* const holder = item;
        int span = 1;
        for (++item; item != items.end() && item->modifier() == LayoutHelpers::CellModifier::SpanPrevious;
             ++item) {
            ++span;
        }
        if (holder->widget()) {
            addWidget(holder->widget(), row, column, 1, span, toQt(holder->alignment()));
        }
        column += span;
    }
    return this;
}

int OvGridLayout::beginRow(int flag)
{
    int row = d->nextRow;
    for (int i = 0; i < count(); ++i) {
        int itemRow = 0;
        int itemColumn = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        getItemPosition(i, &itemRow, &itemColumn, &rowSpan, &columnSpan);
        row = qMax(row, itemRow + rowSpan);
    }
    d->nextRow = row + 1;
    setRowStretch(row, qMax(0, flag));
    return row;
}
