#pragma once

#include <GuiHelper/GuiHelperExport.h>

#include <QObject>

#include <memory>

class QChildEvent;
class QWidget;

namespace Orvane::Gui {

/**
 * Outlines a widget for as long as the object exists.
 *
 * The outline is an overlay, a child of the target: it follows moves, resizes, hiding and re-parenting, lies
 * over all other children, also those added or raised later, and takes neither mouse nor focus. The target's
 * layout, size hints, minimum size and focus stay the same, and containers that adopt every new child, such
 * as QSplitter, do not adopt this one. (Only what reads all children without a layout sees it, such as
 * QWidget::childrenRect().)
 *
 * **Style sheet.** Select the overlay by its class `HighlightFrameOverlay` or its object name
 * "highlightFrame", and set
 *
 *     qproperty-borderColor   the outline's colour; by default the palette's highlight colour
 *     qproperty-borderWidth   its width in pixels, inwards from the target's edge; 2 by default
 *
 * Several frames on one target show one above the other, each until its own end.
 */
class GUIHELPER_EXPORT HighlightFrame : public QObject
{
    Q_OBJECT

public:
    /// Outlines @p target, which is not owned and may be deleted first. A null target has no effect.
    explicit HighlightFrame(QWidget* target);

    /// Removes the outline. Paints a target on screen without it before returning, so that the colours under
    /// it can be grabbed next (a compositing desktop takes a frame longer).
    ~HighlightFrame() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool targetEvent(QEvent* event);
    bool targetChildEvent(const QChildEvent* event);
    void watchSibling(QObject* child);

    class GUIHELPER_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};

} // namespace Orvane::Gui
