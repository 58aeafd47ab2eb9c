#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <QColor>

#include <memory>
#include <optional>

class AbstractColorPicker;

/**
 * A colour field for a row of a form: a frame around one ColorPickerButton.
 *
 *     auto* field = new ColorInputWidget(form, QColor(Qt::red));
 *     field->setPicker(new MyPicker);
 *     connect(field, &ColorInputWidget::colorChanged, this, &Panel::applyColor);
 *
 * Interaction, colours and lifetime are those of ColorPickerButton. The button is the focus proxy: a label
 * whose buddy is the field gives it the focus, and Tab stops there once.
 *
 * **Readers.** They find a group with the button in it, both of the field's name. The button's value is the
 * colour in words, and Space picks (see ColorPickerButton).
 *
 * **Style sheet.** The button's object name is "colorPicker"; the frame's metrics are OvFrame's properties:
 * `ColorInputWidget { qproperty-layoutMargin: 2; }`.
 * @see ColorPickerButton, AbstractColorPicker, PopupColorPicker, EditSession
 */
class UICOMPONENTS_EXPORT ColorInputWidget : public OvFrame
{
    Q_OBJECT

public:
    /// @p parent owns the field. A valid @p color is the first value; an invalid one leaves the field at
    /// several different colours, as a new ColorPickerButton. Emits nothing.
    ColorInputWidget(QWidget* parent, const QColor& color);
    /// Of black, for forms.
    explicit ColorInputWidget(QWidget* parent);
    ~ColorInputWidget() override;

    /// The button's value; empty for several different colours.
    std::optional<QColor> color() const;

    /// Sets the value; an invalid @p color means no colour. Emits colorChanged() if it differs.
    void setColor(const QColor& color);

    /// Installs @p picker, which must not be null, in the button, which takes ownership and deletes the one
    /// before (see ColorPickerButton::setPicker()).
    void setPicker(AbstractColorPicker* picker);

    /// The button, to place a pop-up picker beside. It lives as long as the field.
    QWidget* anchorWidget() const;

Q_SIGNALS:
    /// The value became @p value, by picking or through setColor(); invalid means no colour.
    void colorChanged(QColor value);

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
