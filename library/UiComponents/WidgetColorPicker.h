#pragma once

#include <UiComponents/AbstractColorPicker.h>

#include <QSet>

#include <memory>

class QWidget;
class WidgetColorPickerStylingObject;

/**
 * Picks a colour from one widget of the application, for example the preview of a video.
 *
 * While picking, the target is outlined and shows a picking cursor. The next mouse press or key press
 * anywhere in the application ends it. If the cursor is over the target then, the colour of the pixel that
 * the screen shows under it is picked; otherwise there is none.
 *
 *     auto* picker = new WidgetColorPicker({button});
 *     picker->setTarget(preview);
 *     button->setPicker(picker);                  // a ColorPickerButton, which owns it from now on
 *
 * WidgetColorPickerButton is a button with such a picker.
 *
 * **One pick.** pick() runs a nested event loop and returns when picking is over: expect any event in it.
 * A press over the target or over one of the constructor's widgets ends picking and is swallowed, with the
 * double click that may come of it; every other press, and every key that is no shortcut, ends picking and
 * goes on to its receiver. (A key that triggers a shortcut does just that, and picking goes on.) When a
 * colour was picked, colorChanged() is emitted with it and then pickingStopped(), both before pick() returns.
 * A pick without a colour emits nothing at all, and color() is invalid then: a ColorPickerButton stays
 * pressed until a pick brings a colour.
 *
 * It ends without a colour when the cursor is elsewhere as pick() returns, when the target dies or is set to
 * null, and when the application quits. Picks nest: one that is begun by what ended another is over first,
 * and the cursor decides for both.
 *
 * **The colour** is opaque, and that of the pixel as the screen shows it when the pick ends, with whatever
 * lies over the target, also when the press or the key then closes or moves it. Only the outermost 8 points
 * of the target, where its outline is, are those of a picture of the screen from before the pick, or as the
 * target paints itself when it has moved since. Where the platform gives no picture of the screen (as plain
 * Wayland) all of the target is as it paints itself.
 *
 * A mouse event tells the pixel, also where the screen has several for a point. A key that ends the pick
 * before the mouse has moved in it takes the pixel of the whole point that is next to the cursor.
 *
 * A program that runs through Xwayland is one of X11 to Qt, and may read black from the screen where there
 * is something else: nothing tells that from a black pixel.
 *
 * **Style sheet.** The outline is the Orvane::Gui::HighlightFrame of the target. The cursor is the styling
 * object's.
 *
 * **Lifetime.** The picker, its widgets, its target and the windows of them may be deleted while it picks
 * and in the slots of its signals. Whatever ends a pick, its outline, cursor and event filter go with it.
 */
class UICOMPONENTS_EXPORT WidgetColorPicker : public AbstractColorPicker
{
    Q_OBJECT

public:
    /// @p widgets get no presses while picking: name the button that starts it, and a click on it ends the
    /// pick instead of starting the next one. They are not owned and may die; null is ignored. The picker
    /// has no parent.
    explicit WidgetColorPicker(const QSet<QWidget*>& widgets);
    /// Ends a running pick without a signal.
    ~WidgetColorPicker() override;

    /// The widget to pick from, null at first. It is not owned; when it dies the target is null, and a
    /// running pick ends without a colour. Changed while picking, outline and cursor go over to the new
    /// target at once, and null ends the pick without a colour.
    void setTarget(QWidget* target);
    QWidget* target() const;

    /// Who chooses the picking cursor. Without one, which is the default, or with null, it is a cross. The
    /// object is borrowed: keep it until the picker has another, or dies. Set while picking, its cursor
    /// shows at once; a running pick does not come back to it later. It may delete the picker or the target
    /// when it is asked. If it calls pick(), that pick is the one that runs, and the one that asked it ends
    /// in silence.
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
    class Private;
    const std::shared_ptr<Private> d;
};
