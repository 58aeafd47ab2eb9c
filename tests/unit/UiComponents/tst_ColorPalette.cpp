#include "TestMain.h"

#include <UiComponents/ColorPalette.h>

namespace {

// While libraries and programs load, long before main().
const QColor lastAtLoadTime = ColorPalette::rows.back().back();

} // namespace

class tst_ColorPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colors()
    {
        const QStringList expected = {
            QStringLiteral("#ffffff #e3e3e3 #bfbfbf #9a9a9a #7d7d7d #6a6a6a #444444 #2d2d2d #000000"),
            QStringLiteral("#ff0000 #ff5d00 #ffc000 #f3ff00 #00ff00 #00ceff #0027ff #7400ff #ff009e"),
            QStringLiteral("#ffb4b4 #ffccae #ffe9a5 #fbffa6 #afffb0 #9cecff #93a4ff #d5b2ff #ffb4e2"),
            QStringLiteral("#ff8484 #ffa774 #ffd85f #f8ff6d #6cff6e #7ae5ff #7388ff #bc84ff #ff8cd3"),
            QStringLiteral("#ff5454 #ff8a47 #ffce38 #f6ff3d #46ff49 #42dbff #5771ff #9842ff #e34ba9"),
            QStringLiteral("#c70000 #ca4a00 #cf9c00 #b7c000 #03c705 #0191b4 #001cb7 #5a00c5 #a10064"),
            QStringLiteral("#760000 #833000 #8b6900 #6f7400 #007601 #025b71 #00106a #3c0085 #62003d"),
            QStringLiteral("#380000 #421800 #493700 #3e4100 #003801 #00303b #00093c #1e0043 #390023"),
        };
        QStringList found;
        for (const ColorPalette::Row& row : ColorPalette::rows) {
            QStringList names;
            for (const QColor& color : row) {
                names += color.name();
            }
            found += names.join(QLatin1Char(' '));
        }
        QCOMPARE(found, expected);
    }

    void everyColorIsOpaqueAndDifferent()
    {
        QSet<QRgb> different;
        for (const ColorPalette::Row& row : ColorPalette::rows) {
            for (const QColor& color : row) {
                QCOMPARE(color.alpha(), 255);
                // Of the model, and to the bit, that a name gives.
                QCOMPARE(color, QColor(color.name()));
                different.insert(color.rgba());
            }
        }
        QCOMPARE(different.size(), ColorPalette::rowCount * ColorPalette::columnCount);
    }

    void isThereAtLoadTime() { QCOMPARE(lastAtLoadTime.name(), QStringLiteral("#390023")); }

    void contains_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<bool>("isContained");

        QTest::newRow("first") << QColor(255, 255, 255) << true;
        QTest::newRow("last") << QColor(0x39, 0x00, 0x23) << true;
        QTest::newRow("end of a row") << QColor(0xff, 0x00, 0x9e) << true;
        QTest::newRow("one step beside") << QColor(254, 255, 255) << false;
        QTest::newRow("none") << QColor() << false;
        QTest::newRow("transparent white") << QColor(255, 255, 255, 0) << false;
        QTest::newRow("nearly opaque red") << QColor(255, 0, 0, 254) << false;
        QTest::newRow("red of another model") << QColor(Qt::red).toHsv() << false;
    }

    void contains()
    {
        QFETCH(QColor, color);
        QTEST(ColorPalette::contains(color), "isContained");
    }
};

UIC_TEST_MAIN(tst_ColorPalette)
#include "tst_ColorPalette.moc"
