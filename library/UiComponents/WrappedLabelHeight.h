// Internal: how GuideWidget and DialogGuideWidget give wrapped labels room for all their lines.
#pragma once

class QLabel;

/**
 * The minimum height of a label whose text wraps.
 *
 * A layout asks a wrapped label for its height at a width that it finally does not get, as in a bubble that
 * takes the size its content hints at, and cuts lines off. A minimum height for the real width prevents it.
 */
class WrappedLabelHeight
{
public:
    /// @p label must outlive this.
    explicit WrappedLabelHeight(QLabel* label);

    /// Makes the height that the label's text needs at @p width its minimum height. A label without a
    /// text, to which heights do not depend on widths, keeps the one that the style sheet or a host gave
    /// it, which is the least in any case.
    void fit(int width);

private:
    QLabel* const m_label;
    int m_fitted = -1;
    int m_given = 0;
};
