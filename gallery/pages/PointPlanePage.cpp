#include "PointPlanePage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/PointSelectionPlane.h>
#include <WidgetToolkit/PropertyProviderBase.h>

#include <QCoreApplication>
#include <QResizeEvent>

namespace {

const QRectF SampleLimits(-1.0, -1.0, 2.0, 2.0);
const QPointF SamplePoint(0.4, -0.3);
constexpr int SizeWithoutSheet = 140;

// Its values are a sheet's business: it does not watch for them.
void showNewValues(PointSelectionPlane* plane)
{
    QResizeEvent event(plane->size(), plane->size());
    QCoreApplication::sendEvent(plane, &event);
    plane->update();
}

PointSelectionPlane* makePlane(QWidget* parent)
{
    auto* plane = new PointSelectionPlane(parent);
    // The reference sheets give it a size of their own.
    plane->setMinimumSize(SizeWithoutSheet, SizeWithoutSheet);
    plane->setLimits(SampleLimits);
    plane->setPoint(SamplePoint);
    return plane;
}

} // namespace

PageInfo PointPlanePage::info()
{
    return {QStringLiteral("point-plane"),
            tr("Point plane"),
            PageGroup::Inputs,
            {tr("point"), tr("position"), tr("pad"), tr("drag")},
            {QStringLiteral("PointSelectionPlane")},
            &createPage<PointPlanePage>};
}

PointPlanePage::PointPlanePage(QWidget* parent)
    : Page(info(),
           tr("A pad on which a point is picked by clicking, dragging, also out of the window, and with the "
              "arrow keys, ten pixels at a time with Shift. Here it stands for -1 to 1 both ways."),
           parent)
{
    const auto planes = addTwins<PointSelectionPlane>(QString(), &makePlane);
    const auto set = [planes](const QPointF& point) {
        planes.each([&point](PointSelectionPlane* plane) { plane->setPoint(point); });
    };
    const auto enabled = planes.enabled;
    properties()->addHeading(QStringLiteral("setPoint()"));
    properties()->addFraction(QStringLiteral("x"), 2 * SampleLimits.left(), 2 * SampleLimits.right(),
                              SamplePoint.x(), [set, enabled](double x) {
                                  if (enabled) {
                                      set({x, enabled->point().y()});
                                  }
                              });
    properties()->addFraction(QStringLiteral("y"), 2 * SampleLimits.top(), 2 * SampleLimits.bottom(),
                              SamplePoint.y(), [set, enabled](double y) {
                                  if (enabled) {
                                      set({enabled->point().x(), y});
                                  }
                              });
    properties()->addHeading(QStringLiteral("setLimits()"));
    properties()->addSwitch(tr("Upside down"), false, [planes](bool isUpsideDown) {
        const QRectF limits =
            isUpsideDown ? QRectF(SampleLimits.bottomRight(), SampleLimits.topLeft()) : SampleLimits;
        planes.each([&limits](PointSelectionPlane* plane) { plane->setLimits(limits); });
    });
    properties()->addHeading(QStringLiteral("PointSelectionPlanePropertyHelper"));
    properties()->addProperties({planes.enabled->findChild<PropertyProviderBase*>(),
                                 planes.disabled->findChild<PropertyProviderBase*>()});
    connect(properties(), &PropertyPanel::edited, this, [planes] { planes.each(&showNewValues); });
    signalLog()->watch(planes.enabled, QStringLiteral("plane"));
    describeStyling(
        planes.enabled,
        tr("Colours and sizes are those of a hidden child, selected by its class name and, where "
           "they differ for a disabled plane, with [enabled=\"false\"]. The sheet gives the plane "
           "its size."));
}
