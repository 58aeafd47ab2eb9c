#include "../Page.h"
#include "../PageRegistry.h"

#include <DesignElements/TesselElegantSlider.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/Util.h>

using Orvane::Tessel::TesselElegantSlider;

namespace {

/// Shows a horizontal and a vertical @p Slider and returns the horizontal one.
template <typename Slider>
Twins<Slider> addSliders(Page* page, int value)
{
    page->properties()->addHeading(PageRegistry::tr("Horizontal"));
    auto horizontal = page->addTwins<Slider>(PageRegistry::tr("Horizontal"), [value](Slider* slider) {
        slider->setOrientation(Qt::Horizontal);
        slider->setValue(value);
    });
    page->addTwins<Slider>(PageRegistry::tr("Vertical"), [value](Slider* slider) {
        constexpr int height = 90;
        slider->setOrientation(Qt::Vertical);
        slider->setValue(value);
        slider->setFixedHeight(height);
    });
    page->signalLog()->watch(horizontal.enabled, "slider");
    return horizontal;
}

/// Shows a slider and a spin box that are bound to each other.
template <typename Slider, typename SpinBox>
Twins<OvFrame> addPair(Page* page, const QString& caption)
{
    return page->addTwins<OvFrame>(caption, [](OvFrame* frame) {
        constexpr int gap = 8;
        frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        auto* slider = new Slider(frame);
        slider->setOrientation(Qt::Horizontal);
        auto* spinBox = new SpinBox(frame);
        (new OvHBoxLayout(frame))
            ->addItems({{slider, 1}, {LayoutHelpers::SpacerPolicy::Fixed, gap}, {spinBox, 0}});
        Util::bindWidgets(slider, spinBox);
    });
}

} // namespace

void PageRegistry::sliderInput(Page* page)
{
    constexpr int max = 100;
    constexpr int startValue = 25;
    const auto fields = page->addTwins(QString(), [](QWidget* parent) {
        auto* field = new SliderInputWidget(parent, {-max, max});
        field->setValue(startValue);
        return field;
    });

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("setValue()"));
    panel->addNumber(tr("Value"), -2 * max, 2 * max, startValue, fields.setter(&SliderInputWidget::setValue));
    panel->addHeading(QStringLiteral("OvFrame"));
    panel->addProperties(fields);
    page->signalLog()->watch(fields.enabled, "field");
    page->describeStyling(fields.enabled, tr("A frame around a slider and a spin box without arrows."));
}

void PageRegistry::doubleSliderInput(Page* page)
{
    constexpr double max = 1;
    constexpr double startValue = 0.29;
    const auto addFields = [page](const QString& caption, int decimals) {
        return page->addTwins(caption, [decimals](QWidget* parent) {
            auto* field = new DoubleSliderInputWidget(parent, {-max, max, decimals});
            field->setValue(startValue);
            return field;
        });
    };
    const auto fields = addFields(tr("Two decimals"), 2);
    const auto fine = addFields(tr("Six decimals"), 6);

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("setValue()"));
    panel->addFraction(tr("Value"), -2 * max, 2 * max, startValue, [fields, fine](double value) {
        fields.setter (&DoubleSliderInputWidget::setValue)(value);
        fine.setter (&DoubleSliderInputWidget::setValue)(value);
    });
    panel->addHeading(QStringLiteral("OvFrame"));
    panel->addProperties(fields);
    page->signalLog()->watch(fields.enabled, "field");
    page->signalLog()->watch(fine.enabled, "fineField");
    page->describeStyling(fields.enabled, tr("A frame around a slider and a spin box without arrows."));
}

void PageRegistry::spinBox(Page* page)
{
    const auto addBoxes = [page](const QString& caption, const QString& suffix) {
        return page->addTwins<OvSpinBox>(caption, [&suffix](OvSpinBox* box) {
            constexpr int startValue = 24;
            box->setSuffix(suffix);
            box->setValue(startValue);
        });
    };
    const auto plain = addBoxes(tr("A number"), QString());
    addBoxes(tr("With a unit"), QStringLiteral(" px"));

    page->properties()->addHeading(tr("A number"));
    page->properties()->addProperties(plain, {"value", "minimum", "maximum", "singleStep", "prefix", "suffix",
                                              "wrapping", "readOnly", "buttonSymbols", "specialValueText"});
    page->signalLog()->watch(plain.enabled, "spinBox");
    page->describeStyling(plain.enabled,
                          tr("As QSpinBox, with its sub-controls, or alone by its class name."));
}

