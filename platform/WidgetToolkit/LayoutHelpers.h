#pragma once

#include <QtGlobal>

class QWidget;

/**
 * The arguments of OvBoxLayout::addItems() and OvGridLayout::addRow().
 */
namespace LayoutHelpers {

/// The two kinds of spacer in a box layout.
enum class SpacerPolicy {
    Stretch, ///< takes free room; the number is its stretch factor
    Fixed,   ///< a gap that keeps its size; the number is in pixels
};

/// Where a widget sits in its grid cell.
enum class Alignment {
    Default = 0, ///< the layout's own: the widget fills its cell
    Left,
    HCenter,
    Right,
    Top,
    VCenter,
    Bottom,
    Center,
};

/// A grid cell without a widget.
enum class CellModifier {
    Empty = 0,        ///< leaves the cell free
    SpanPrevious = 1, ///< lets the cell before it span this cell too
};

/// One item of a box layout: a widget with its stretch factor, or a spacer.
class BoxItem
{
public:
    /// @p widget is reparented to the layout's owner; a null widget adds nothing. A negative @p stretch
    /// counts as 0.
    BoxItem(QWidget* widget, int stretch)
        : m_widget(widget)
        , m_number(qMax(0, stretch))
    {
    }
    /// A negative @p number counts as 0.
    BoxItem(SpacerPolicy policy, int number)
        : m_policy(policy)
        , m_number(qMax(0, number))
        , m_isSpacer(true)
    {
    }

    bool isSpacer() const { return m_isSpacer; }
    QWidget* widget() const { return m_widget; }
    SpacerPolicy policy() const { return m_policy; }
    int number() const { return m_number; }

private:
    QWidget* m_widget = nullptr;
    SpacerPolicy m_policy = SpacerPolicy::Stretch;
    int m_number = 0;
    bool m_isSpacer = false;
};

/// One cell of a grid row: a widget with its alignment, or a modifier.
class GridItem
{
public:
    /// @p widget is reparented to the layout's owner; a null widget leaves the cell free.
    GridItem(QWidget* widget, Alignment alignment)
        : m_widget(widget)
        , m_alignment(alignment)
    {
    }
    GridItem(CellModifier modifier) // NOLINT(google-explicit-constructor): rows are written as lists
        : m_modifier(modifier)
    {
    }

    QWidget* widget() const { return m_widget; }
    Alignment alignment() const { return m_alignment; }
    CellModifier modifier() const { return m_modifier; }

private:
    QWidget* m_widget = nullptr;
    Alignment m_alignment = Alignment::Default;
    CellModifier m_modifier = CellModifier::Empty;
};

} // namespace LayoutHelpers
