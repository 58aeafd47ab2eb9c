#pragma once

#include <UiComponents/ClickButton.h>
#include <UiComponents/UiComponentsExport.h>

#include <QColor>

#include <memory>
#include <optional>

class AbstractColorPicker;

/**
 * A tool button whose face shows a colour and whose exchangeable picker picks one.
 *
 *     auto* button = new ColorPickerButton(this);
 *     button->setPicker(new MyPicker);                       // the button owns it from now on
 *     button->setColor(QColor(Qt::red));
 *     connect(button, &ColorPickerButton::colorChanged, this, &Panel::applyColor);
 *
 * The value is a `std::optional<QColor>` with the three meanings that AbstractColorPicker gives it.
 *
 * **One pick.** A click, Space or startPicking() emits pickingStarted(), shows the button pressed and calls
 * the picker's pick(). Each colour that the picker reports becomes the button's at once. When the picker
 * emits its `pickingStopped()`, the button emits its own, takes the picker's final colour and is released. A
 * picker that ends without a signal leaves the button pressed until one reports its end, or until Escape or
 * the loss of the focus releases it, as any button with focus.
 *
 * **Readers.** They find a button with the name of its label, its accessible name or its tool tip. Its value
 * and, on X11 and Wayland, its description is the colour in words, and each change is announced. Space picks.
 *
 * **Style sheet.** The face is a child QWidget named "color". The button writes its background, opaque
 * whatever the alpha, and at opacity 0.4 while disabled; size, border and the look of the two states without
 * a colour are the sheet's. Without a sheet the face is at least 16 by 16 pixels; min-width and min-height of
 * a rule win. The button has the properties "nullColor" and "multiColor" (bool). Margins and spacing around
 * the face are those of `ColorPickerButton > InstalledLayoutController` (see LayoutController).
 *
 *     ColorPickerButton #color { min-width: 40px; min-height: 16px; border-radius: 3px; }
 *     ColorPickerButton[multiColor="true"] { background-image: url(:/mixed.png); }
 *
 * **Lifetime.** A slot of any signal that hiding the button causes must use deleteLater(): QWidget::hide()
 * still uses it after the signal.
 * @see ColorInputWidget, AbstractColorPicker, PopupColorPicker, WidgetColorPicker
 */
class UICOMPONENTS_EXPORT ColorPickerButton : public ClickButton
{
    Q_OBJECT

public:
    /// @p parent owns the button.
    explicit ColorPickerButton(QWidget* parent = nullptr);
    /// Deletes the picker too, without any signal.
    ~ColorPickerButton() override;

    /// Installs @p picker, which must not be null or another button's, takes ownership of it whatever its
    /// parent is, and deletes the one before, also while that one is picking: the button is then released
    /// without a signal. Installing the same picker again does nothing. A picker that is deleted elsewhere
    /// leaves a button without one. The picker learns each colour from now on, but not the current one:
    /// install it first and set the colour then, or give it the colour too.
    void setPicker(AbstractColorPicker* picker);

    /// The picker in use, or null.
    AbstractColorPicker* picker() const;

    /// The value as set or picked, alpha included; empty by default.
    std::optional<QColor> color() const;

    /// Sets the value. An equal one (as QColor compares: the colour model counts) does nothing. Emits
    /// colorChanged() for a colour, valid or not.
    void setColor(const std::optional<QColor>& color);

    /// The picker's isInProgress(). Requires a picker.
    bool isPickingInProgress() const;

Q_SIGNALS:
    /// The picker is about to pick; not emitted without a picker.
    void pickingStarted();

    /// The picker reported the end of a pick; emitted once for each report. Right after it the final colour
    /// becomes the value, with colorChanged() if it differs.
    void pickingStopped();

    /// The value became @p color, by picking or through setColor(); an invalid one means no colour. Not
    /// emitted for a change to several colours, since the signal carries one.
    void colorChanged(QColor color);

public Q_SLOTS:
    /// Starts the picker; does nothing without one. A Space that ends a nested event loop of pick() does not
    /// click the button again if the picker is no longer in progress when the key reaches the button.
    void startPicking();

    /// Stops the picker; does nothing without one.
    void stopPicking();

protected:
    /// Hiding ends a running pick.
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
