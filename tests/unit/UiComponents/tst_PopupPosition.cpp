#include "TestMain.h"

#include <UiComponents/PopupPosition.h>

class tst_PopupPosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void position_data()
    {
        QTest::addColumn<QRect>("field");
        QTest::addColumn<QRect>("screen");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QPoint>("expected");
        const QRect screen(0, 0, 1000, 800);
        QTest::newRow("below") << QRect(100, 100, 50, 20) << screen << Qt::LeftToRight << QPoint(100, 126);
        QTest::newRow("below, right to left")
            << QRect(600, 100, 50, 20) << screen << Qt::RightToLeft << QPoint(250, 126);
        QTest::newRow("above where there is no room below")
            << QRect(100, 600, 50, 20) << screen << Qt::LeftToRight << QPoint(100, 294);
        QTest::newRow("inside on the right")
            << QRect(980, 100, 50, 20) << screen << Qt::LeftToRight << QPoint(600, 126);
        QTest::newRow("inside on the left")
            << QRect(10, 100, 50, 20) << screen << Qt::RightToLeft << QPoint(0, 126);
        QTest::newRow("a screen of negative origin")
            << QRect(-900, 100, 50, 20) << QRect(-1000, 0, 1000, 800) << Qt::LeftToRight << QPoint(-900, 126);
        QTest::newRow("larger than the screen")
            << QRect(10, 10, 5, 5) << QRect(0, 0, 200, 200) << Qt::LeftToRight << QPoint(0, 0);
    }

    void position()
    {
        QFETCH(QRect, field);
        QFETCH(QRect, screen);
        QFETCH(Qt::LayoutDirection, direction);
        QTEST(popupPosition(field, QSize(400, 300), screen, direction), "expected");
    }

    void ofAWidget()
    {
        QWidget window;
        window.setGeometry(100, 50, 300, 200);
        QWidget field(&window);
        field.setGeometry(10, 20, 40, 24);
        window.show();
        const QPoint corner = field.mapToGlobal(QPoint());
        QCOMPARE(popupPosition(&field, QSize(200, 100)), corner + QPoint(0, 24 + 6));
        window.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(popupPosition(&field, QSize(100, 100)), corner + QPoint(40 - 100, 24 + 6));
    }
};

UIC_TEST_MAIN(tst_PopupPosition)
#include "tst_PopupPosition.moc"