void PageRegistry::doubleSpinBox(Page* page)
{
    const auto addBoxes = [page](const QString& caption, bool acceptsBothMarks) {
        return page->addTwins<OvDoubleSpinBox>(caption, [acceptsBothMarks](OvDoubleSpinBox* box) {
            constexpr double startValue = 23.976;
            box->setDecimals(3);
            box->setValue(startValue);
            box->setBothDecimalMarksAccepted(acceptsBothMarks);
        });
    };
    const auto plain = addBoxes(tr("The language's decimal mark"), false);
    const auto both = addBoxes(tr("Point and comma"), true);

    page->properties()->addHeading(tr("Point and comma"));
    page->properties()->addProperties(both, {"bothDecimalMarksAccepted", "value", "decimals", "minimum",
                                             "maximum", "singleStep", "prefix", "suffix", "readOnly"});
    page->signalLog()->watch(plain.enabled, "plain");
    page->signalLog()->watch(both.enabled, "both");
    page->describeStyling(both.enabled,
                          tr("As QDoubleSpinBox, with its sub-controls, or alone by its class name."));
}

void PageRegistry::customSlider(Page* page)
{
    const auto sliders = addSliders<OvCustomSlider>(page, 40);
    page->properties()->addProperties(sliders,
                                      {"value", "minimum", "maximum", "singleStep", "pageStep", "tracking",
                                       "invertedAppearance", "tickPosition", "tickInterval"});
    page->describeStyling(
        sliders.enabled,
        tr("As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name."));
}

void PageRegistry::doubleSlider(Page* page)
{
    const auto sliders = page->addTwins<OvDoubleSlider>(QString(), [](OvDoubleSlider* slider) {
        constexpr double multiplier = 0.1;
        constexpr double startValue = 3.75;
        slider->setOrientation(Qt::Horizontal);
        slider->setMultiplier(multiplier);
        slider->setDoubleValue(startValue);
    });
    page->properties()->addProperties(
        sliders, {"doubleValue", "multiplier", "value", "minimum", "maximum", "singleStep", "pageStep"});
    page->signalLog()->watch(sliders.enabled, "slider");
    page->describeStyling(sliders.enabled, tr("As OvCustomSlider and QSlider, or alone by its class name."));
}

void PageRegistry::elegantSlider(Page* page)
{
    const auto sliders = addSliders<TesselElegantSlider>(page, 60);
    page->properties()->addProperties(
        sliders, {"value", "minimum", "maximum", "singleStep", "tracking", "invertedAppearance"});
    page->describeStyling(sliders.enabled, tr("As OvCustomSlider, with ::groove, ::handle, ::add-page and "
                                              "::sub-page, or alone by its class name."));
}

void PageRegistry::boundWidgets(Page* page)
{
    constexpr int decimals = 2;
    const auto numbers = addPair<OvCustomSlider, OvSpinBox>(page, tr("Whole numbers"));
    const auto fractions = addPair<OvDoubleSlider, OvDoubleSpinBox>(page, tr("Fractions"));
    const auto sliders = numbers.children<OvCustomSlider>();
    const auto spinBoxes = numbers.children<OvSpinBox>();
    const auto doubleSliders = fractions.children<OvDoubleSlider>();
    const auto doubleSpinBoxes = fractions.children<OvDoubleSpinBox>();
    sliders.setter (&OvCustomSlider::setValue)(25);
    doubleSpinBoxes.setter (&OvDoubleSpinBox::setDecimals)(decimals);
    doubleSliders.setter (&OvDoubleSlider::setMultiplier)(0.01);
    doubleSliders.setter (&OvDoubleSlider::setDoubleValue)(0.5);

    const auto describeBinding = [page](OvFrame* frame, const QString& slider, const QString& spinBox) {
        page->describeCode(frame, [slider, spinBox] {
            return QStringList{QStringLiteral("#include <WidgetToolkit/Util.h>"),
                               QStringLiteral("Util::bindWidgets($->findChild<%1*>(), $->findChild<%2*>());")
                                   .arg(slider, spinBox)};
        });
    };
    describeBinding(numbers.enabled, QStringLiteral("OvCustomSlider"), QStringLiteral("OvSpinBox"));
    describeBinding(fractions.enabled, QStringLiteral("OvDoubleSlider"), QStringLiteral("OvDoubleSpinBox"));

    PropertyPanel* const panel = page->properties();
    panel->addHeading(tr("Fractions"));
    panel->addNumber(QStringLiteral("decimals"), 0, 9, decimals,
                     doubleSpinBoxes.setter(&OvDoubleSpinBox::setDecimals));
    panel->addProperties(doubleSliders, {"multiplier", "doubleValue", "minimum", "maximum", "singleStep"});
    panel->addHeading(tr("Whole numbers"));
    panel->addProperties(sliders, {"value", "minimum", "maximum", "singleStep"});
    page->signalLog()->watch(sliders.enabled, "slider");
    page->signalLog()->watch(spinBoxes.enabled, "spinBox");
    page->signalLog()->watch(doubleSliders.enabled, "doubleSlider");
    page->signalLog()->watch(doubleSpinBoxes.enabled, "doubleSpinBox");
}
