#pragma once

class QWidget;

namespace LayoutHelpers {

enum class SpacerPolicy { Stretch };

/// An item of the studio's own rows and columns: a widget, or room that stretches.
struct BoxItem
{
    BoxItem(QWidget* itemWidget, int itemStretch)
        : widget(itemWidget)
        , stretch(itemStretch)
    {
    }
    BoxItem(SpacerPolicy, int itemStretch)
        : stretch(itemStretch)
    {
    }

    QWidget* widget = nullptr;
    int stretch = 0;
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
