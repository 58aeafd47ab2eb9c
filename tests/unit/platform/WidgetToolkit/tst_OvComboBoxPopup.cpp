#include "TestMain.h"

#include <WidgetToolkit/OvComboBoxPopup.h>

class tst_OvComboBoxPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widened_data()
    {
        QTest::addColumn<QRect>("popup");
        QTest::addColumn<int>("width");
        QTest::addColumn<QRect>("box");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QRect>("expected");
        const QRect box(300, 100, 80, 20);
        const QRect popup(300, 120, 80, 90);
        QTest::newRow("wide enough") << popup << 60 << box << Qt::LeftToRight << popup;
        QTest::newRow("grows to the right")
            << popup << 200 << box << Qt::LeftToRight << QRect(300, 120, 200, 90);
        QTest::newRow("grows to the left")
            << popup << 200 << box << Qt::RightToLeft << QRect(180, 120, 200, 90);
        QTest::newRow("stays on the screen, right")
            << popup << 700 << box << Qt::LeftToRight << QRect(100, 120, 700, 90);
        QTest::newRow("stays on the screen, left")
            << popup << 500 << box << Qt::RightToLeft << QRect(0, 120, 500, 90);
        QTest::newRow("no wider than the screen")
            << popup << 2000 << box << Qt::LeftToRight << QRect(0, 120, 800, 90);
        QTest::newRow("below the screen")
            << QRect(300, 560, 80, 90) << 60 << box << Qt::LeftToRight << QRect(300, 510, 80, 90);
        QTest::newRow("above the screen")
            << QRect(300, -20, 80, 90) << 60 << box << Qt::LeftToRight << QRect(300, 0, 80, 90);
    }

    void widened()
    {
        QFETCH(QRect, popup);
        QFETCH(int, width);
        QFETCH(QRect, box);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(QRect, expected);
        QCOMPARE(OvComboBoxPopup::widened(popup, width, box, direction, QRect(0, 0, 800, 600)), expected);

        // The same on a screen with a negative origin.
        const QPoint origin(-1000, -700);
        QCOMPARE(OvComboBoxPopup::widened(popup.translated(origin), width, box.translated(origin), direction,
                                          QRect(origin, QSize(800, 600))),
                 expected.translated(origin));
    }
};

UIC_TEST_MAIN(tst_OvComboBoxPopup)
#include "tst_OvComboBoxPopup.moc"
