#include "DesignerPlugin.h"

#include "Component.h"

#include <DesignElements/TesselElegantSlider.h>
#include <DesignElements/TesselLineEdit.h>
#include <EditorWidgets/PointingWidget.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ClickButton.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DialogGuideInfo.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideInfo.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPickerButton.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvPixmapWidget.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/PropertyProviderBase.h>

#include <QIcon>

#include <private/qmetaobjectbuilder_p.h>

namespace {

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

/// Designer saves a widget by the name of its meta-object, which these classes have from their base.
template <typename Widget>
class Named : public Widget // clazy:exclude=missing-qobject-macro
{
public:
    Named(QWidget* parent, const char* name)
        : Widget(parent)
        , m_metaObject(metaObjectOf(name))
    {
    }

    const QMetaObject* metaObject() const override { return m_metaObject; }

private:
    static const QMetaObject* metaObjectOf(const char* name)
    {
        // Never freed: widgets may outlive the plugin's static objects.
        static const QMetaObject* const metaObject = [name] {
            QMetaObjectBuilder builder;
            builder.setClassName(name);
            builder.setSuperClass(&Widget::staticMetaObject);
            return builder.toMetaObject();
        }();
        return metaObject;
    }

    const QMetaObject* const m_metaObject;
};

QWidget* makeListView(QWidget* parent)
{
    return new Named<AdjustingListView>(parent, "AdjustingListView");
}

QWidget* makeClickButton(QWidget* parent)
{
    return new Named<ClickButton>(parent, "ClickButton");
}

void fillGuide(QWidget* widget)
{
    static_cast<GuideWidget*>(widget)->setInfo(
        {QStringLiteral("Title"), QStringLiteral("What the control does."), QString(), QString()});
}

void fillDialogGuide(QWidget* widget)
{
    static_cast<DialogGuideWidget*>(widget)->setInfo(
        {QStringLiteral("Title"), QStringLiteral("What this step is about."), QStringLiteral("Next"),
         QStringLiteral("Back"), QString()});
}

constexpr auto colours = "UiComponents: Colour";
constexpr auto inputs = "UiComponents: Inputs";
constexpr auto guides = "UiComponents: Guides";
constexpr auto toolkit = "UiComponents: Toolkit";
constexpr auto product = "UiComponents";
constexpr auto widgets = "WidgetToolkit";

/// Sliders are vertical unless they are told.
constexpr auto horizontal = "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>";

const QSize field(160, 24);
const QSize own;

const ComponentInfo components[] = {
    {product, "ColorInputWidget", colours, field, "Colour field for a row of a form",
     "Shows a colour and lets the user pick another one. Give it a picker in code, such as PopupColorPicker.",
     make<ColorInputWidget>},
    {product, "ColorPickerButton", colours, QSize(24, 24), "Button that shows and picks a colour",
     "A tool button whose face is its colour. Give it a picker in code, such as PopupColorPicker.",
     make<ColorPickerButton>},
    {product, "ColorPickerWidget", colours, QSize(320, 300), "Colour panel",
     "A palette, a hexadecimal value, the user's own colours, a selector of any colour and an opacity "
     "slider.",
     make<ColorPickerWidget>},
    {product, "ColorBlendingComboBox", colours, field, "Combo box of blending modes",
     "The blending modes of a layer, sorted by their names in the user's language.",
     make<ColorBlendingComboBox>},
    {product, "WidgetColorPickerButton", colours, QSize(24, 24), "Button that picks a colour from a widget",
     "Picks a colour from its target and shows it. Name the target in code with setTargetWidget().",
     make<WidgetColorPickerButton>},

    {product, "SliderInputWidget", inputs, field, "Slider and spin box for a whole number",
     "Starts with 0 to 100; set another range in code with setRange().", make<SliderInputWidget>},
    {product, "DoubleSliderInputWidget", inputs, field, "Slider and spin box for a number",
     "Starts with 0 to 1 and two decimals; set another range in code with setRange().",
     make<DoubleSliderInputWidget>},
    {product, "PointSelectionPlane", inputs, QSize(120, 120), "Plane for picking a point",
     "The user clicks and drags a point. Set what the plane stands for in code with setLimits().",
     make<PointSelectionPlane>},
    {product, "PointSelectorWidget", inputs, QSize(220, 120), "Plane and spin boxes for a point",
     "Starts with 0 to 1 in both directions; set another range in code with setRange().",
     make<PointSelectorWidget>},
    {product, "PathSelectionWidget", inputs, QSize(320, 60), "Field for the path of a folder",
     "A line edit with buttons that browse and reset, and a line that says what is wrong with the path.",
     make<PathSelectionWidget>},
    {product, "SearchWidget", inputs, field, "Search field",
     "An icon, a line edit and a button that clears it. Set its texts in code with setTranslations().",
     make<SearchWidget>},
    {product, "AdjustingListView", inputs, QSize(200, 120), "List view that grows with its rows",
     "While loading is not finished it is as high as all its rows, for panels that scroll as a whole.",
     makeListView},
    {product, "ClickButton", inputs, QSize(24, 24), "Tool button whose click may delete it",
     "The base of the library's buttons: a tool button that leaves itself alone after a click.",
     makeClickButton},

    {product, "GuideButton", guides, QSize(24, 24), "Button that opens a guide in a bubble",
     "Give it a guide in code with setGuideInfo().", make<GuideButton>},
    {product, "GuideWidget", guides, QSize(240, 120), "Guide: title, description, picture and link",
     "A short piece of help. Give it its texts in code with setInfo().", make<GuideWidget>, fillGuide},
    {product, "DialogGuideWidget", guides, QSize(300, 180), "Bubble with a step of a walk",
     "A heading, a picture, a description and two buttons. Give it its texts in code with setInfo().",
     make<DialogGuideWidget>, fillDialogGuide},
    {"EditorWidgets", "PointingWidget", guides, QSize(200, 100), "Bubble with an arrow",
     "A bubble that points at a spot. Its content goes into contentFrame().", make<PointingWidget>},
    {product, "Qml::QuickDialog", nullptr, own, "Dialog that shows a QML scene",
     "A modal dialog of a scene's size; exec() shows it.", make<Qml::QuickDialog>},

    {widgets, "OvFrame", toolkit, QSize(160, 100), "Frame whose layout a style sheet controls",
     "A container: margins and spacing of its layout are properties that a sheet sets.", make<OvFrame>},
    {widgets, "OvComboBox", toolkit, field, "Combo box of the toolkit",
     "The wheel changes it only while it has the focus.", make<OvComboBox>},
    {widgets, "OvSpinBox", toolkit, QSize(80, 24), "Spin box of the toolkit",
     "The wheel changes it only while it has the focus.", make<OvSpinBox>},
    {widgets, "OvDoubleSpinBox", toolkit, QSize(80, 24), "Spin box for fractions of the toolkit",
     "Takes a point and a comma for the decimal mark, if it is told to.", make<OvDoubleSpinBox>},
    {widgets, "OvCustomSlider", toolkit, field, "Slider of the toolkit",
     "The handle follows a click at once. The wheel changes it only while it has the focus.",
     make<OvCustomSlider>, nullptr, horizontal},
    {widgets, "OvDoubleSlider", toolkit, field, "Slider for fractions of the toolkit",
     "Its value is its steps times a multiplier.", make<OvDoubleSlider>, nullptr, horizontal},
    {"DesignElements", "Orvane::Tessel::TesselElegantSlider", toolkit, field, "Slider of the design system",
     "A slider whose groove shows what is behind it.", make<Orvane::Tessel::TesselElegantSlider>, nullptr,
     horizontal},
    {"DesignElements", "Orvane::Tessel::TesselLineEdit", toolkit, field, "Line edit of the design system",
     "A line edit with a menu and a placeholder in the look of the design system.",
     make<Orvane::Tessel::TesselLineEdit>},
    {widgets, "OvPixmapWidget", toolkit, QSize(120, 80), "Picture, which may be animated",
     "Shows the image file of its property moviePath, scaled to its size.", make<OvPixmapWidget>},
    {widgets, "PropertyProviderBase", nullptr, own, "Properties that a style sheet sets",
     "A hidden child of the widget it serves.", make<PropertyProviderBase>},
};

} // namespace

DesignerPlugin::DesignerPlugin(QObject* parent)
    : QObject(parent)
{
    for (const ComponentInfo& component : components) {
        m_components.append(new Component(component, this));
    }
}

QList<QDesignerCustomWidgetInterface*> DesignerPlugin::customWidgets() const
{
    return m_components;
}
