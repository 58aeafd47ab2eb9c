#include "TestMain.h"

#include <QtUtility/FormatFileSize.h>

#include <limits>

using Orvane::Util::FileSizeUnit;
using Orvane::Util::FormatFileSize;

Q_DECLARE_METATYPE(Orvane::Util::FileSizeUnit)

namespace {

constexpr qint64 kilobyte = 1024;
constexpr qint64 megabyte = kilobyte * 1024;
constexpr qint64 gigabyte = megabyte * 1024;
constexpr qint64 terabyte = gigabyte * 1024;
constexpr qint64 petabyte = terabyte * 1024;
constexpr qint64 exabyte = petabyte * 1024;
constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();

class Megaoctets : public QTranslator
{
    Q_OBJECT

public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool isMegabytes = qstrcmp(context, "FormatFileSize") == 0 && qstrcmp(source, "%1 MB") == 0;
        return isMegabytes ? QStringLiteral("Mo: %1") : QString();
    }
};

} // namespace

class tst_FormatFileSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale::c()); }
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void automatic_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char* name, qint64 bytes, const char* expected) {
            QTest::newRow(name) << bytes << QString::fromLatin1(expected);
        };
        row("nothing", 0, "0 B");
        row("one", 1, "1 B");
        row("the most bytes", 1023, "1023 B");
        row("1 KB", kilobyte, "1 KB");
        row("just above 1 KB", kilobyte + 1, "1 KB");
        row("two decimals below ten", kilobyte + 256, "1.25 KB");
        row("no zeros at the end", kilobyte + 512, "1.5 KB");
        row("zero inside", kilobyte + 51, "1.05 KB");
        row("less than half of the last digit goes down", 5 * kilobyte / 4 + kilobyte / 256,
            "1.25 KB"); // 1.2539
        row("exactly half goes up", 10 * kilobyte + kilobyte / 4, "10.3 KB");
        row("rounds to ten", 10 * kilobyte - 1, "10 KB");
        row("one decimal from ten on", 12 * kilobyte + 512, "12.5 KB");
        row("hundreds", 931 * gigabyte + gigabyte / 2, "931.5 GB");
        row("below the next unit", megabyte - 100, "1023.9 KB");
        row("rounds to the next unit", megabyte - 1, "1 MB");
        row("rounds to the last unit", exabyte - 1, "1 EB");
        row("mega", 3 * megabyte, "3 MB");
        row("giga", 3 * gigabyte, "3 GB");
        row("tera", 3 * terabyte, "3 TB");
        row("peta", 3 * petabyte, "3 PB");
        row("exa", 3 * exabyte, "3 EB");
        row("largest", largest, "8 EB");
        row("negative", -1, "-1 B");
        row("negative fraction", -(kilobyte + 512), "-1.5 KB");
        row("negative rounds to the next unit", -(megabyte - 1), "-1 MB");
        row("smallest", smallest, "-8 EB");
    }

    void automatic()
    {
        QFETCH(qint64, bytes);
        QTEST(FormatFileSize(bytes), "expected");
        QTEST(FormatFileSize(bytes, -1, FileSizeUnit(0), 1024), "expected");
    }

    void asAsked_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<int>("precision");
        QTest::addColumn<FileSizeUnit>("unit");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char* name, qint64 bytes, int precision, FileSizeUnit unit,
                            const char* expected) {
            QTest::newRow(name) << bytes << precision << unit << QString::fromLatin1(expected);
        };
        row("bytes have no decimals", 5, 3, FileSizeUnit::Byte, "5 B");
        row("nor have automatic bytes", 5, 3, FileSizeUnit::Auto, "5 B");
        row("zeros are kept", megabyte, 2, FileSizeUnit::Auto, "1.00 MB");
        row("no decimals", megabyte + megabyte / 2, 0, FileSizeUnit::Auto, "2 MB");
        row("less than half", megabyte + megabyte / 2 - 1, 0, FileSizeUnit::Auto, "1 MB");
        row("precision reaches the next unit", megabyte - 1, 3, FileSizeUnit::Auto, "1023.999 KB");
        row("less precision does", megabyte - 1, 2, FileSizeUnit::Auto, "1.00 MB");
        row("whole numbers do", megabyte - 512, 0, FileSizeUnit::Auto, "1 MB");
        row("just not", megabyte - 513, 0, FileSizeUnit::Auto, "1023 KB");
        row("a fixed unit stays", megabyte - 1, -1, FileSizeUnit::Kilo, "1024 KB");
        row("a fixed unit stays above", 5 * megabyte, -1, FileSizeUnit::Kilo, "5120 KB");
        row("largest in bytes", largest, -1, FileSizeUnit::Byte, "9223372036854775807 B");
        row("smallest in bytes", smallest, -1, FileSizeUnit::Byte, "-9223372036854775808 B");
        row("smallest in exabytes", smallest, 2, FileSizeUnit::Exa, "-8.00 EB");
        row("no more than fifteen", kilobyte + 1, 1000, FileSizeUnit::Kilo, "1.000976562500000 KB");
        row("small in a large unit", 1, -1, FileSizeUnit::Giga, "0 GB");
        row("no sign on zero", -1, 2, FileSizeUnit::Mega, "0.00 MB");
        row("sign on little", -(megabyte / 100), 2, FileSizeUnit::Mega, "-0.01 MB");
        row("precision below automatic", kilobyte + 512, -7, FileSizeUnit::Auto, "1.5 KB");
        row("unit above all", kilobyte, -1, FileSizeUnit(99), "1 KB");
        row("unit below all", kilobyte, -1, FileSizeUnit(-1), "1 KB");
    }

    void asAsked()
    {
        QFETCH(qint64, bytes);
        QFETCH(int, precision);
        QFETCH(FileSizeUnit, unit);
        QTEST(FormatFileSize(bytes, precision, unit), "expected");
    }

    void kiloSizes_data()
    {
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<int>("kiloSize");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char* name, qint64 bytes, int kiloSize, const char* expected) {
            QTest::newRow(name) << bytes << kiloSize << QString::fromLatin1(expected);
        };
        row("decimal", 1500, 1000, "1.5 KB");
        row("decimal bytes", 999, 1000, "999 B");
        row("decimal next unit", 999999, 1000, "1 MB");
        row("decimal half", 1005, 1000, "1.01 KB");
        row("decimal half below zero", -8575, 1000, "-8.58 KB");
        row("decimal largest", largest, 1000, "9.22 EB");
        row("decimal smallest", smallest, 1000, "-9.22 EB");
        row("two", 6, 2, "1.5 MB");
        row("two, beyond the last unit", 1 << 20, 2, "16384 EB");
        row("one is none", 1024, 1, "1 KB");
        row("zero is none", 1024, 0, "1 KB");
        row("negative is none", 1024, -1000, "1 KB");
        row("too large is none", 1024, 1025, "1 KB");
        row("far too large is none", 1024, std::numeric_limits<int>::max(), "1 KB");
    }

    void kiloSizes()
    {
        QFETCH(qint64, bytes);
        QFETCH(int, kiloSize);
        QTEST(FormatFileSize(bytes, -1, FileSizeUnit::Auto, kiloSize), "expected");
    }

    void locales_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<qint64>("bytes");
        QTest::addColumn<FileSizeUnit>("unit");
        QTest::addColumn<QString>("expected");

        const QLocale english(QLocale::English, QLocale::UnitedStates);
        const QLocale german(QLocale::German, QLocale::Germany);
        const QLocale persian(QLocale::Persian, QLocale::Iran);
        QTest::newRow("English") << english << -(megabyte + megabyte / 4) << FileSizeUnit::Kilo
                                 << QStringLiteral("-1,280 KB");
        QTest::newRow("German mark") << german << megabyte + megabyte / 4 << FileSizeUnit::Auto
                                     << QStringLiteral("1,25 MB");
        QTest::newRow("German groups")
            << german << largest << FileSizeUnit::Giga << QStringLiteral("8.589.934.592 GB");
        QTest::newRow("digits of another script")
            << persian << megabyte + megabyte / 4 << FileSizeUnit::Auto << QString::fromUtf8("۱٫۲۵ MB");
        QLocale withoutGroups = english;
        withoutGroups.setNumberOptions(QLocale::OmitGroupSeparator);
        QTest::newRow("without groups")
            << withoutGroups << 5 * megabyte << FileSizeUnit::Kilo << QStringLiteral("5120 KB");
    }

    void locales()
    {
        QFETCH(QLocale, locale);
        QFETCH(qint64, bytes);
        QFETCH(FileSizeUnit, unit);
        QLocale::setDefault(locale);
        QTEST(FormatFileSize(bytes, -1, unit), "expected");
    }

    void unitsAreTranslated()
    {
        Megaoctets french;
        QVERIFY(QCoreApplication::installTranslator(&french));
        QCOMPARE(FormatFileSize(3 * megabyte / 2), QStringLiteral("Mo: 1.5"));
        QCOMPARE(FormatFileSize(3 * gigabyte), QStringLiteral("3 GB"));
        QVERIFY(QCoreApplication::removeTranslator(&french));
        QCOMPARE(FormatFileSize(3 * megabyte / 2), QStringLiteral("1.5 MB"));
    }

    // Around every unit's border, in every precision: the number stays below what makes the next unit.
    void neverShowsAThousandAndTwentyFour()
    {
        for (const int kilo : {1000, 1024}) {
            qint64 border = kilo;
            for (int power = 1; power <= 6; ++power, border *= kilo) {
                for (qint64 distance = 1; distance < border; distance *= 7) {
                    for (int precision = -1; precision < 8; ++precision) {
                        const QString text =
                            FormatFileSize(border - distance, precision, FileSizeUnit::Auto, kilo);
                        QVERIFY2(text.section(QLatin1Char(' '), 0, 0).toDouble() < kilo, qPrintable(text));
                    }
                    if (distance > border / 7) {
                        break;
                    }
                }
                if (power == 6) {
                    break;
                }
            }
        }
    }
};

UIC_TEST_MAIN(tst_FormatFileSize)
#include "tst_FormatFileSize.moc"
