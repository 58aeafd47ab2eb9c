#include "BoxLayoutPage.h"

#include "../PropertyPanel.h"
#include "SampleTile.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvGridLayout.h>

namespace {

OvFrame* makeFrame(QWidget* parent)
{
    auto* frame = new OvFrame(parent);
    frame->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

OvFrame* makeFilled(QWidget* parent)
{
    OvFrame* const frame = makeFrame(parent);
    for (const char* text : {"1", "2", "3"}) {
        new SampleTile(QString::fromUtf8(text), frame);
    }
    (new OvHBoxLayout(frame))->autoFill()->addStretch(1);
    return frame;
}

void fillWithItems(OvFrame* frame, LayoutHelpers::SpacerPolicy policy, int number)
{
    qDeleteAll(frame->findChildren<SampleTile*>());
    delete frame->layout();
    auto* first = new SampleTile(QStringLiteral("1"), frame);
    auto* second = new SampleTile(QStringLiteral("2"), frame);
    auto* wide = new SampleTile(QStringLiteral("× 3"), frame);
    (new OvHBoxLayout(frame))->addItems({{first, 1}, {policy, number}, {second, 1}, {wide, 3}});
    for (SampleTile* tile : {first, second, wide}) {
        tile->show();
    }
}

OvFrame* makeGrid(QWidget* parent)
{
    OvFrame* const frame = makeFrame(parent);
    const auto tile = [frame](const char* text) { return new SampleTile(QString::fromUtf8(text), frame); };
    auto* grid = new OvGridLayout(frame);
    grid->addRow({{tile("1 + 2"), LayoutHelpers::Alignment::Default},
                  LayoutHelpers::CellModifier::SpanPrevious,
                  {tile("3"), LayoutHelpers::Alignment::Right}},
                 0);
    grid->addRow({tile("4"), tile("5"), tile("6")}, 0);
    return frame;
}

OvFrame* makeColumn(QWidget* parent)
{
    OvFrame* const frame = makeFrame(parent);
    for (const char* text : {"A", "B"}) {
        new SampleTile(QString::fromUtf8(text), frame);
    }
    (new OvVBoxLayout(frame))->autoFill();
    return frame;
}

} // namespace

PageInfo BoxLayoutPage::info()
{
    return {QStringLiteral("layouts"),
            tr("Box and grid layouts"),
            PageGroup::Layout,
            {tr("spacer"), tr("stretch"), tr("row"), tr("column"), QStringLiteral("autoFill")},
            {QStringLiteral("OvBoxLayout"), QStringLiteral("OvHBoxLayout"), QStringLiteral("OvVBoxLayout"),
             QStringLiteral("OvGridLayout"), QStringLiteral("LayoutHelpers")},
            &createPage<BoxLayoutPage>};
}

BoxLayoutPage::BoxLayoutPage(QWidget* parent)
    : Page(info(),
           tr("A box layout takes its owner's children in the order in which they were made, or a list of "
              "items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is "
              "filled row by row."),
           parent)
{
    addTwins<OvFrame>(tr("autoFill() and a stretch behind"), &makeFilled);
    const auto items = addTwins<OvFrame>(tr("addItems() with a spacer"), &makeFrame);
    addTwins<OvFrame>(tr("A grid: one cell spans two, one is aligned right"), &makeGrid);
    addTwins<OvFrame>(tr("A column"), &makeColumn);

    struct Spacer
    {
        LayoutHelpers::SpacerPolicy policy = LayoutHelpers::SpacerPolicy::Fixed;
        int number = 40;
    };
    const auto spacer = std::make_shared<Spacer>();
    const auto fill = [items, spacer] {
        items.each([&spacer](OvFrame* frame) { fillWithItems(frame, spacer->policy, spacer->number); });
    };
    fill();
    properties()->addHeading(tr("The spacer behind item 1"));
    properties()->addChoice(tr("Policy"), {tr("Stretch"), tr("Fixed")}, 1, [spacer, fill](int index) {
        spacer->policy = static_cast<LayoutHelpers::SpacerPolicy>(index);
        fill();
    });
    properties()->addNumber(tr("Factor or pixels"), 0, 200, spacer->number, [spacer, fill](int number) {
        spacer->number = number;
        fill();
    });
    properties()->addHeading(tr("The frame around"));
    properties()->addProperties(items.objects());
}
