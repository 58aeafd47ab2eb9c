#include "TestMain.h"

#include <gallery/GalleryApplication.h>
#include <gallery/StylingManual.h>

class tst_StylingManual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }
    void theSameTextAgain();
    void tellsNamesPropertiesAndStates();
};

void tst_StylingManual::theSameTextAgain()
{
    QCOMPARE(stylingManual(), stylingManual());
}

void tst_StylingManual::tellsNamesPropertiesAndStates()
{
    const QString manual = stylingManual();
    const int start = manual.indexOf("### ColorPickerButton\n");
    QVERIFY(start > 0);
    const QString section = manual.mid(start, manual.indexOf("\n### ", start + 1) - start);
    QVERIFY2(section.contains("- Dynamic properties: `multiColor`, `nullColor`\n"), qPrintable(section));
    QVERIFY2(section.contains("`QWidget#color`"), qPrintable(section));
    QVERIFY2(section.contains("`InstalledLayoutController`: properties `layoutMargin` (int)"),
             qPrintable(section));
}

UIC_TEST_MAIN(tst_StylingManual)
#include "tst_StylingManual.moc"
