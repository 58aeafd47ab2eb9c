#pragma once

class QWidget;

namespace LayoutHelpers {

/// An item of the studio's own rows and columns.
struct BoxItem
{
    QWidget* widget;
    int stretch;
};

enum class Alignment { Default = 0 };
enum class CellModifier { Empty = 0, SpanPrevious = 1 };

struct GridItem
{
    GridItem(QWidget* cellWidget, Alignment)
        : widget(cellWidget)
    {
    }
    GridItem(CellModifier cellModifier)
        : modifier(cellModifier)
    {
    }

    QWidget* widget = nullptr;
    CellModifier modifier = CellModifier::Empty;
};

} // namespace LayoutHelpers
