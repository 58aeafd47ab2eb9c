#include "SizedWidget.h"
#include "TestMain.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/PropertyProviderBase.h>
#include <WidgetToolkit/Util.h>

using LayoutHelpers::BoxItem;
using LayoutHelpers::SpacerPolicy;

namespace {

QList<QWidget*> widgetsOf(const QLayout& layout)
{
    QList<QWidget*> widgets;
    for (int i = 0; i < layout.count(); ++i) {
        widgets += layout.itemAt(i)->widget();
    }
    return widgets;
}

} // namespace

class tst_OvBoxLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutMarginsAndSpacing()
    {
        QWidget owner;
        const auto* layout = new OvBoxLayout(QBoxLayout::LeftToRight, &owner);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(owner.layout(), layout);
    }

    void directions()
    {
        QWidget owners[2];
        QCOMPARE((new OvHBoxLayout(&owners[0]))->direction(), QBoxLayout::LeftToRight);
        QCOMPARE((new OvVBoxLayout(&owners[1]))->direction(), QBoxLayout::TopToBottom);
    }

    void horizontalFollowsTheOwnersDirection()
    {
        QWidget owner;
        owner.setLayoutDirection(Qt::RightToLeft);
        auto* first = new SizedWidget(&owner);
        auto* second = new SizedWidget(&owner);
        auto* layout = new OvHBoxLayout(&owner);
        layout->autoFill();
        owner.resize(100, 10);
        layout->activate();
        QCOMPARE(first->geometry(), QRect(50, 0, 50, 10));
        QCOMPARE(second->geometry(), QRect(0, 0, 50, 10));
    }

    void autoFillTakesChildrenInOrder()
    {
        QWidget owner;
        auto* a = new QLabel(&owner);
        // What is no child widget, or none that is to be laid out.
        new QWidget(a);
        new QObject(&owner);
        new QWidget(&owner, Qt::Popup);
        new QWidget(&owner, Qt::Dialog);
        new PropertyProviderBase(&owner);
        QVERIFY(Util::installLayoutController(&owner));
        auto* b = new QWidget(&owner);
        auto* c = new QLabel(&owner);
        auto* layout = new OvVBoxLayout(&owner);
        QCOMPARE(layout->autoFill(), layout);
        QCOMPARE(widgetsOf(*layout), (QList<QWidget*>{a, b, c}));
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(layout->stretch(i), 0);
        }
    }

    void autoFillTakesHiddenChildren()
    {
        QWidget owner;
        auto* hidden = new SizedWidget(&owner);
        auto* shown = new SizedWidget(&owner);
        hidden->hide();
        auto* layout = new OvHBoxLayout(&owner);
        layout->autoFill();
        QCOMPARE(widgetsOf(*layout), (QList<QWidget*>{hidden, shown}));
        QCOMPARE(layout->sizeHint().width(), 20);
        hidden->show();
        QCOMPARE(layout->sizeHint().width(), 40);
    }

    void autoFillLeavesOutWhatIsHeldAlready()
    {
        QWidget owner;
        auto* a = new QWidget(&owner);
        auto* nested = new QWidget(&owner);
        auto* c = new QWidget(&owner);
        auto* layout = new OvVBoxLayout(&owner);
        layout->addWidget(c);
        auto* inner = new OvHBoxLayout(nullptr);
        layout->addLayout(inner);
        inner->addWidget(nested);
        layout->autoFill();
        QCOMPARE(widgetsOf(*layout), (QList<QWidget*>{c, nullptr, a}));
        QCOMPARE(widgetsOf(*inner), QList<QWidget*>{nested});
    }

    void autoFillTwiceAddsNewChildrenOnly()
    {
        QWidget owner;
        auto* a = new QWidget(&owner);
        auto* layout = new OvVBoxLayout(&owner);
        layout->autoFill();
        auto* b = new QWidget(&owner);
        layout->autoFill();
        QCOMPARE(widgetsOf(*layout), (QList<QWidget*>{a, b}));
    }

    void autoFillWithoutOwner()
    {
        OvHBoxLayout layout(nullptr);
        QCOMPARE(layout.autoFill(), &layout);
        QCOMPARE(layout.count(), 0);
    }

    void addStretch_data()
    {
        QTest::addColumn<int>("stretch");
        QTest::newRow("none") << 0;
        QTest::newRow("factor") << 3;
    }

    void addStretch()
    {
        QFETCH(int, stretch);
        QWidget owner;
        auto* widget = new SizedWidget(&owner);
        widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        auto* layout = new OvHBoxLayout(&owner);
        OvBoxLayout* const returned = layout->autoFill()->addStretch(stretch);
        QCOMPARE(returned, layout);
        QCOMPARE(layout->count(), 2);
        QVERIFY(layout->itemAt(1)->spacerItem());
        QCOMPARE(layout->stretch(1), stretch);
        owner.resize(100, 10);
        layout->activate();
        // Even a stretch of 0 takes what a widget does not ask for.
        QCOMPARE(widget->geometry(), QRect(0, 0, 20, 10));
    }

    void addItemsInOrder()
    {
        QWidget owner;
        auto* a = new QWidget(&owner);
        auto* b = new QLabel(&owner);
        auto* layout = new OvHBoxLayout(&owner);
        OvBoxLayout* const returned =
            layout->addItems({BoxItem(SpacerPolicy::Stretch, 1), {a, 0}, {b, 2}, {SpacerPolicy::Fixed, 12}});
        QCOMPARE(returned, layout);
        QCOMPARE(layout->count(), 4);
        QVERIFY(layout->itemAt(0)->spacerItem());
        QCOMPARE(layout->stretch(0), 1);
        QCOMPARE(layout->itemAt(1)->widget(), a);
        QCOMPARE(layout->stretch(1), 0);
        QCOMPARE(layout->itemAt(2)->widget(), b);
        QCOMPARE(layout->stretch(2), 2);
        QVERIFY(layout->itemAt(3)->spacerItem());
        QCOMPARE(layout->stretch(3), 0);
    }

    void addItemsSkipsNullWidgets()
    {
        QWidget owner;
        auto* layout = new OvHBoxLayout(&owner);
        layout->addItems({BoxItem(nullptr, 1)});
        layout->addItems({});
        QCOMPARE(layout->count(), 0);
    }

    void itemsTakeTheirRoom()
    {
        QWidget owner;
        auto* a = new SizedWidget;
        auto* b = new SizedWidget;
        auto* layout = new OvHBoxLayout(&owner);
        layout->addItems({{SpacerPolicy::Stretch, 1},
                          {a, 0},
                          {SpacerPolicy::Fixed, 15},
                          {b, 0},
                          {SpacerPolicy::Fixed, -3}});
        QCOMPARE(a->parentWidget(), &owner);
        QCOMPARE(layout->sizeHint().width(), 55);
        layout->setGeometry(QRect(0, 0, 100, 10));
        QCOMPARE(a->geometry(), QRect(45, 0, 20, 10));
        QCOMPARE(b->geometry(), QRect(80, 0, 20, 10));
        layout->setGeometry(QRect(0, 0, 55, 10));
        QCOMPARE(a->geometry(), QRect(0, 0, 20, 10));
        QCOMPARE(b->x(), 35);
    }
};

UIC_TEST_MAIN(tst_OvBoxLayout)
#include "tst_OvBoxLayout.moc"
