#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QColor>
#include <QToolButton>

#include <memory>
#include <optional>

class AbstractColorPicker;

/**
 * A tool button whose face is a colour and which hands the act of picking one to an exchangeable picker.
 *
 * The value is a `std::optional<QColor>`: a valid colour, an invalid one (no colour), or empty (several
 * different colours at once, as a mixed selection has). A new button is empty.
 *
 *     auto* button = new ColorPickerButton(this);
 *     button->setPicker(new MyPicker);                       // the button owns it from now on
 *     button->setColor(QColor(Qt::red));
 *     connect(button, &ColorPickerButton::colorChanged, this, &Panel::applyColor);
 *
 * **One pick.** A click, Space or startPicking() emits pickingStarted(), shows the button pressed and
 * calls the picker's pick(). Each colour that the picker reports becomes the button's at once. When the
 * picker emits its `pickingStopped()`, the button emits its own, adopts the picker's final colour and is
 * released. A picker that ends in silence leaves the button pressed, until one reports its end; Escape and
 * the loss of the focus release it too if it has the focus, as they do any button. Where pick() runs a nested
 * event loop, a Space that ended it does not click the button again if the picker is no longer in progress
 * when the key comes to the button.
 *
 * **Style sheet.** The face is a child QWidget named "color"; its size, border and drawing in the two
 * states without a colour are the sheet's, its background is written by the button, opaque whatever the
 * colour's alpha, and at opacity 0.4 while the button is disabled. Without a sheet the face is at least
 * 16 by 16 pixels, so that the colour is seen; a rule's min-width and min-height win. The button carries the
 * dynamic properties "nullColor" and "multiColor" (bool). Margins and spacing around the face are set on
 * `ColorPickerButton > InstalledLayoutController` (see LayoutController).
 *
 *     ColorPickerButton #color { min-width: 40px; min-height: 16px; border-radius: 3px; }
 *     ColorPickerButton[multiColor="true"] { background-image: url(:/mixed.png); }
 *
 * **Lifetime.** The button may be deleted, and its picker replaced, in a slot of any of its signals and
 * while the picker picks. Two exceptions are Qt's: a slot of pickingStopped() that runs because the button
 * is being hidden must use deleteLater(), for QWidget::hide() goes on using the widget; and so must all slots
 * of a button whose popupMode() is MenuButtonPopup, for QToolButton goes on using it after a click.
 */
class UICOMPONENTS_EXPORT ColorPickerButton : public QToolButton
{
    Q_OBJECT

public:
    /// @p parent owns the button as usual.
    explicit ColorPickerButton(QWidget* parent = nullptr);
    /// Deletes the picker too, without any signal.
    ~ColorPickerButton() override;

    /// Installs @p picker, which must not be null, takes ownership of it whatever its parent was, and
    /// deletes the one before, also when that one is picking: the button is then released without a
    /// signal. Installing the installed picker again does nothing. A picker that is deleted by others,
    /// or by itself, leaves a button without one. The picker is told of each colour from now on, not of
    /// the one that the button has: install it first and set the colour then, or give it the colour too.
    void setPicker(AbstractColorPicker* picker);

    /// The value as it was set or picked, alpha included; empty at first.
    std::optional<QColor> color() const;

    /// Sets the value. An equal one (as QColor compares: the colour model counts) does nothing. A colour,
    /// valid or not, is emitted with colorChanged(); a change to several colours is shown but not
    /// emitted, since the signal carries one colour.
    void setColor(const std::optional<QColor>& color);

    /// The picker's isInProgress(). Requires a picker.
    bool isPickingInProgress() const;

Q_SIGNALS:
    /// The picker is about to be asked; not emitted without a picker.
    void pickingStarted();

    /// The picker reported the end of a pick, once for each report. The final colour is adopted, and
    /// reported by colorChanged() if it differs, right after this.
    void pickingStopped();

    /// The value became @p color, by picking or through setColor(). An invalid colour means no colour.
    /// Not emitted for a change to several colours.
    void colorChanged(QColor color);

public Q_SLOTS:
    /// Starts the picker; does nothing without one.
    void startPicking();

    /// Stops the picker; does nothing without one.
    void stopPicking();

protected:
    /// Hiding ends a running pick.
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
