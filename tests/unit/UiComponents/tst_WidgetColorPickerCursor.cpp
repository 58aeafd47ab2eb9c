#include "TestMain.h"

#include <UiComponents/WidgetColorPickerCursor.h>

#include <memory>

class tst_WidgetColorPickerCursor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bringsTheFormerCursorBack()
    {
        QWidget widget;
        widget.setCursor(Qt::IBeamCursor);
        {
            const WidgetColorPickerCursor guard(&widget, Qt::CrossCursor);
            QCOMPARE(widget.cursor().shape(), Qt::CrossCursor);
        }
        QCOMPARE(widget.cursor().shape(), Qt::IBeamCursor);
    }

    void widgetWithoutACursorFollowsItsParentAgain()
    {
        QWidget parent;
        parent.setCursor(Qt::IBeamCursor);
        QWidget child(&parent);
        {
            const WidgetColorPickerCursor guard(&child, Qt::CrossCursor);
            QCOMPARE(child.cursor().shape(), Qt::CrossCursor);
        }
        QCOMPARE(child.cursor().shape(), Qt::IBeamCursor);
        parent.setCursor(Qt::WaitCursor);
        QCOMPARE(child.cursor().shape(), Qt::WaitCursor);
    }

    // A guard that took a dead widget for none would take away an override cursor of the application's.
    void widgetDiesFirst()
    {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        {
            auto widget = std::make_unique<QWidget>();
            const WidgetColorPickerCursor guard(widget.get(), Qt::CrossCursor);
            widget.reset();
        }
        QVERIFY(QGuiApplication::overrideCursor());
        QGuiApplication::restoreOverrideCursor();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void severalOnOneWidget_data()
    {
        QTest::addColumn<QVector<int>>("order");
        QTest::addColumn<bool>("hasOwnCursor");
        const QVector<QVector<int>> orders = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2},
                                              {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
        for (const QVector<int>& order : orders) {
            for (const bool hasOwnCursor : {true, false}) {
                QTest::addRow("%d, %d, %d, %s", order.at(0), order.at(1), order.at(2),
                              hasOwnCursor ? "own cursor" : "inherited cursor")
                    << order << hasOwnCursor;
            }
        }
    }

    // Each records the cursor of the one before as the former one.
    void severalOnOneWidget()
    {
        QFETCH(const QVector<int>, order);
        QFETCH(const bool, hasOwnCursor);
        QWidget parent;
        QWidget widget(&parent);
        QWidget other(&parent);
        if (hasOwnCursor) {
            widget.setCursor(Qt::IBeamCursor);
        }
        const WidgetColorPickerCursor otherGuard(&other, Qt::WaitCursor);
        const QVector<Qt::CursorShape> shapes = {Qt::CrossCursor, Qt::PointingHandCursor, Qt::OpenHandCursor};
        std::unique_ptr<WidgetColorPickerCursor> guards[3];
        for (int i = 0; i < 3; ++i) {
            guards[i] = std::make_unique<WidgetColorPickerCursor>(&widget, shapes.at(i));
            QCOMPARE(widget.cursor().shape(), shapes.at(i));
        }
        for (const int next : order) {
            guards[next].reset();
            // The cursor is that of the latest one that is left.
            for (int i = 2; i >= 0; --i) {
                if (guards[i]) {
                    QCOMPARE(widget.cursor().shape(), shapes.at(i));
                    break;
                }
            }
        }
        QCOMPARE(widget.cursor().shape(), hasOwnCursor ? Qt::IBeamCursor : Qt::ArrowCursor);
        QCOMPARE(widget.testAttribute(Qt::WA_SetCursor), hasOwnCursor);
        QCOMPARE(other.cursor().shape(), Qt::WaitCursor);
    }
};

UIC_TEST_MAIN(tst_WidgetColorPickerCursor)
#include "tst_WidgetColorPickerCursor.moc"
