#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QCursor>

/**
 * What a host can choose about the look of picking a colour from a widget: the cursor over the target.
 *
 * Derive from it, keep the object, and lend it to WidgetColorPicker::setStylingObject() or
 * WidgetColorPickerButton::setPickerStylingObject(). One object may serve any number of pickers. It has no
 * data of its own and may be copied.
 * @see WidgetColorPicker, WidgetColorPickerButton
 */
class UICOMPONENTS_EXPORT WidgetColorPickerStylingObject
{
public:
    WidgetColorPickerStylingObject() = default;
    WidgetColorPickerStylingObject(const WidgetColorPickerStylingObject&) = default;
    WidgetColorPickerStylingObject& operator=(const WidgetColorPickerStylingObject&) = default;
    virtual ~WidgetColorPickerStylingObject();

    /// The cursor to show over the target while a colour is picked. Asked once when picking starts, and
    /// once when the object is set while picking.
    virtual QCursor pickingCursor() const = 0;
};
