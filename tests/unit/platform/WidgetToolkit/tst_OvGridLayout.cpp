#include "SizedWidget.h"
#include "TestMain.h"

#include <WidgetToolkit/OvGridLayout.h>

using LayoutHelpers::Alignment;
using LayoutHelpers::CellModifier;
using LayoutHelpers::GridItem;

namespace {

/// A widget with a grid, and widgets to put into it.
class Owner : public QWidget
{
public:
    /// The widgets in the grid, each as "a 0,1 1x2": row and column, row span and column span.
    QStringList cells() const
    {
        QStringList result;
        for (int i = 0; i < grid->count(); ++i) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            const auto* const label = static_cast<QLabel*>(grid->itemAt(i)->widget());
            result +=
                QString("%1 %2,%3 %4x%5").arg(label->text()).arg(row).arg(column).arg(rows).arg(columns);
        }
        return result;
    }

    OvGridLayout* const grid = new OvGridLayout(this);
    QLabel* const a = new QLabel("a", this);
    QLabel* const b = new QLabel("b", this);
    QLabel* const c = new QLabel("c", this);
};

using Build = void (*)(Owner* owner);

} // namespace

Q_DECLARE_METATYPE(LayoutHelpers::Alignment)
Q_DECLARE_METATYPE(Build)
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

    void worksWithoutOwner()
    {
        auto* grid = new OvGridLayout(nullptr);
        QWidget owner;
        auto* label = new QLabel;
        auto* spanning = new QLabel;
        grid->addRow({label}, 0);
        grid->addRow({GridItem(spanning, Alignment::Left), CellModifier::SpanPrevious}, 0);
        owner.setLayout(grid);
        QCOMPARE(label->parentWidget(), &owner);
        QCOMPARE(spanning->parentWidget(), &owner);
    }

    void cells_data()
    {
        QTest::addColumn<Build>("build");
        QTest::addColumn<QStringList>("cells");
        const auto row = [](const char* name, const QStringList& cells, Build build) {
            QTest::newRow(name) << build << cells;
        };
        row("rows", {"a 0,0 1x1", "b 0,1 1x1", "c 1,0 1x1"}, [](Owner* o) {
            QCOMPARE(o->grid->addRow({o->a, o->b}, 0)->addRow({o->c}, 0), o->grid);
        });
        // Written with the numbers of the enumerators, as hosts that keep them in tables do.
        row("rows of items", {"a 0,0 1x2", "b 1,0 1x1", "c 1,1 1x1"}, [](Owner* o) {
            QCOMPARE(o->grid->addRow({GridItem(o->a, Alignment(0)), GridItem(CellModifier(1))}, 0), o->grid);
            o->grid->addRow({o->b, o->c}, 0);
        });
        row("null widgets leave their cell free", {"a 0,1 1x1", "b 1,2 1x1"}, [](Owner* o) {
            o->grid->addRow({nullptr, o->a}, 0);
            o->grid->addRow({GridItem(nullptr, Alignment::Left), GridItem(CellModifier::Empty),
                             GridItem(o->b, Alignment::Left)},
                            0);
        });
        row("empty rows count", {"a 2,0 1x1", "b 4,0 1x1"}, [](Owner* o) {
            const std::initializer_list<QWidget*> nothing;
            o->grid->addRow(nothing, 2)->addRow({nullptr, nullptr}, 0)->addRow({o->a}, 0);
            o->grid->addRow(nothing, 0)->addRow({o->b}, 0);
            QCOMPARE(o->grid->rowStretch(0), 2);
        });
        row("modifiers span the cells before them", {"a 0,0 1x3", "b 0,4 1x2"}, [](Owner* o) {
            o->grid->addRow({GridItem(o->a, Alignment::Default), CellModifier::SpanPrevious,
                             CellModifier::SpanPrevious, CellModifier::Empty,
                             GridItem(o->b, Alignment::Default), CellModifier::SpanPrevious},
                            0);
        });
        row("modifiers in front leave their cells free", {"a 0,0 1x1", "b 1,2 1x1"}, [](Owner* o) {
            o->grid->addRow({o->a}, 0);
            o->grid->addRow(
                {CellModifier::SpanPrevious, CellModifier::SpanPrevious, GridItem(o->b, Alignment::Default)},
                0);
        });
        row("modifiers behind a free cell leave theirs free", {"a 0,0 1x1", "b 0,3 1x1"}, [](Owner* o) {
            o->grid->addRow({GridItem(o->a, Alignment::Default), GridItem(nullptr, Alignment::Default),
                             CellModifier::SpanPrevious, GridItem(o->b, Alignment::Default)},
                            0);
        });
        row("below cells that were added by position", {"a 4,2 1x1", "b 5,0 1x1", "c 6,0 1x1"}, [](Owner* o) {
            o->grid->addWidget(o->a, 4, 2);
            o->grid->addRow({o->b}, 0)->addRow({o->c}, 0);
        });
        row("into a row that was added", {"a 0,0 1x1", "b 0,1 1x1", "c 1,0 1x1"}, [](Owner* o) {
            o->grid->addRow({o->a}, 0);
            o->grid->addWidget(o->b, 0, 1);
            o->grid->addRow({o->c}, 0);
        });
        row("below what spans several rows", {"a 0,0 3x1", "b 3,0 1x1"}, [](Owner* o) {
            o->grid->addWidget(o->a, 0, 0, 3, 1);
            o->grid->addRow({o->b}, 0);
        });
        // QGridLayout counts ten rows from here on.
        row("the stretch of later rows takes no row", {"a 0,0 1x1"}, [](Owner* o) {
            o->grid->setRowStretch(9, 1);
            o->grid->addRow({o->a}, 0);
            QCOMPARE(o->grid->rowStretch(9), 1);
        });
    }

    void cells()
    {
        QFETCH(Build, build);
        QFETCH(QStringList, cells);
        Owner owner;
        build(&owner);
        QCOMPARE(owner.cells(), cells);
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
