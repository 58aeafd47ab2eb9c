#include "TestMain.h"

#include <WidgetToolkit/LayoutHelpers.h>

using namespace LayoutHelpers;

class tst_LayoutHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersOfTheEnumerators()
    {
        // Hosts write them as numbers.
        QCOMPARE(int(Alignment::Default), 0);
        QCOMPARE(int(CellModifier::SpanPrevious), 1);
        QCOMPARE(int(CellModifier::Empty), 0);
    }

    void boxItems()
    {
        QWidget widget;
        const BoxItem item(&widget, 3);
        QVERIFY(!item.isSpacer());
        QCOMPARE(item.widget(), &widget);
        QCOMPARE(item.number(), 3);
        QCOMPARE(BoxItem(&widget, -1).number(), 0);
        QVERIFY(!BoxItem(nullptr, 0).isSpacer());
        QVERIFY(!BoxItem(nullptr, 0).widget());
        for (const SpacerPolicy policy : {SpacerPolicy::Stretch, SpacerPolicy::Fixed}) {
            const BoxItem spacer(policy, 7);
            QVERIFY(spacer.isSpacer());
            QVERIFY(!spacer.widget());
            QCOMPARE(int(spacer.policy()), int(policy));
            QCOMPARE(spacer.number(), 7);
            QCOMPARE(BoxItem(policy, -5).number(), 0);
            QCOMPARE(BoxItem(policy, std::numeric_limits<int>::min()).number(), 0);
        }
    }

    void gridItems()
    {
        QWidget widget;
        const GridItem item(&widget, Alignment::Right);
        QCOMPARE(item.widget(), &widget);
        QCOMPARE(int(item.alignment()), int(Alignment::Right));
        QCOMPARE(int(item.modifier()), int(CellModifier::Empty));
        const GridItem spanning = CellModifier::SpanPrevious;
        QVERIFY(!spanning.widget());
        QCOMPARE(int(spanning.modifier()), int(CellModifier::SpanPrevious));
        QCOMPARE(int(spanning.alignment()), int(Alignment::Default));
    }
};

UIC_TEST_MAIN(tst_LayoutHelpers)
#include "tst_LayoutHelpers.moc"
