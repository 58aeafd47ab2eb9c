// Compiled, never run: each class overrides by itself what its users and subclasses may count on, and nobody
// can call less of it than of what it overrides.

#include <EditorWidgets/PointingWidget.h>
#include <GuiHelper/HighlightFrame.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvPixmapWidget.h>
#include <WidgetToolkit/OvSpinBox.h>

namespace {

/// A member that is only inherited is one of the base's, and does not match.
template <typename Class, typename Function>
constexpr bool isOwn(Function Class::*)
{
    return true;
}

#define UIC_PUBLIC_OVERRIDE(Class, function) static_assert(isOwn<Class>(&Class::function))

#define UIC_PROTECTED_OVERRIDE(Class, function)                                                              \
    struct Class##_##function : Class                                                                        \
    {                                                                                                        \
        static_assert(isOwn<Class>(&Class##_##function::function));                                          \
    }

UIC_PUBLIC_OVERRIDE(OvFrame, getLayout);

UIC_PUBLIC_OVERRIDE(OvComboBox, showPopup);
UIC_PUBLIC_OVERRIDE(OvComboBox, hidePopup);
UIC_PUBLIC_OVERRIDE(OvComboBox, minimumSizeHint);
UIC_PUBLIC_OVERRIDE(OvComboBox, eventFilter);
UIC_PROTECTED_OVERRIDE(OvComboBox, paintEvent);
UIC_PROTECTED_OVERRIDE(OvComboBox, wheelEvent);

UIC_PROTECTED_OVERRIDE(OvSpinBox, keyPressEvent);
UIC_PROTECTED_OVERRIDE(OvSpinBox, wheelEvent);
UIC_PUBLIC_OVERRIDE(OvDoubleSpinBox, validate);
UIC_PROTECTED_OVERRIDE(OvDoubleSpinBox, keyPressEvent);
UIC_PROTECTED_OVERRIDE(OvDoubleSpinBox, wheelEvent);
UIC_PUBLIC_OVERRIDE(OvCustomSlider, event);
UIC_PROTECTED_OVERRIDE(OvCustomSlider, wheelEvent);

UIC_PROTECTED_OVERRIDE(OvPixmapWidget, paintEvent);
UIC_PROTECTED_OVERRIDE(OvPixmapWidget, resizeEvent);

UIC_PROTECTED_OVERRIDE(PointingWidget, paintEvent);
UIC_PROTECTED_OVERRIDE(PointingWidget, showEvent);

UIC_PUBLIC_OVERRIDE(Orvane::Gui::HighlightFrame, eventFilter);

UIC_PROTECTED_OVERRIDE(ColorPickerButton, hideEvent);
UIC_PROTECTED_OVERRIDE(ColorPickerButton, changeEvent);
UIC_PROTECTED_OVERRIDE(ColorPickerWidget, showEvent);
UIC_PROTECTED_OVERRIDE(ColorPickerWidget, changeEvent);
UIC_PROTECTED_OVERRIDE(ColorBlendingComboBox, changeEvent);

UIC_PUBLIC_OVERRIDE(WidgetColorPicker, isInProgress);
UIC_PUBLIC_OVERRIDE(WidgetColorPicker, pick);
UIC_PUBLIC_OVERRIDE(WidgetColorPicker, stop);
UIC_PUBLIC_OVERRIDE(WidgetColorPicker, color);
UIC_PUBLIC_OVERRIDE(WidgetColorPicker, setColor);
UIC_PUBLIC_OVERRIDE(WidgetColorPicker, eventFilter);
UIC_PROTECTED_OVERRIDE(WidgetColorPickerButton, paintEvent);

UIC_PROTECTED_OVERRIDE(PointSelectionPlane, mousePressEvent);
UIC_PROTECTED_OVERRIDE(PointSelectionPlane, mouseReleaseEvent);
UIC_PROTECTED_OVERRIDE(PointSelectionPlane, mouseMoveEvent);
UIC_PROTECTED_OVERRIDE(PointSelectionPlane, paintEvent);
UIC_PROTECTED_OVERRIDE(PointSelectionPlane, resizeEvent);
UIC_PROTECTED_OVERRIDE(PointSelectorWidget, changeEvent);

UIC_PUBLIC_OVERRIDE(PathSelectionWidget, eventFilter);

UIC_PUBLIC_OVERRIDE(SearchWidget, eventFilter);
UIC_PROTECTED_OVERRIDE(SearchWidget, enterEvent);
UIC_PROTECTED_OVERRIDE(SearchWidget, leaveEvent);
UIC_PROTECTED_OVERRIDE(SearchWidget, showEvent);

UIC_PROTECTED_OVERRIDE(AdjustingListView, resizeEvent);

UIC_PROTECTED_OVERRIDE(GuideWidget, showEvent);
UIC_PROTECTED_OVERRIDE(GuideWidget, hideEvent);
UIC_PROTECTED_OVERRIDE(GuideButton, hideEvent);

UIC_PUBLIC_OVERRIDE(DialogGuideWidget, eventFilter);
UIC_PROTECTED_OVERRIDE(DialogGuideWidget, paintEvent);
UIC_PROTECTED_OVERRIDE(DialogGuideWidget, resizeEvent);
UIC_PROTECTED_OVERRIDE(DialogGuideWidget, adjustPositions);

UIC_PUBLIC_OVERRIDE(Qml::QuickDialog, exec);

} // namespace
