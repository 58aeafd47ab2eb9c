#pragma once

#include <GuiHelper/GuiHelperExport.h>

#include <QObject>
#include <QPointer>

class HighlightFrameOverlay;
class QChildEvent;
class QWidget;

namespace Orvane::Gui {

/**
 * Outlines a widget for as long as the object exists.
 *
 * The outline is an overlay that the target owns as a child: it goes with it through moves, resizes,
 * hiding and re-parenting, lies over all the target's other children, also those that are added or
 * raised later, and takes neither mouse nor focus. The target does not notice: its layout, size hints,
 * minimum size and focus are what they were, and containers that adopt every new child, such as
 * QSplitter, do not adopt this one. (Only what asks for every child without a layout sees it, such as
 * QWidget::childrenRect().)
 *
 * A style sheet reaches the overlay by its class `HighlightFrameOverlay` or its object name
 * "highlightFrame" and sets
 *
 *     qproperty-borderColor   the outline's colour; by default the palette's highlight colour
 *     qproperty-borderWidth   its width in pixels, inwards from the target's edge; 2 by default
 *
 * Several frames on one target show one above the other; each goes on its own.
 */
class GUIHELPER_EXPORT HighlightFrame : public QObject
{
    Q_OBJECT

public:
    /// Outlines @p target from now on. The target is not owned and may die first: the frame then does
    /// nothing any more. A null target has no effect.
    explicit HighlightFrame(QWidget* target);

    /// Removes the outline. A target on screen is painted without it before the destructor returns, so
    /// that the colours under the outline can be grabbed next (a compositing desktop takes a frame longer).
    ~HighlightFrame() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool targetEvent(QEvent* event);
    bool targetChildEvent(const QChildEvent* event);
    void watchSibling(QObject* child);

    const QPointer<QWidget> m_target;
    QPointer<HighlightFrameOverlay> m_overlay;
    /// The overlay's address, for the event that tells of its removal: the pointer is null by then.
    const QObject* m_overlayChild = nullptr;
};

} // namespace Orvane::Gui
