#include "TestMain.h"

#include <WidgetToolkit/LayoutHelpers.h>

#include <QWidget>

using namespace LayoutHelpers;

class tst_LayoutHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersOfTheEnumerators();
    void boxItemWithWidget();
    void boxItemWithSpacer_data();
    void boxItemWithSpacer();
    void negativeNumbersCountAsZero();
    void gridItemWithWidget();
    void gridItemWithModifier();
};

void tst_LayoutHelpers::numbersOfTheEnumerators()
{
    // Hosts write them as numbers.
    QCOMPARE(int(Alignment::Default), 0);
    QCOMPARE(int(CellModifier::SpanPrevious), 1);
    QCOMPARE(int(CellModifier::Empty), 0);
}

void tst_LayoutHelpers::boxItemWithWidget()
{
    QWidget widget;
    const BoxItem item(&widget, 3);
    QVERIFY(!item.isSpacer());
    QCOMPARE(item.widget(), &widget);
    QCOMPARE(item.number(), 3);
    QVERIFY(!BoxItem(nullptr, 0).isSpacer());
    QVERIFY(!BoxItem(nullptr, 0).widget());
}

void tst_LayoutHelpers::boxItemWithSpacer_data()
{
    QTest::addColumn<int>("policy");
    QTest::newRow("stretch") << int(SpacerPolicy::Stretch);
    QTest::newRow("fixed") << int(SpacerPolicy::Fixed);
}

void tst_LayoutHelpers::boxItemWithSpacer()
{
    QFETCH(int, policy);
    const BoxItem item(SpacerPolicy(policy), 7);
    QVERIFY(item.isSpacer());
    QVERIFY(!item.widget());
    QCOMPARE(int(item.policy()), policy);
    QCOMPARE(item.number(), 7);
}

void tst_LayoutHelpers::negativeNumbersCountAsZero()
{
    QWidget widget;
    QCOMPARE(BoxItem(&widget, -1).number(), 0);
    QCOMPARE(BoxItem(SpacerPolicy::Fixed, std::numeric_limits<int>::min()).number(), 0);
    QCOMPARE(BoxItem(SpacerPolicy::Stretch, -5).number(), 0);
}

void tst_LayoutHelpers::gridItemWithWidget()
{
    QWidget widget;
    const GridItem item(&widget, Alignment::Right);
    QCOMPARE(item.widget(), &widget);
    QCOMPARE(int(item.alignment()), int(Alignment::Right));
    QCOMPARE(int(item.modifier()), int(CellModifier::Empty));
}

void tst_LayoutHelpers::gridItemWithModifier()
{
    const GridItem item = CellModifier::SpanPrevious;
    QVERIFY(!item.widget());
    QCOMPARE(int(item.modifier()), int(CellModifier::SpanPrevious));
    QCOMPARE(int(item.alignment()), int(Alignment::Default));
}

UIC_TEST_MAIN(tst_LayoutHelpers)
#include "tst_LayoutHelpers.moc"
