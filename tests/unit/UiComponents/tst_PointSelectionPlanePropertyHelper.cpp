#include "TestMain.h"

#include <UiComponents/PointSelectionPlanePropertyHelper.h>

class tst_PointSelectionPlanePropertyHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initialValues()
    {
        QWidget plane;
        const auto* helper = new PointSelectionPlanePropertyHelper(&plane);
        QCOMPARE(helper->parentWidget(), &plane);
        QVERIFY(!helper->isVisible());
        QCOMPARE(helper->markerRadius(), 0.0);
        QVERIFY(!helper->markerColor().isValid());
        QVERIFY(!helper->fillColor().isValid());
        QCOMPARE(helper->coordLinesWidth(), 0);
        QVERIFY(!helper->coordLinesColor().isValid());
    }

    void writes_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("MarkerRadius") << QByteArray("MarkerRadius") << QVariant(4.5);
        QTest::newRow("MarkerColor") << QByteArray("MarkerColor") << QVariant(QColor(1, 2, 3, 4));
        QTest::newRow("FillColor") << QByteArray("FillColor") << QVariant(QColor(5, 6, 7));
        QTest::newRow("CoordLinesWidth") << QByteArray("CoordLinesWidth") << QVariant(3);
        QTest::newRow("CoordLinesColor") << QByteArray("CoordLinesColor") << QVariant(QColor(8, 9, 10));
    }

    void writes()
    {
        QFETCH(QByteArray, name);
        QFETCH(QVariant, value);
        const QList<QByteArray> names = {"MarkerRadius", "MarkerColor", "FillColor", "CoordLinesWidth",
                                         "CoordLinesColor"};
        QWidget plane;
        PointSelectionPlanePropertyHelper helper(&plane);
        QHash<QByteArray, QVariant> expected;
        for (const QByteArray& each : names) {
            expected[each] = helper.property(each.constData());
        }
        expected[name] = value;
        QVERIFY(helper.setProperty(name.constData(), value));
        QVERIFY(helper.setProperty(name.constData(), value));
        for (const QByteArray& each : names) {
            QCOMPARE(helper.property(each.constData()), expected[each]);
        }
    }

    void sheetWrites()
    {
        QWidget plane;
        auto* helper = new PointSelectionPlanePropertyHelper(&plane);
        plane.setStyleSheet(
            QStringLiteral("PointSelectionPlanePropertyHelper { qproperty-MarkerRadius: 5.5;"
                           "qproperty-MarkerColor: rgba(1, 2, 3, 255); qproperty-FillColor: #0a0b0c;"
                           "qproperty-CoordLinesWidth: 2; qproperty-CoordLinesColor: red; }"));
        plane.show();
        QCOMPARE(helper->markerRadius(), 5.5);
        QCOMPARE(helper->markerColor(), QColor(1, 2, 3));
        QCOMPARE(helper->fillColor(), QColor(10, 11, 12));
        QCOMPARE(helper->coordLinesWidth(), 2);
        QCOMPARE(helper->coordLinesColor(), QColor(Qt::red));
    }
};

UIC_TEST_MAIN(tst_PointSelectionPlanePropertyHelper)
#include "tst_PointSelectionPlanePropertyHelper.moc"
