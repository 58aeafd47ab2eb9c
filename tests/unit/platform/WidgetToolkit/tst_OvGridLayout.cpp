#include "SizedWidget.h"
#include "TestMain.h"

#include <WidgetToolkit/OvGridLayout.h>

#include <QLabel>

using LayoutHelpers::Alignment;
using LayoutHelpers::CellModifier;
using LayoutHelpers::GridItem;

Q_DECLARE_METATYPE(LayoutHelpers::Alignment)

namespace {

/// Row, column, row span and column span of a widget in its grid.
using Cell = std::array<int, 4>;

Cell cellOf(const QGridLayout& grid, QWidget* widget)
{
    Cell cell{-1, -1, -1, -1};
    const int index = grid.indexOf(widget);
    if (index >= 0) {
        grid.getItemPosition(index, &cell[0], &cell[1], &cell[2], &cell[3]);
    }
    return cell;
}

} // namespace

#define COMPARE_CELL(grid, widget, row, column, rowSpan, columnSpan)                                         \
    QVERIFY2((cellOf(*(grid), widget) == Cell{row, column, rowSpan, columnSpan}), #widget)

class tst_OvGridLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutMarginsAndSpacing()
    {
        QWidget owner;
        const auto* grid = new OvGridLayout(&owner);
        QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(grid->horizontalSpacing(), 0);
        QCOMPARE(grid->verticalSpacing(), 0);
    }

    void becomesTheLayoutOfItsOwner()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        QCOMPARE(owner.layout(), grid);
    }

    void worksWithoutOwner()
    {
        auto* grid = new OvGridLayout(nullptr);
        QWidget owner;
        auto* label = new QLabel;
        grid->addRow({label}, 0);
        owner.setLayout(grid);
        QCOMPARE(label->parentWidget(), &owner);
        COMPARE_CELL(grid, label, 0, 0, 1, 1);
    }

    void rowsFollowOneAnother()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* a = new QWidget(&owner);
        auto* b = new QLabel(&owner);
        auto* c = new QWidget(&owner);
        OvGridLayout* const chained = grid->addRow({a, b}, 0)->addRow({c}, 0);
        QCOMPARE(chained, grid);
        COMPARE_CELL(grid, a, 0, 0, 1, 1);
        COMPARE_CELL(grid, b, 0, 1, 1, 1);
        COMPARE_CELL(grid, c, 1, 0, 1, 1);
        QCOMPARE(grid->count(), 3);
    }

    void rowsOfItemsMix()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* title = new QLabel(&owner);
        auto* button = new QWidget(&owner);
        auto* panel = new QWidget(&owner);
        // Written with the numbers of the enumerators, as hosts that keep them in tables do.
        QCOMPARE(grid->addRow({GridItem(title, Alignment(0)), GridItem(CellModifier(1))}, 0), grid);
        grid->addRow({button, panel}, 0);
        COMPARE_CELL(grid, title, 0, 0, 1, 2);
        COMPARE_CELL(grid, button, 1, 0, 1, 1);
        COMPARE_CELL(grid, panel, 1, 1, 1, 1);
    }

    void nullWidgetsLeaveTheirCellFree()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* a = new QWidget(&owner);
        auto* b = new QWidget(&owner);
        grid->addRow({nullptr, a}, 0);
        grid->addRow(
            {GridItem(nullptr, Alignment::Left), GridItem(CellModifier::Empty), GridItem(b, Alignment::Left)},
            0);
        QCOMPARE(grid->count(), 2);
        COMPARE_CELL(grid, a, 0, 1, 1, 1);
        COMPARE_CELL(grid, b, 1, 2, 1, 1);
    }

    void emptyRowsCount()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* a = new QWidget(&owner);
        auto* b = new QWidget(&owner);
        const std::initializer_list<QWidget*> nothing;
        grid->addRow(nothing, 2)->addRow({nullptr, nullptr}, 0)->addRow({a}, 0);
        grid->addRow(nothing, 0)->addRow({b}, 0);
        COMPARE_CELL(grid, a, 2, 0, 1, 1);
        COMPARE_CELL(grid, b, 4, 0, 1, 1);
        QCOMPARE(grid->rowStretch(0), 2);
    }

    void modifierSpansThePreviousCell()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* a = new QWidget(&owner);
        auto* b = new QWidget(&owner);
        grid->addRow(
            {GridItem(a, Alignment::Default), CellModifier::SpanPrevious, GridItem(b, Alignment::Default)},
            0);
        COMPARE_CELL(grid, a, 0, 0, 1, 2);
        COMPARE_CELL(grid, b, 0, 2, 1, 1);
    }

    void severalModifiersSpanFurther()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* a = new QWidget(&owner);
        auto* b = new QWidget(&owner);
        grid->addRow({GridItem(a, Alignment::Default), CellModifier::SpanPrevious, CellModifier::SpanPrevious,
                      CellModifier::Empty, GridItem(b, Alignment::Default), CellModifier::SpanPrevious},
                     0);
        COMPARE_CELL(grid, a, 0, 0, 1, 3);
        COMPARE_CELL(grid, b, 0, 4, 1, 2);
    }

    void modifierAsFirstCellLeavesItFree()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* above = new QWidget(&owner);
        auto* a = new QWidget(&owner);
        grid->addRow({above}, 0);
        grid->addRow(
            {CellModifier::SpanPrevious, CellModifier::SpanPrevious, GridItem(a, Alignment::Default)}, 0);
        COMPARE_CELL(grid, above, 0, 0, 1, 1);
        COMPARE_CELL(grid, a, 1, 2, 1, 1);
        QCOMPARE(grid->count(), 2);
    }

    void modifierBehindFreeCellLeavesItFree()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* a = new QWidget(&owner);
        auto* b = new QWidget(&owner);
        grid->addRow({GridItem(a, Alignment::Default), GridItem(nullptr, Alignment::Default),
                      CellModifier::SpanPrevious, GridItem(b, Alignment::Default)},
                     0);
        COMPARE_CELL(grid, a, 0, 0, 1, 1);
        COMPARE_CELL(grid, b, 0, 3, 1, 1);
    }

    void alignment_data()
    {
        QTest::addColumn<Alignment>("alignment");
        QTest::addColumn<Qt::Alignment>("expected");
        QTest::addColumn<QRect>("geometry");
        QTest::newRow("default fills the cell")
            << Alignment::Default << Qt::Alignment() << QRect(0, 0, 100, 60);
        QTest::newRow("0 is the default") << Alignment(0) << Qt::Alignment() << QRect(0, 0, 100, 60);
        QTest::newRow("left") << Alignment::Left << Qt::Alignment(Qt::AlignLeft) << QRect(0, 0, 20, 60);
        QTest::newRow("horizontal centre")
            << Alignment::HCenter << Qt::Alignment(Qt::AlignHCenter) << QRect(40, 0, 20, 60);
        QTest::newRow("right") << Alignment::Right << Qt::Alignment(Qt::AlignRight) << QRect(80, 0, 20, 60);
        QTest::newRow("top") << Alignment::Top << Qt::Alignment(Qt::AlignTop) << QRect(0, 0, 100, 10);
        QTest::newRow("vertical centre")
            << Alignment::VCenter << Qt::Alignment(Qt::AlignVCenter) << QRect(0, 25, 100, 10);
        QTest::newRow("bottom") << Alignment::Bottom << Qt::Alignment(Qt::AlignBottom)
                                << QRect(0, 50, 100, 10);
        QTest::newRow("centre") << Alignment::Center << Qt::Alignment(Qt::AlignCenter)
                                << QRect(40, 25, 20, 10);
    }

    void alignment()
    {
        QFETCH(Alignment, alignment);
        QFETCH(Qt::Alignment, expected);
        QFETCH(QRect, geometry);
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* widget = new SizedWidget(&owner);
        grid->addRow({GridItem(widget, alignment)}, 0);
        QCOMPARE(grid->itemAt(0)->alignment(), expected);
        owner.resize(100, 60);
        grid->activate();
        QCOMPARE(widget->geometry(), geometry);
    }

    void flagIsTheStretchFactor()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* plain = new SizedWidget(&owner);
        auto* one = new SizedWidget(&owner);
        auto* three = new SizedWidget(&owner);
        auto* negative = new SizedWidget(&owner);
        grid->addRow({plain}, 0)->addRow({one}, 1)->addRow({GridItem(three, Alignment::Default)}, 3);
        grid->addRow({negative}, -7);
        QCOMPARE(grid->rowStretch(0), 0);
        QCOMPARE(grid->rowStretch(1), 1);
        QCOMPARE(grid->rowStretch(2), 3);
        QCOMPARE(grid->rowStretch(3), 0);
        owner.resize(100, 420);
        grid->activate();
        QCOMPARE(plain->height(), 10);
        QCOMPARE(negative->height(), 10);
        QCOMPARE(one->height(), 100);
        QCOMPARE(three->height(), 300);
    }

    void mixesWithCellsAddedByPosition()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* first = new QWidget(&owner);
        auto* positioned = new QWidget(&owner);
        auto* below = new QWidget(&owner);
        auto* intoRow = new QWidget(&owner);
        auto* last = new QWidget(&owner);
        grid->addRow({first}, 0);
        grid->addWidget(positioned, 4, 2);
        grid->addRow({below}, 0);
        grid->addWidget(intoRow, 5, 1);
        grid->addRow({last}, 0);
        COMPARE_CELL(grid, first, 0, 0, 1, 1);
        COMPARE_CELL(grid, positioned, 4, 2, 1, 1);
        COMPARE_CELL(grid, below, 5, 0, 1, 1);
        COMPARE_CELL(grid, intoRow, 5, 1, 1, 1);
        COMPARE_CELL(grid, last, 6, 0, 1, 1);
    }

    void rowGoesBelowWhatSpansSeveralRows()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* tall = new QWidget(&owner);
        auto* below = new QWidget(&owner);
        grid->addWidget(tall, 0, 0, 3, 1);
        grid->addRow({below}, 0);
        COMPARE_CELL(grid, below, 3, 0, 1, 1);
    }

    void stretchOfLaterRowsTakesNoRow()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* first = new QWidget(&owner);
        // QGridLayout counts ten rows from here on.
        grid->setRowStretch(9, 1);
        grid->addRow({first}, 0);
        COMPARE_CELL(grid, first, 0, 0, 1, 1);
        QCOMPARE(grid->rowStretch(9), 1);
    }

    void widgetsAreReparented()
    {
        QWidget owner;
        auto* grid = new OvGridLayout(&owner);
        auto* orphan = new QLabel;
        auto* spanning = new QLabel;
        grid->addRow({orphan}, 0);
        grid->addRow({GridItem(spanning, Alignment::Left), CellModifier::SpanPrevious}, 0);
        QCOMPARE(orphan->parentWidget(), &owner);
        QCOMPARE(spanning->parentWidget(), &owner);
    }

    void rightToLeftStartsAtTheRight()
    {
        QWidget owner;
        owner.setLayoutDirection(Qt::RightToLeft);
        auto* grid = new OvGridLayout(&owner);
        auto* first = new SizedWidget(&owner);
        auto* second = new SizedWidget(&owner);
        auto* left = new SizedWidget(&owner);
        grid->addRow({first, second}, 0);
        grid->addRow({GridItem(left, Alignment::Left), CellModifier::SpanPrevious}, 0);
        owner.resize(100, 20);
        grid->activate();
        QCOMPARE(first->geometry(), QRect(50, 0, 50, 10));
        QCOMPARE(second->geometry(), QRect(0, 0, 50, 10));
        QCOMPARE(left->geometry(), QRect(80, 10, 20, 10));
    }
};

UIC_TEST_MAIN(tst_OvGridLayout)
#include "tst_OvGridLayout.moc"
