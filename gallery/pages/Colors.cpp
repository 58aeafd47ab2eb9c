#include "../BlendStage.h"
#include "../Labels.h"
#include "../Page.h"
#include "../PageRegistry.h"
#include "../PickerChoice.h"

#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/ColorPlaneWidget.h>
#include <UiComponents/CustomColorSelectWidget.h>

#include <QTimer>

namespace {

// A colour plane has no size hint: without a sheet it would have no size.
constexpr QSize minPlaneSize(220, 160);

/// Adds controls of the colour that @p set sets.
void addColorActions(PropertyPanel* panel, const QColor& color, const std::function<void(const QColor&)>& set)
{
    panel->addColor(PageRegistry::tr("Colour"), color, set);
    panel->addAction(PageRegistry::tr("No colour"), [set] { set(QColor()); });
}

/// Shows below each of @p twins the colour that its signal @p changed reported last.
template <typename Widget, typename Signal>
void addReportedColor(Page* page, const Twins<Widget>& twins, Signal changed)
{
    const auto labels =
        page->addTwins(PageRegistry::tr("The colour that it reported last"), [](QWidget* parent) {
            return makeLabel("reportedColor", PageRegistry::tr("nothing yet"), parent);
        });
    const auto connectTo = [changed](const Widget* widget, QLabel* label) {
        QObject::connect(widget, changed, label, [label](const QColor& color) {
            const QString swatch = QString(8, QChar::Nbsp);
            label->setText(color.isValid()
                               ? QStringLiteral("<span style=\"background-color: %1\">%2</span> %1")
                                     .arg(color.name(), swatch)
                               : QStringLiteral("#null"));
        });
    };
    connectTo(twins.enabled, labels.enabled);
    connectTo(twins.disabled, labels.disabled);
}

/// Calls @p set after the first layout of the page, since a plane places its marker in its present size, and
/// before a picture.
void setWhenLaidOut(Page* page, const std::function<void()>& set)
{
    QObject::connect(page, &Page::shown, page, [page, set] { QTimer::singleShot(0, page, set); });
    QObject::connect(page, &Page::pictureRequested, page, set);
}

} // namespace

void PageRegistry::colorPickerButton(Page* page)
{
    const QColor sample(47, 111, 222);
    const auto addButtons = [page](const QString& caption, const std::optional<QColor>& color) {
        return page->addTwins<ColorPickerButton>(
            caption, [&color](ColorPickerButton* button) { button->setColor(color); });
    };
    const auto buttons = addButtons(tr("A colour"), sample);
    const auto empty = addButtons(tr("No colour"), QColor());
    const auto mixed = addButtons(tr("Several colours"), std::nullopt);

    PropertyPanel* const panel = page->properties();
    const auto setColor = buttons.setter(&ColorPickerButton::setColor);
    panel->addHeading(QStringLiteral("setColor()"));
    addColorActions(panel, sample, setColor);
    panel->addAction(tr("Several colours"), [setColor] { setColor(std::nullopt); });
    new PickerChoice(
        {buttons.enabled, empty.enabled, mixed.enabled, buttons.disabled, empty.disabled, mixed.disabled},
        page);
    panel->addHeading(tr("Picking"));
    panel->addAction(QStringLiteral("startPicking()"), buttons.enabled.data(),
                     &ColorPickerButton::startPicking);
    panel->addAction(QStringLiteral("stopPicking()"), buttons.enabled.data(),
                     &ColorPickerButton::stopPicking);
    page->signalLog()->watch(buttons.enabled, "button");
    page->describeStyling(buttons.enabled, tr("The face is a child of its own; the button says by dynamic "
                                              "properties when it has no colour, or several."));
}

void PageRegistry::colorInput(Page* page)
{
    const QColor sample(226, 92, 60);
    const auto fields = page->addTwins(tr("Click it to pick a colour"), [sample](QWidget* parent) {
        return new ColorInputWidget(parent, sample);
    });

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("setColor()"));
    addColorActions(panel, sample, fields.setter(&ColorInputWidget::setColor));
    const auto buttons = fields.children<ColorPickerButton>();
    new PickerChoice({buttons.enabled, buttons.disabled}, page);
    panel->addHeading(QStringLiteral("OvFrame"));
    panel->addProperties(fields);
    page->signalLog()->watch(fields.enabled, "field");
    page->signalLog()->watch(fields.enabled->anchorWidget(), "anchorWidget");
    page->describeStyling(fields.enabled, tr("A frame around one colour button."));
}

