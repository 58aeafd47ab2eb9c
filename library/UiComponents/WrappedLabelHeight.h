// Internal: room for all lines of the wrapped labels of GuideWidget and DialogGuideWidget.

#pragma once

class QLabel;

/**
 * The minimum height of a label whose text wraps.
 *
 * A layout may ask a wrapped label for its height at another width than the final one, as in a bubble of the
 * size of its content's hint, and cut lines off. A minimum height for the final width prevents that.
 */
class WrappedLabelHeight
{
public:
    /// @p label must outlive this.
    explicit WrappedLabelHeight(QLabel* label);

    /// Sets the label's minimum height to what its text needs at @p width, and at least to that of the style
    /// sheet or the host. A label without text keeps the latter.
    void fit(int width);

private:
    QLabel* const m_label;
    int m_fitted = -1;
    int m_given = 0;
};
