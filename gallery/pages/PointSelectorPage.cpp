#include "PointSelectorPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>

#include <QPointF>

#include <memory>

namespace {

constexpr double Minimum = -1.0;
constexpr double Maximum = 1.0;
constexpr int Decimals = 2;
constexpr double SampleX = 0.4;
constexpr double SampleY = -0.3;
constexpr int SizeWithoutSheet = 140;

PointSelectorWidget* makeField(QWidget* parent)
{
    auto* field =
        new PointSelectorWidget(parent, {{Minimum, Minimum}, {Maximum, Maximum}, Decimals, Decimals});
    // The reference sheets give it a size of their own.
    field->findChild<PointSelectionPlane*>()->setMinimumSize(SizeWithoutSheet, SizeWithoutSheet);
    field->setValue({SampleX, SampleY});
    return field;
}

} // namespace

PageInfo PointSelectorPage::info()
{
    return {QStringLiteral("point-selector"),
            tr("Point selector"),
            PageGroup::Inputs,
            {tr("point"), tr("position"), tr("coordinates"), tr("spin box")},
            {QStringLiteral("PointSelectorWidget"), QStringLiteral("PointSelectionPlane")},
            &createPage<PointSelectorPage>};
}

PointSelectorPage::PointSelectorPage(QWidget* parent)
    : Page(info(),
           tr("A point plane and a spin box for each coordinate, kept in step. A point that is picked is "
              "reported as it is, and then as the spin boxes round it."),
           parent)
{
    const auto fields = addTwins<PointSelectorWidget>(QString(), &makeField);
    const auto value = std::make_shared<QPointF>(SampleX, SampleY);
    const auto apply = [fields, value] {
        fields.each([&value](PointSelectorWidget* field) { field->setValue(*value); });
    };
    properties()->addHeading(QStringLiteral("setValue()"));
    properties()->addFraction(QStringLiteral("x"), 2 * Minimum, 2 * Maximum, SampleX,
                              [value, apply](double x) {
                                  value->setX(x);
                                  apply();
                              });
    properties()->addFraction(QStringLiteral("y"), 2 * Minimum, 2 * Maximum, SampleY,
                              [value, apply](double y) {
                                  value->setY(y);
                                  apply();
                              });
    properties()->addHeading(QStringLiteral("OvFrame"));
    properties()->addProperties(fields.objects());
    signalLog()->watch(fields.enabled, QStringLiteral("field"));
    describeStyling(fields.enabled,
                    tr("Frames around a point plane and two labelled spin boxes. The labels are "
                       "empty: the sheet may give them a text, with qproperty-text, or a "
                       "picture."));
}
