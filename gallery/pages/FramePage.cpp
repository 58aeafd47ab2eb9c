#include "FramePage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "SampleTile.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/Util.h>

#include <QGroupBox>

namespace {

constexpr int TileCount = 3;

template <typename Widget>
Widget* makeRow(QWidget* parent)
{
    auto* row = new Widget(parent);
    row->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    for (int i = 1; i <= TileCount; ++i) {
        new SampleTile(QString::number(i), row);
    }
    (new OvHBoxLayout(row))->autoFill();
    return row;
}

QObject* controllerOf(QWidget* widget)
{
    return dynamic_cast<QObject*>(Util::installLayoutController(widget));
}

} // namespace

PageInfo FramePage::info()
{
    return {QStringLiteral("frame"),
            tr("Frame and layout controller"),
            PageGroup::Layout,
            {tr("margins"), tr("spacing"), QStringLiteral("qproperty")},
            {QStringLiteral("OvFrame"), QStringLiteral("LayoutController")},
            &createPage<FramePage>};
}

FramePage::FramePage(QWidget* parent)
    : Page(info(),
           tr("Components build their layouts without margins and spacing; the style sheet sets both "
              "through the layout controller. A frame is its own controller, any other widget gets one "
              "installed."),
           parent)
{
    const auto frames = addTwins<OvFrame>(tr("A frame controls its own layout"), &makeRow<OvFrame>);
    frames.each([](OvFrame* frame) { frame->setFrameShape(QFrame::StyledPanel); });
    const auto boxes =
        addTwins<QGroupBox>(tr("A group box with an installed controller"), &makeRow<QGroupBox>);
    const QObjectList controllers = {controllerOf(boxes.enabled), controllerOf(boxes.disabled)};

    properties()->addHeading(QStringLiteral("OvFrame"));
    properties()->addProperties(frames.objects());
    properties()->addHeading(QStringLiteral("InstalledLayoutController"));
    properties()->addProperties(controllers);
    signalLog()->watch(frames.enabled, QStringLiteral("frame"));
    describeStyling(frames.enabled, tr("The base of composite components; a sheet sets the metrics of its "
                                       "layout through its properties."));
    describeStyling({boxes.enabled.data(),
                     tr("Any widget with an installed controller: select the controller by its class name "
                        "below the widget."),
                     {},
                     QStringLiteral("Util::installLayoutController()")});
}
