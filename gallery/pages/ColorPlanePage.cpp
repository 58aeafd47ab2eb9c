#include "ColorPlanePage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "ReportedColor.h"

#include <UiComponents/ColorPlaneWidget.h>

#include <QTimer>

namespace {

const QColor SampleColor(47, 111, 222);
constexpr int LastHue = 360;

ColorPlaneWidget* makePlane(QWidget* parent)
{
    auto* plane = new ColorPlaneWidget(parent);
    // As the colour chooser names it.
    plane->setObjectName(QStringLiteral("colorPlane"));
    plane->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // It asks for no room of its own, and without a sheet it would have none.
    plane->setMinimumSize(220, 160);
    return plane;
}

} // namespace

PageInfo ColorPlanePage::info()
{
    return {QStringLiteral("color-plane"),
            tr("Colour plane"),
            PageGroup::Colour,
            {tr("colour"), tr("saturation"), tr("hue"), tr("marker"), QStringLiteral("HSV")},
            {QStringLiteral("ColorPlaneWidget")},
            &createPage<ColorPlanePage>};
}

ColorPlanePage::ColorPlanePage(QWidget* parent)
    : Page(info(),
           tr("All colours of one hue: saturation grows to the right, brightness upwards. Drag the marker, "
              "also beyond the edge, or move it with the arrow keys, by ten pixels with Shift."),
           parent)
    , m_planes(addTwins<ColorPlaneWidget>(tr("Drag the marker"), &makePlane))
    , m_color(SampleColor)
{
    const auto reported = addTwins<ReportedColor>(tr("The colour that it reported last"));
    connect(m_planes.enabled, &ColorPlaneWidget::hsvColorChanged, reported.enabled, &ReportedColor::setColor);
    connect(m_planes.disabled, &ColorPlaneWidget::hsvColorChanged, reported.disabled,
            &ReportedColor::setColor);

    const Twins<ColorPlaneWidget> planes = m_planes;
    properties()->addColor(QStringLiteral("setHsvColor()"), m_color,
                           [this](const QColor& color) { setColor(color); });
    properties()->addNumber(QStringLiteral("setHue()"), 0, LastHue, m_color.hue(), [planes](int hue) {
        planes.each([hue](ColorPlaneWidget* plane) { plane->setHue(hue); });
    });
    properties()->addProperties(planes.objects());
    signalLog()->watch(planes.enabled, QStringLiteral("plane"));
    describeStyling(planes.enabled,
                    tr("The square of the colour chooser, and internal to the library. It asks for no room: "
                       "min-width and min-height give it some."));
}

void ColorPlanePage::prepareForPicture()
{
    setColor(m_color);
}

void ColorPlanePage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    // A marker is placed in the plane's present size, and the first layout is yet to come.
    QTimer::singleShot(0, this, [this] { setColor(m_color); });
}

void ColorPlanePage::setColor(const QColor& color)
{
    m_color = color;
    m_planes.each([&color](ColorPlaneWidget* plane) { plane->setHsvColor(color); });
}
