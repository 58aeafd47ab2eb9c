#include "TestMain.h"

#include <gallery/GalleryApplication.h>
#include <gallery/StylingManual.h>

class tst_StylingManual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void theSameTextAgain() { QCOMPARE(stylingManual(), stylingManual()); }

    void tellsNamesPropertiesAndStates()
    {
        const QString manual = stylingManual();
        const int start = manual.indexOf("### ColorPickerButton\n");
        QVERIFY(start > 0);
        const QString section = manual.mid(start, manual.indexOf("\n### ", start + 1) - start);
        QVERIFY2(section.contains("- Dynamic properties: `multiColor`, `nullColor`\n"), qPrintable(section));
        QVERIFY2(section.contains("- Selectors: `ColorPickerButton`, `QToolButton`\n"), qPrintable(section));
        QVERIFY2(section.contains("`QWidget#color`"), qPrintable(section));
        QVERIFY2(
            section.contains("`InstalledLayoutController`: properties `layoutMargin`, `layoutMarginLeft`"),
            qPrintable(section));
    }

    // What Qt cannot parse it reports as a warning, which fails the run.
    void itsRulesAreRules()
    {
        QString sheet;
        const QStringList lines = stylingManual().split('\n');
        for (const QString& line : lines) {
            if (line.startsWith("    ") && line.contains('{')) {
                sheet += line;
            }
        }
        QVERIFY(sheet.count('{') > 5);
        qApp->setStyleSheet(sheet);
        QCOMPARE(qApp->styleSheet(), sheet);
        qApp->setStyleSheet(QString());
    }

    void theCopyInTheDocumentationIsCurrent()
    {
        QFile copy(UIC_DOCS "/styling.md");
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QVERIFY2(QString::fromUtf8(copy.readAll()) == stylingManual(),
                 "Run: ui-components-gallery --styling-manual > docs/styling.md");
    }

    void tellsTypesAndSelectors()
    {
        const QString manual = stylingManual();
        QVERIFY(manual.contains("- Selectors: `Orvane--Tessel--TesselLineEdit`, `QLineEdit`\n"));
        QVERIFY(manual.contains(
            "- Child `SampleDialStyle`: properties `handColor` (QColor); `handWidth` (int)\n"));
        QVERIFY(manual.contains("- Style hints: `LIGHT_GREY_ONE`, `LIGHT_GREY_TWO`, "));
        QVERIFY(manual.contains("- Dynamic properties: `roundedEdges`\n"));
    }

    void leavesOutTheContentOfPages() { QVERIFY(!stylingManual().contains("SampleTile")); }
};

UIC_TEST_MAIN(tst_StylingManual)
#include "tst_StylingManual.moc"
