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

    void boxItemWithWidget()
    {
        QWidget widget;
        const BoxItem item(&widget, 3);
        QVERIFY(!item.isSpacer());
        QCOMPARE(item.widget(), &widget);
        QCOMPARE(item.number(), 3);
        QVERIFY(!BoxItem(nullptr, 0).isSpacer());
        QVERIFY(!BoxItem(nullptr, 0).widget());
    }

    void boxItemWithSpacer_data()
    {
        QTest::addColumn<int>("policy");
        QTest::newRow("stretch") << int(SpacerPolicy::Stretch);
        QTest::newRow("fixed") << int(SpacerPolicy::Fixed);
    }

    void boxItemWithSpacer()
    {
        QFETCH(int, policy);
        const BoxItem item(SpacerPolicy(policy), 7);
        QVERIFY(item.isSpacer());
        QVERIFY(!item.widget());
        QCOMPARE(int(item.policy()), policy);
        QCOMPARE(item.number(), 7);
    }

    void negativeNumbersCountAsZero()
    {
        QWidget widget;
        QCOMPARE(BoxItem(&widget, -1).number(), 0);
        QCOMPARE(BoxItem(SpacerPolicy::Fixed, std::numeric_limits<int>::min()).number(), 0);
        QCOMPARE(BoxItem(SpacerPolicy::Stretch, -5).number(), 0);
    }

    void gridItemWithWidget()
    {
        QWidget widget;
        const GridItem item(&widget, Alignment::Right);
        QCOMPARE(item.widget(), &widget);
        QCOMPARE(int(item.alignment()), int(Alignment::Right));
        QCOMPARE(int(item.modifier()), int(CellModifier::Empty));
    }

    void gridItemWithModifier()
    {
        const GridItem item = CellModifier::SpanPrevious;
        QVERIFY(!item.widget());
        QCOMPARE(int(item.modifier()), int(CellModifier::SpanPrevious));
        QCOMPARE(int(item.alignment()), int(Alignment::Default));
    }
};

UIC_TEST_MAIN(tst_LayoutHelpers)
#include "tst_LayoutHelpers.moc"
