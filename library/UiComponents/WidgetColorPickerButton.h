#pragma once

#include <UiComponents/ClickButton.h>
#include <UiComponents/UiComponentsExport.h>

#include <QColor>

#include <memory>

class WidgetColorPickerStylingObject;

/**
 * A tool button that picks a colour from a widget, its target, with a WidgetColorPicker of its own. It keeps
 * the last colour and shows it.
 *
 *     auto* button = new WidgetColorPickerButton(this);
 *     button->setTargetWidget(preview);
 *     connect(button, &WidgetColorPickerButton::colorChanged, this, &KeyingPanel::setKeyColor);
 *
 * A click, Space or startPicking() emits pickingStarted(), picks in a nested event loop, emits
 * pickingFinished(), and then takes the colour over if there is one; WidgetColorPicker says how a pick ends.
 * A click on the button itself ends it, and so does Space while it has the focus; neither begins the next
 * one. The button is disabled while it has no target. A new one has none.
 *
 * **Style sheet.** While changeSelfColor() is on, which is the default, the button paints nothing but the
 * background of a push button, without text and icon. Each colour replaces the button's own style sheet by
 * `QToolButton { background-color: #rrggbb }`. Border, size and padding are those that the application's
 * sheet gives to WidgetColorPickerButton or QToolButton. Before the first colour, and for an invalid one, the
 * property "nullColor" (bool) is true, and a sheet may give it a picture:
 *
 *     WidgetColorPickerButton[changeSelfColor="true"][nullColor="true"] { background-image: url(d.png); }
 *
 * Off, it is a QToolButton as any other, and no colour changes its sheet, its property or its face.
 *
 * **Readers.** They find a button with its colour in words, as ColorPickerButton. A pick needs a mouse, and
 * any key ends it: offer a colour field with a PopupColorPicker too, for the keyboard.
 * @see WidgetColorPicker, PopupColorPicker, ColorPickerButton
 */
class UICOMPONENTS_EXPORT WidgetColorPickerButton : public ClickButton
{
    Q_OBJECT
    Q_PROPERTY(bool changeSelfColor READ changeSelfColor WRITE setChangeSelfColor)

public:
    /// @p parent owns the button as usual.
    explicit WidgetColorPickerButton(QWidget* parent = nullptr);
    /// Ends a running pick without a signal.
    ~WidgetColorPickerButton() override;

    /// The widget to pick from. It enables the button, and null disables it, as does deleting the
    /// target, which is not owned. See WidgetColorPicker::setTarget() for a change while picking.
    void setTargetWidget(QWidget* widget);
    const QWidget* targetWidget() const;

    /// Who chooses the picking cursor; see WidgetColorPicker::setStylingObject(). Borrowed, null by
    /// default.
    void setPickerStylingObject(WidgetColorPickerStylingObject* object);

    /// Whether the button shows its colour as its face. A change is only noted: it shows with the next
    /// colour or repaint, and the sheet of the last colour stays.
    bool changeSelfColor() const;
    void setChangeSelfColor(bool on);

    /// Sets the colour and emits colorChanged(). An equal one (as QColor compares: the colour model and
    /// alpha count) does nothing. The face is always opaque, and black for an invalid colour.
    void setColor(const QColor& color);

    /// The colour that was picked or set last; invalid at first.
    const QColor& color() const;

    /// What the last pick brought, also if the button showed that colour already; invalid while it runs and
    /// if it brought none.
    QColor pickedColor() const;

    /// True while a pick waits for the press or key that ends it.
    bool isPickingInProgress() const;

Q_SIGNALS:
    /// Picking is about to begin.
    void pickingStarted();

    /// Picking is over, once for each pickingStarted(). A picked colour is taken over right after this.
    void pickingFinished();

    /// The colour became @p color, by picking or through setColor(). A pick without a colour changes
    /// nothing.
    void colorChanged(QColor color);

public Q_SLOTS:
    /// Picks, and returns when that is over. Does nothing without a target or while picking.
    void startPicking();

    /// Ends the pick, with a colour if the cursor is over the target. Does nothing while not picking.
    void stopPicking();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
