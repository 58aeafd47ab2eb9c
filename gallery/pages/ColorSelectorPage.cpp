#include "ColorSelectorPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "ReportedColor.h"

#include <UiComponents/ColorPlaneWidget.h>
#include <UiComponents/CustomColorSelectWidget.h>

#include <QTimer>

namespace {

const QColor SampleColor(46, 168, 120);

ColorPlaneWidget* planeOf(const QWidget* selector)
{
    return selector->findChild<ColorPlaneWidget*>(QStringLiteral("colorPlane"));
}

CustomColorSelectWidget* makeSelector(QWidget* parent)
{
    auto* selector = new CustomColorSelectWidget(parent);
    selector->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // It asks for no room of its own, and without a sheet it would have none.
    planeOf(selector)->setMinimumSize(220, 160);
    return selector;
}

} // namespace

PageInfo ColorSelectorPage::info()
{
    return {QStringLiteral("color-selector"),
            tr("Free colour selector"),
            PageGroup::Colour,
            {tr("colour"), tr("custom"), tr("hue"), tr("slider"), QStringLiteral("HSV")},
            {QStringLiteral("CustomColorSelectWidget")},
            &createPage<ColorSelectorPage>};
}

ColorSelectorPage::ColorSelectorPage(QWidget* parent)
    : Page(info(),
           tr("A colour plane above a slider for its hue: one chooser for any colour. A colour that code "
              "sets appears on the next turn of the event loop."),
           parent)
    , m_selectors(addTwins<CustomColorSelectWidget>(tr("Choose any colour"), &makeSelector))
    , m_color(SampleColor)
{
    const auto reported = addTwins<ReportedColor>(tr("The colour that it reported last"));
    connect(m_selectors.enabled, &CustomColorSelectWidget::colorChanged, reported.enabled,
            &ReportedColor::setColor);
    connect(m_selectors.disabled, &CustomColorSelectWidget::colorChanged, reported.disabled,
            &ReportedColor::setColor);

    properties()->addHeading(QStringLiteral("setColor()"));
    properties()->addColor(tr("Colour"), m_color, [this](const QColor& color) { setColor(color); });
    properties()->addAction(tr("No colour"), [this] { setColor(QColor()); });
    properties()->addHeading(QStringLiteral("colorPlane"));
    properties()->addProperties({planeOf(m_selectors.enabled), planeOf(m_selectors.disabled)});
    properties()->addHeading(QStringLiteral("OvFrame"));
    properties()->addProperties(m_selectors.objects());
    signalLog()->watch(m_selectors.enabled, QStringLiteral("selector"));
    describeStyling(m_selectors.enabled,
                    tr("What the colour panel opens beside its custom colours; internal to the library. The "
                       "margins and gaps of both frames are the sheet's."));
}

void ColorSelectorPage::prepareForPicture()
{
    setColor(m_color);
}

void ColorSelectorPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    // A marker is placed in the plane's present size, and the first layout is yet to come.
    QTimer::singleShot(0, this, [this] { setColor(m_color); });
}

void ColorSelectorPage::setColor(const QColor& color)
{
    m_color = color;
    m_selectors.each([&color](CustomColorSelectWidget* selector) { selector->setColor(color); });
}
