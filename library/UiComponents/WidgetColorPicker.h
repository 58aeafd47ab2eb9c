#pragma once

#include <UiComponents/AbstractColorPicker.h>

#include <QSet>

#include <memory>

class QWidget;
class WidgetColorPickerStylingObject;

/**
 * Picks a colour from one widget of the application, for example the preview of a video.
 *
 *     auto* picker = new WidgetColorPicker({button});
 *     picker->setTarget(preview);
 *     button->setPicker(picker); // a ColorPickerButton, which owns it from now on
 *
 * While picking, an Orvane::Gui::HighlightFrame outlines the target, which shows a picking cursor. The next
 * mouse press, or key that is no shortcut, ends it. A press over the target or over one of the constructor's
 * widgets is swallowed, with the double click that may follow; all else reaches its receiver.
 *
 * If the cursor is over the target as pick() returns, the pixel below it is picked: colorChanged() and then
 * pickingStopped() are emitted. Otherwise nothing is, and color() is invalid: a ColorPickerButton stays
 * pressed; see there for what releases it. Deleting the target or ending the application picks nothing.
 * Picks nest: one that is begun by what ended another is over first, and the cursor decides for both.
 *
 * The colour is opaque, and that of the screen when the pick ends, with whatever lies over the target, even
 * if what ended it then closes or moves the target. The outermost 8 points are read from a picture taken
 * before the outline covered them; a sheet's wider outline may be picked itself. Where the target has moved
 * since, they are the colours that the target itself paints, and so is all of it where the platform gives no
 * picture of the screen (as plain Wayland; Xwayland may give a black one). A mouse event, of an earlier
 * pick too, tells the pixel where the screen has several for a point; a key before it picks the first one of
 * the point next to the cursor.
 *
 * **Without a mouse.** Nothing can be picked, as any key ends a pick: offer a ColorPickerWidget too, whose
 * edit takes every colour by its digits, and whose selector's plane takes keys.
 * @see WidgetColorPickerButton, WidgetColorPickerStylingObject, Orvane::Gui::HighlightFrame, Pipette
 */
class UICOMPONENTS_EXPORT WidgetColorPicker : public AbstractColorPicker
{
    Q_OBJECT

public:
    /// @p widgets get no presses while picking: name the button that starts it, and a click on it ends the
    /// pick instead of starting the next one. They are not owned and may be deleted; null is ignored. The
    /// picker has no parent.
    explicit WidgetColorPicker(const QSet<QWidget*>& widgets);
    /// Ends a running pick without a signal.
    ~WidgetColorPicker() override;

    /// The widget to pick from, null at first. It is not owned; when it is deleted the target is null, and a
    /// running pick ends without a colour. Changed while picking, outline and cursor go over to the new
    /// target at once, and null ends the pick without a colour.
    void setTarget(QWidget* target);
    QWidget* target() const;

    /// Sets what chooses the picking cursor. Without one, which is the default, or with null, it is a cross.
    /// The object is borrowed: keep it until the picker has another, or is deleted. Set while picking, its
    /// cursor shows at once; a running pick does not query it again later. Its functions may delete the
    /// picker or the target. If one calls pick(), that pick runs, and the one that queried the cursor ends
    /// without a signal.
    void setStylingObject(WidgetColorPickerStylingObject* object);

    /// True while pick() waits for the press or key that ends it.
    bool isInProgress() const override;

    /// Picks a colour, and returns when that is over. The colour is forgotten first, also when a pick is
    /// running or there is no target: nothing more happens then.
    void pick() override;

    /// Ends a running pick as a key does: with a colour if the cursor is over the target. pick() reports
    /// it. The application's last window that closes does the same. Does nothing while nothing is picked.
    void stop() override;

    /// The colour that the last pick brought; invalid before it and when it brought none. Never empty.
    std::optional<QColor> color() override;

    /// Does nothing: there is no colour to start from.
    void setColor(const std::optional<QColor>& color) override;

    /// Sees every event of the application while picking.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::shared_ptr<Private> d;
};
