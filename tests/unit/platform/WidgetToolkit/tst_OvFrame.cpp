#include "TestMain.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>

class tst_OvFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sheetSetsMetrics();
};

void tst_OvFrame::sheetSetsMetrics()
{
    OvFrame frame;
    frame.setStyleSheet(
        QStringLiteral("OvFrame { qproperty-layoutSpacing: 7; qproperty-layoutMarginTop: 3; }"));
    auto* layout = new OvVBoxLayout(&frame);
    frame.ensurePolished();
    QCOMPARE(layout->spacing(), 7);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 3, 0, 0));
}

UIC_TEST_MAIN(tst_OvFrame)
#include "tst_OvFrame.moc"