void PageRegistry::colorPanel(Page* page)
{
    const QColor sample(255, 93, 0);
    // The panel is to be seen without scrolling.
    page->setMaxSpecimenShare(0.72);
    const auto panels = page->addTwins(tr("Choose a colour"), [sample](QWidget* parent) {
        auto* widget = new ColorPickerWidget(parent, true);
        widget->setCurrentColor(sample);
        return widget;
    });

    PropertyPanel* const panel = page->properties();
    const auto setColor = panels.setter(&ColorPickerWidget::setCurrentColor);
    panel->addHeading(QStringLiteral("setCurrentColor()"));
    addColorActions(panel, sample, setColor);
    panel->addAction(tr("Several colours"), [setColor] { setColor(std::nullopt); });
    panel->addSwitch(tr("Opacity can be adjusted"), true,
                     panels.setter(&ColorPickerWidget::setOpacityAdjustmentAvailable));
    panel->addHeading(QStringLiteral("OvFrame"));
    panel->addProperties(panels);
    page->signalLog()->watch(panels.enabled, "panel");
    page->describeStyling(panels.enabled,
                          tr("The parts are selected by their names, and the buttons of colours as children "
                             "of #colorMatrixPanel and #otherColorsQueuePanel; the one for no colour has "
                             "nullColor. The panel itself writes the background-color of these and of the "
                             "preview, opaque: a sheet shapes it with background-clip, and lays a "
                             "background-image over it. The selector is a QDialog with roundedEdges."));
}

void PageRegistry::colorSelector(Page* page)
{
    const auto selectors = page->addTwins<CustomColorSelectWidget>(
        tr("Choose any colour"), [](CustomColorSelectWidget* selector) {
            selector->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        });
    const auto planes = selectors.children<ColorPlaneWidget>(QStringLiteral("colorPlane"));
    planes.each([](ColorPlaneWidget* plane) { plane->setMinimumSize(minPlaneSize); });
    addReportedColor(page, selectors, &CustomColorSelectWidget::colorChanged);

    PropertyPanel* const panel = page->properties();
    const QColor sample(46, 168, 120);
    const auto setColor = selectors.setter(&CustomColorSelectWidget::setColor);
    panel->addHeading(QStringLiteral("setColor()"));
    addColorActions(panel, sample, setColor);
    panel->addHeading(QStringLiteral("colorPlane"));
    panel->addProperties(planes);
    panel->addHeading(QStringLiteral("OvFrame"));
    panel->addProperties(selectors);
    page->signalLog()->watch(selectors.enabled, "selector");
    page->describeStyling(selectors.enabled,
                          tr("What the colour panel opens beside its own colours; internal to the "
                             "library. The margins and gaps of both frames are the sheet's."));
    setWhenLaidOut(page, [setColor, sample] { setColor(sample); });
}

void PageRegistry::colorPlane(Page* page)
{
    const auto planes = page->addTwins<ColorPlaneWidget>(tr("Drag the marker"), [](ColorPlaneWidget* plane) {
        // The name that the free colour selector gives it.
        plane->setObjectName(QStringLiteral("colorPlane"));
        plane->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        plane->setMinimumSize(minPlaneSize);
    });
    addReportedColor(page, planes, &ColorPlaneWidget::hsvColorChanged);

    PropertyPanel* const panel = page->properties();
    const QColor sample(47, 111, 222);
    constexpr int maxHue = 360;
    const auto setColor = planes.setter(&ColorPlaneWidget::setHsvColor);
    panel->addColor(QStringLiteral("setHsvColor()"), sample, setColor);
    panel->addNumber(QStringLiteral("setHue()"), 0, maxHue, sample.hue(),
                     planes.setter(&ColorPlaneWidget::setHue));
    panel->addProperties(planes);
    page->signalLog()->watch(planes.enabled, "plane");
    page->describeStyling(planes.enabled,
                          tr("The square of the free colour selector, and internal to the library. It asks "
                             "for no room: min-width and min-height give it some."));
    setWhenLaidOut(page, [setColor, sample] { setColor(sample); });
}

void PageRegistry::blendingModes(Page* page)
{
    const auto stages = page->addTwins<BlendStage>(tr("Choose a mode"));
    const auto boxes = stages.children<ColorBlendingComboBox>();
    const auto canvases = stages.children<BlendCanvas>();

    PropertyPanel* const panel = page->properties();
    constexpr int maxMode = 13;
    panel->addNumber(tr("Mode by its number"), 0, maxMode, static_cast<int>(BlendingMode::SourceOver),
                     stages.setter([](BlendStage* stage, int number) {
                         stage->setMode(static_cast<BlendingMode>(number));
                     }));
    panel->addFraction(tr("Opacity of the layer"), 0, 1, 1, canvases.setter(&BlendCanvas::setOpacity));
    panel->addAction(QStringLiteral("showPopup()"), boxes.enabled.data(), &ColorBlendingComboBox::showPopup);
    page->signalLog()->watch(boxes.enabled, "blendingModes");
    page->describeStyling(boxes.enabled, tr("As OvComboBox in the look of the design system, or alone by its "
                                            "class name; its list is #tesselComboBoxView."));
}
