#include "TestMain.h"

#include <WidgetToolkit/LayoutController.h>
#include <WidgetToolkit/OvGridLayout.h>

#include <functional>

namespace {

/// A controller of whatever layout it is given.
class PlainController : public LayoutController
{
public:
    explicit PlainController(QLayout* ofLayout = nullptr)
        : layout(ofLayout)
    {
    }

    QLayout* getLayout() const override { return layout; }
    using LayoutController::applyLayoutMetrics;

    QLayout* layout;
};

struct Property
{
    const char* name;
    std::function<int(const LayoutController&)> get;
    std::function<void(LayoutController&, int)> set;
};

const Property properties[] = {
    {"layoutMargin", &LayoutController::layoutMargin, &LayoutController::setLayoutMargin},
    {"layoutMarginLeft", &LayoutController::layoutMarginLeft, &LayoutController::setLayoutMarginLeft},
    {"layoutMarginTop", &LayoutController::layoutMarginTop, &LayoutController::setLayoutMarginTop},
    {"layoutMarginRight", &LayoutController::layoutMarginRight, &LayoutController::setLayoutMarginRight},
    {"layoutMarginBottom", &LayoutController::layoutMarginBottom, &LayoutController::setLayoutMarginBottom},
    {"layoutSpacing", &LayoutController::layoutSpacing, &LayoutController::setLayoutSpacing},
    {"layoutHorizontalSpacing", &LayoutController::layoutHorizontalSpacing,
     &LayoutController::setLayoutHorizontalSpacing},
    {"layoutVerticalSpacing", &LayoutController::layoutVerticalSpacing,
     &LayoutController::setLayoutVerticalSpacing},
};

class CountingLayout : public QHBoxLayout
{
public:
    void invalidate() override
    {
        ++invalidations;
        QHBoxLayout::invalidate();
    }
    int invalidations = 0;
};

} // namespace

