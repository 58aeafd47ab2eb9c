#include "TestMain.h"

#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/Util.h>

class tst_StyleHints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsTheName_data()
    {
        QTest::addColumn<QString>("hint");
        QTest::newRow("LIGHT_GREY_ONE") << LIGHT_GREY_ONE;
        QTest::newRow("LIGHT_GREY_TWO") << LIGHT_GREY_TWO;
        QTest::newRow("WITHOUT_BG1") << WITHOUT_BG1;
        QTest::newRow("WITHOUT_BG2") << WITHOUT_BG2;
        QTest::newRow("WITHOUT_BG3") << WITHOUT_BG3;
        QTest::newRow("SELECT_LIGHT") << SELECT_LIGHT;
        QTest::newRow("INPUT_LIGHT") << INPUT_LIGHT;
        QTest::newRow("SLIDER_LIGHT") << SLIDER_LIGHT;
    }

    void textIsTheName()
    {
        QFETCH(QString, hint);
        QCOMPARE(hint, QLatin1String(QTest::currentDataTag()));
        // A sheet selects it as it stands.
        QWidget widget;
        widget.setStyleSheet(QStringLiteral("[styleHint=\"%1\"] { qproperty-toolTip: \"%1\"; }").arg(hint));
        Util::applyStyleHint(&widget, hint);
        widget.ensurePolished();
        QCOMPARE(widget.toolTip(), hint);
    }

    void resourceName() { QCOMPARE(RESOURCE_EMPTY_STREAM, QStringLiteral("RESOURCE##EMPTY_STREAM")); }
};

UIC_TEST_MAIN(tst_StyleHints)
#include "tst_StyleHints.moc"
