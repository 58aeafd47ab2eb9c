#include "TestMain.h"

#include <EditorWidgets/ColorHint.h>
#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/Util.h>

class tst_ColorHint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hintBecomesStyleHint_data()
    {
        QTest::addColumn<QString>("hint");
        for (const QString& hint : {LIGHT_GREY_ONE, LIGHT_GREY_TWO, WITHOUT_BG1, WITHOUT_BG2, WITHOUT_BG3,
                                    SELECT_LIGHT, INPUT_LIGHT, SLIDER_LIGHT}) {
            QTest::newRow(qPrintable(hint)) << hint;
        }
        QTest::newRow("empty drops the hint") << QString();
    }

    void hintBecomesStyleHint()
    {
        QFETCH(const QString, hint);
        QWidget widget;
        Util::applyStyleHint(&widget, QStringLiteral("error"));
        ColorHint::applyColorHint(&widget, hint);
        QCOMPARE(widget.property("styleHint").toString(), hint);
    }

    void otherTextIsIgnored_data()
    {
        QTest::addColumn<QString>("hint");
        QTest::newRow("no hint at all") << QStringLiteral("PINK");
        QTest::newRow("hint of another kind") << QStringLiteral("guideButton");
        QTest::newRow("lower case") << QStringLiteral("input_light");
        QTest::newRow("blank around") << QStringLiteral(" INPUT_LIGHT");
        QTest::newRow("resource name") << RESOURCE_EMPTY_STREAM;
    }

    void otherTextIsIgnored()
    {
        QFETCH(const QString, hint);
        QWidget widget;
        ColorHint::applyColorHint(&widget, SELECT_LIGHT);
        ColorHint::applyColorHint(&widget, hint);
        QCOMPARE(widget.property("styleHint").toString(), SELECT_LIGHT);
    }

    void sheetSelectsHint()
    {
        QLabel label;
        label.setStyleSheet(QStringLiteral("QLabel { color: #112233; }"
                                           "QLabel[styleHint=\"INPUT_LIGHT\"] { color: #445566; }"));
        label.ensurePolished();
        ColorHint::applyColorHint(&label, INPUT_LIGHT);
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(0x44, 0x55, 0x66));
        ColorHint::applyColorHint(&label, QString());
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(0x11, 0x22, 0x33));
    }

    void nullWidget()
    {
        ColorHint::applyColorHint(nullptr, INPUT_LIGHT);
        ColorHint::applyColorHint(nullptr, QStringLiteral("PINK"));
    }
};

UIC_TEST_MAIN(tst_ColorHint)
#include "tst_ColorHint.moc"