class tst_LayoutController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propertyWithoutLayout_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(properties)); ++i) {
            QTest::newRow(properties[i].name) << i;
        }
    }

    void propertyWithoutLayout()
    {
        QFETCH(int, index);
        PlainController controller;
        QCOMPARE(properties[index].get(controller), 0);
        properties[index].set(controller, 9);
        QCOMPARE(properties[index].get(controller), 9);
    }

    void unsetPropertyReadsTheLayout()
    {
        QGridLayout layout;
        layout.setContentsMargins(1, 2, 3, 4);
        layout.setHorizontalSpacing(5);
        layout.setVerticalSpacing(6);
        PlainController controller(&layout);
        QCOMPARE(controller.layoutMargin(), 1);
        QCOMPARE(controller.layoutMarginLeft(), 1);
        QCOMPARE(controller.layoutMarginTop(), 2);
        QCOMPARE(controller.layoutMarginRight(), 3);
        QCOMPARE(controller.layoutMarginBottom(), 4);
        QCOMPARE(controller.layoutSpacing(), 5);
        QCOMPARE(controller.layoutHorizontalSpacing(), 5);
        QCOMPARE(controller.layoutVerticalSpacing(), 6);
    }

    void unsetPropertyLeavesTheLayoutAlone()
    {
        QGridLayout layout;
        layout.setContentsMargins(1, 2, 3, 4);
        layout.setHorizontalSpacing(5);
        layout.setVerticalSpacing(6);
        PlainController controller(&layout);
        controller.setLayoutMarginTop(20);
        controller.setLayoutVerticalSpacing(60);
        QCOMPARE(layout.contentsMargins(), QMargins(1, 20, 3, 4));
        QCOMPARE(layout.horizontalSpacing(), 5);
        QCOMPARE(layout.verticalSpacing(), 60);
    }

    void marginsReachTheirSide()
    {
        QHBoxLayout layout;
        layout.setContentsMargins(0, 0, 0, 0);
        PlainController controller(&layout);
        controller.setLayoutMarginLeft(1);
        QCOMPARE(layout.contentsMargins(), QMargins(1, 0, 0, 0));
        controller.setLayoutMarginTop(2);
        QCOMPARE(layout.contentsMargins(), QMargins(1, 2, 0, 0));
        controller.setLayoutMarginRight(3);
        QCOMPARE(layout.contentsMargins(), QMargins(1, 2, 3, 0));
        controller.setLayoutMarginBottom(4);
        QCOMPARE(layout.contentsMargins(), QMargins(1, 2, 3, 4));
    }

    void laterMarginWins()
    {
        QHBoxLayout layout;
        PlainController controller(&layout);
        controller.setLayoutMargin(7);
        QCOMPARE(layout.contentsMargins(), QMargins(7, 7, 7, 7));
        QCOMPARE(controller.layoutMargin(), 7);
        controller.setLayoutMarginTop(1);
        QCOMPARE(layout.contentsMargins(), QMargins(7, 1, 7, 7));
        controller.setLayoutMargin(3);
        QCOMPARE(layout.contentsMargins(), QMargins(3, 3, 3, 3));
    }

    void spacingOfARow()
    {
        QHBoxLayout layout;
        layout.setSpacing(0);
        PlainController controller(&layout);
        controller.setLayoutVerticalSpacing(9);
        QCOMPARE(layout.spacing(), 0);
        controller.setLayoutHorizontalSpacing(4);
        QCOMPARE(layout.spacing(), 4);
        controller.setLayoutSpacing(6);
        QCOMPARE(layout.spacing(), 6);
    }

    void spacingOfAColumn()
    {
        QVBoxLayout layout;
        layout.setSpacing(0);
        PlainController controller(&layout);
        controller.setLayoutHorizontalSpacing(9);
        QCOMPARE(layout.spacing(), 0);
        controller.setLayoutVerticalSpacing(4);
        QCOMPARE(layout.spacing(), 4);
        layout.setDirection(QBoxLayout::BottomToTop);
        controller.setLayoutSpacing(6);
        QCOMPARE(layout.spacing(), 6);
    }

    void spacingOfAGrid()
    {
        OvGridLayout layout(nullptr);
        PlainController controller(&layout);
        controller.setLayoutHorizontalSpacing(2);
        controller.setLayoutVerticalSpacing(3);
        QCOMPARE(layout.horizontalSpacing(), 2);
        QCOMPARE(layout.verticalSpacing(), 3);
        QCOMPARE(controller.layoutSpacing(), 2);
        controller.setLayoutSpacing(6);
        QCOMPARE(layout.horizontalSpacing(), 6);
        QCOMPARE(layout.verticalSpacing(), 6);
    }

    void negativeValuesAreIgnored()
    {
        QHBoxLayout layout;
        PlainController controller(&layout);
        for (const Property& property : properties) {
            property.set(controller, 5);
            property.set(controller, -1);
            property.set(controller, std::numeric_limits<int>::min());
            QCOMPARE(property.get(controller), 5);
        }
        QCOMPARE(layout.contentsMargins(), QMargins(5, 5, 5, 5));
        QCOMPARE(layout.spacing(), 5);
    }

    void valuesSetBeforeTheLayoutAreApplied()
    {
        PlainController controller;
        controller.setLayoutMarginLeft(8);
        controller.setLayoutSpacing(4);
        controller.applyLayoutMetrics();
        QVBoxLayout layout;
        layout.setContentsMargins(0, 0, 0, 0);
        controller.layout = &layout;
        controller.applyLayoutMetrics();
        QCOMPARE(layout.contentsMargins(), QMargins(8, 0, 0, 0));
        QCOMPARE(layout.spacing(), 4);
    }

    void valuesHoldAgainstCode()
    {
        QHBoxLayout layout;
        PlainController controller(&layout);
        for (const int margin : {8, 0}) {
            const QMargins margins(margin, margin, margin, margin);
            controller.setLayoutMargin(margin);
            QCOMPARE(layout.contentsMargins(), margins);
            layout.setContentsMargins(3, 3, 3, 3);
            QCOMPARE(controller.layoutMargin(), margin);
            controller.applyLayoutMetrics();
            QCOMPARE(layout.contentsMargins(), margins);
            // A sheet writes its values again whenever the widget is polished.
            layout.setContentsMargins(3, 3, 3, 3);
            controller.setLayoutMargin(margin);
            QCOMPARE(layout.contentsMargins(), margins);
        }
    }

    void nothingIsWrittenWhereNothingDiffers()
    {
        CountingLayout layout;
        PlainController controller(&layout);
        controller.setLayoutMargin(8);
        controller.setLayoutSpacing(2);
        layout.invalidations = 0;
        controller.setLayoutMargin(8);
        controller.setLayoutSpacing(2);
        controller.applyLayoutMetrics();
        QCOMPARE(layout.invalidations, 0);
    }
};

UIC_TEST_MAIN(tst_LayoutController)
#include "tst_LayoutController.moc"
