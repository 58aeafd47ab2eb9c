#include "TestMain.h"

#include <UiComponents/ColorNames.h>
#include <UiComponents/ColorPalette.h>
#include <UiComponents/Translations.h>

Q_DECLARE_METATYPE(std::optional<QColor>)

class tst_ColorNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(Translations::load(QLocale(QStringLiteral("en")))); }

    // The published values of the conversion, to its three digits.
    void seesAsPeopleDo_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<double>("lightness");
        QTest::addColumn<double>("chroma");
        QTest::addColumn<double>("hue");
        QTest::newRow("red") << QColor(Qt::red) << 0.628 << 0.258 << 29.2;
        QTest::newRow("green") << QColor(Qt::green) << 0.866 << 0.295 << 142.5;
        QTest::newRow("blue") << QColor(Qt::blue) << 0.452 << 0.313 << 264.1;
        QTest::newRow("magenta") << QColor(Qt::magenta) << 0.702 << 0.323 << 328.4;
    }

    void seesAsPeopleDo()
    {
        QFETCH(QColor, color);
        QFETCH(double, lightness);
        QFETCH(double, chroma);
        QFETCH(double, hue);
        const ColorNames::Perceived seen = ColorNames::perceived(color);
        QVERIFY2(qAbs(seen.lightness - lightness) < 0.001, qPrintable(QString::number(seen.lightness)));
        QVERIFY2(qAbs(seen.chroma - chroma) < 0.001, qPrintable(QString::number(seen.chroma)));
        QVERIFY2(qAbs(seen.hue - hue) < 0.1, qPrintable(QString::number(seen.hue)));
    }

    void words_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("words");
        const auto row = [](const char* color, const char* words) {
            QTest::newRow(color) << QColor(QLatin1String(color)) << QString::fromLatin1(words);
        };
        row("#ffffff", "white");
        row("#bfbfbf", "light grey");
        row("#7d7d7d", "grey");
        row("#2d2d2d", "very dark grey");
        row("#000000", "black");
        row("#ff0000", "red");
        row("#760000", "dark red");
        row("#ffc0cb", "very light pink");
        row("#ff009e", "pink");
        row("#ff8040", "orange");
        row("#8b4513", "brown");
        row("#ffc000", "golden yellow");
        row("#f3ff00", "yellow");
        row("#808000", "olive");
        row("#00ff00", "green");
        row("#003801", "very dark green");
        row("#30c0b0", "turquoise");
        row("#00ffff", "cyan");
        row("#00ceff", "azure");
        row("#0027ff", "blue");
        row("#93a4ff", "light blue");
        row("#708090", "greyish blue");
        row("#7400ff", "violet");
        row("#ff00ff", "magenta");
        QTest::newRow("another model") << QColor::fromHsv(0, 255, 255) << QStringLiteral("red");
        QTest::newRow("none") << QColor() << QString();
    }

    void words()
    {
        QFETCH(QColor, color);
        QTEST(ColorNames::inWords(color), "words");
    }

    void values_data()
    {
        QTest::addColumn<std::optional<QColor>>("color");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        QTest::addColumn<QString>("japanese");
        QTest::newRow("a colour") << std::optional<QColor>(QColor(0xff, 0x80, 0x40))
                                  << QStringLiteral("orange, #ff8040") << QStringLiteral("Orange, #ff8040")
                                  << QStringLiteral("オレンジ、#ff8040");
        QTest::newRow("half of it") << std::optional<QColor>(QColor(0xff, 0x80, 0x40, 128))
                                    << QStringLiteral("orange, #ff8040, 50 %")
                                    << QStringLiteral("Orange, #ff8040, 50 %")
                                    << QStringLiteral("オレンジ、#ff8040、50%");
        QTest::newRow("a shade") << std::optional<QColor>(QColor(0x76, 0, 0))
                                 << QStringLiteral("dark red, #760000")
                                 << QStringLiteral("dunkles Rot, #760000")
                                 << QStringLiteral("暗い赤、#760000");
        QTest::newRow("none") << std::optional<QColor>(QColor()) << QStringLiteral("no colour")
                              << QStringLiteral("keine Farbe") << QStringLiteral("色なし");
        QTest::newRow("several") << std::optional<QColor>() << QStringLiteral("several colours")
                                 << QStringLiteral("mehrere Farben") << QStringLiteral("複数の色");
    }

    void values()
    {
        QFETCH(std::optional<QColor>, color);
        QTEST(ColorNames::valueText(color), "english");
        QVERIFY(Translations::load(QLocale(QStringLiteral("de"))));
        QTEST(ColorNames::valueText(color), "german");
        QVERIFY(Translations::load(QLocale(QStringLiteral("ja"))));
        QTEST(ColorNames::valueText(color), "japanese");
    }

    void everyColorHasAName()
    {
        for (int red = 0; red < 256; red += 15) {
            for (int green = 0; green < 256; green += 15) {
                for (int blue = 0; blue < 256; blue += 15) {
                    const QColor color(red, green, blue);
                    QVERIFY2(!ColorNames::inWords(color).isEmpty(), qPrintable(color.name()));
                }
            }
        }
    }

    // No two colours of the palette that have different names in one language have the same in another.
    void everyLanguageHasAllNames()
    {
        const auto names = [] {
            QSet<QString> all;
            for (const auto& row : ColorPalette::rows) {
                for (const QColor& color : row) {
                    all.insert(ColorNames::inWords(color));
                }
            }
            return all;
        };
        const QSet<QString> english = names();
        const QStringList codes = Translations::languages();
        for (const QString& code : codes) {
            QVERIFY(Translations::load(QLocale(code)));
            const QSet<QString> translated = names();
            QVERIFY2(!translated.contains(QString()), qPrintable(code));
            QVERIFY2(translated.size() == english.size(), qPrintable(code));
        }
    }
};

UIC_TEST_MAIN(tst_ColorNames)

#include "tst_ColorNames.moc"
