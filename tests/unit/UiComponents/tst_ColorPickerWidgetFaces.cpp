#include "OnEvent.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerWidgetFaces.h>

class tst_ColorPickerWidgetFaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleSheets_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("red") << QColor(Qt::red) << QStringLiteral("background-color: #ff0000;");
        QTest::newRow("translucent") << QColor(1, 2, 3, 4) << QStringLiteral("background-color: #010203;");
        QTest::newRow("of another model")
            << QColor::fromHsv(120, 255, 255) << QStringLiteral("background-color: #00ff00;");
        QTest::newRow("none") << QColor() << QStringLiteral("background-color: transparent;");
    }

    void styleSheets()
    {
        QFETCH(QColor, color);
        QFETCH(QString, sheet);
        QCOMPARE(ColorPickerWidgetFaces::styleSheet(color), sheet);
        QWidget face;
        ColorPickerWidgetFaces::paint(&face, color);
        QCOMPARE(face.styleSheet(), sheet);
    }

    void paintIsSeen()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QToolButton { border: none; }"));
        auto* button = new QToolButton(&window);
        button->resize(20, 20);
        ColorPickerWidgetFaces::paint(button, Qt::red);
        QCOMPARE(button->grab().toImage().pixelColor(10, 10), QColor(Qt::red));
        ColorPickerWidgetFaces::paint(button, Qt::green);
        QCOMPARE(button->grab().toImage().pixelColor(10, 10), QColor(Qt::green));
    }

    void paintOfTheSameColorDoesNothing()
    {
        QWidget face;
        int changes = 0;
        const OnEvent onChange(QEvent::StyleChange, &face, [&changes] { ++changes; });
        face.ensurePolished();
        ColorPickerWidgetFaces::paint(&face, Qt::red);
        QVERIFY(changes > 0);
        changes = 0;
        ColorPickerWidgetFaces::paint(&face, QColor(255, 0, 0, 9));
        QCOMPARE(changes, 0);
    }
};

UIC_TEST_MAIN(tst_ColorPickerWidgetFaces)
#include "tst_ColorPickerWidgetFaces.moc"
