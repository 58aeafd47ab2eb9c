#include "RecordingStore.h"
#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/CustomColors.h>

using Util::appendCustomColor;

namespace {

const QString fresh = QStringLiteral("#123456");

} // namespace

class tst_CustomColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_record = std::make_shared<Record>();
        Settings::setStore(std::make_unique<RecordingStore>(m_record));
    }

    void cleanupTestCase() { Settings::setStore(nullptr); }

    void paletteColorIsRefused_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("as the store writes it") << QStringLiteral("#ff0000");
        QTest::newRow("in upper case") << QStringLiteral("#FF0000");
        QTest::newRow("by name") << QStringLiteral("red");
        QTest::newRow("by name in upper case") << QStringLiteral("Red");
        QTest::newRow("three digits") << QStringLiteral("#f00");
        QTest::newRow("twelve digits") << QStringLiteral("#ffff00000000");
        QTest::newRow("with full alpha") << QStringLiteral("#ffff0000");
        QTest::newRow("first of the palette") << QStringLiteral("#ffffff");
        QTest::newRow("last of the palette") << QStringLiteral("#390023");
        QTest::newRow("middle of the palette") << QStringLiteral("#42dbff");
    }

    void paletteColorIsRefused()
    {
        QFETCH(QString, name);
        m_record->value = QStringList{QStringLiteral("#010203")};
        QVERIFY(!appendCustomColor(name));
        QCOMPARE(m_record->reads, 0);
        QCOMPARE(m_record->writes, 0);
    }

    void nearlyAPaletteColor_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("one step beside") << QStringLiteral("#fe0000");
        QTest::newRow("red with alpha") << QStringLiteral("#80ff0000");
        QTest::newRow("transparent") << QStringLiteral("transparent");
        QTest::newRow("a name that is not in the palette") << QStringLiteral("orange");
    }

    void nearlyAPaletteColor()
    {
        QFETCH(QString, name);
        QVERIFY(appendCustomColor(name));
        QCOMPARE(Settings::userCustomColors(), QStringList{name});
    }

    void firstColor()
    {
        QVERIFY(appendCustomColor(fresh));
        QCOMPARE(m_record->value.toStringList(), QStringList{fresh});
    }

    void newestIsFirst()
    {
        QStringList expected;
        const QStringList colors = ownColors(8);
        for (const QString& color : colors) {
            QVERIFY(appendCustomColor(color));
            expected.prepend(color);
            QCOMPARE(Settings::userCustomColors(), expected);
        }
    }

    void ninthDropsTheOldest()
    {
        const QStringList full = ownColors(8);
        m_record->value = full;
        QVERIFY(appendCustomColor(fresh));
        QCOMPARE(m_record->value.toStringList(), QStringList(fresh) + full.mid(0, 7));
        // The one that was dropped is new again.
        QVERIFY(appendCustomColor(full.last()));
        QCOMPARE(m_record->value.toStringList(), QStringList({full.last(), fresh}) + full.mid(0, 6));
    }

    void knownColorStaysWhereItIs_data()
    {
        QTest::addColumn<int>("index");

        QTest::newRow("newest") << 0;
        QTest::newRow("in the middle") << 3;
        QTest::newRow("oldest") << 7;
    }

    void knownColorStaysWhereItIs()
    {
        QFETCH(int, index);
        const QStringList full = ownColors(8);
        m_record->value = full;
        QVERIFY(!appendCustomColor(full.at(index)));
        QCOMPARE(m_record->writes, 0);
        QCOMPARE(Settings::userCustomColors(), full);
    }

    void listComparesTexts()
    {
        QVERIFY(appendCustomColor(QStringLiteral("#abcdef")));
        QVERIFY(appendCustomColor(QStringLiteral("#ABCDEF")));
        QVERIFY(appendCustomColor(QStringLiteral("#AbCdEf")));
        QVERIFY(!appendCustomColor(QStringLiteral("#abcdef")));
        QCOMPARE(
            Settings::userCustomColors(),
            (QStringList{QStringLiteral("#AbCdEf"), QStringLiteral("#ABCDEF"), QStringLiteral("#abcdef")}));
    }

    void listIsReadAndWrittenOnce()
    {
        QVERIFY(appendCustomColor(fresh));
        QCOMPARE(m_record->reads, 1);
        QCOMPARE(m_record->writes, 1);
        QVERIFY(!appendCustomColor(fresh));
        QCOMPARE(m_record->reads, 2);
        QCOMPARE(m_record->writes, 1);
    }

    void keepsTheTextAsItIsWritten_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("no colour at all") << QStringLiteral("no colour at all");
        QTest::newRow("empty") << QString(QLatin1String(""));
        QTest::newRow("a sign alone") << QStringLiteral("#");
        QTest::newRow("not hexadecimal") << QStringLiteral("#gggggg");
        QTest::newRow("five digits") << QStringLiteral("#12345");
        QTest::newRow("other script") << QString::fromUtf8("色");
        QTest::newRow("with line breaks") << QStringLiteral("a\nb\n");
        QTest::newRow("very long") << QString(100000, QLatin1Char('#'));
    }

    void keepsTheTextAsItIsWritten()
    {
        QFETCH(QString, name);
        m_record->value = ownColors(2);
        QVERIFY(appendCustomColor(name));
        QCOMPARE(Settings::userCustomColors(), QStringList(name) + ownColors(2));
        QVERIFY(!appendCustomColor(name));
    }

    void longListLosesOneEntry_data()
    {
        QTest::addColumn<int>("length");

        QTest::newRow("nine") << 9;
        QTest::newRow("twenty") << 20;
        QTest::newRow("a thousand") << 1000;
    }

    void longListLosesOneEntry()
    {
        QFETCH(int, length);
        const QStringList list = ownColors(length);
        m_record->value = list;
        QVERIFY(appendCustomColor(fresh));
        QCOMPARE(m_record->value.toStringList(), QStringList(fresh) + list.mid(0, length - 1));
        QVERIFY(appendCustomColor(QStringLiteral("#654321")));
        QCOMPARE(m_record->value.toStringList().size(), length);
    }

    // The list counts as a whole, not only the eight that a panel shows.
    void longListWithTheColor()
    {
        m_record->value = ownColors(1000);
        QVERIFY(!appendCustomColor(ownColors(1000).at(998)));
        QCOMPARE(m_record->writes, 0);
    }

    void entriesThatAreNoColorsStay()
    {
        const QStringList junk = {QStringLiteral("junk"), QLatin1String(""), QStringLiteral("#ff0000"),
                                  QStringLiteral("junk"), QStringLiteral("#12")};
        m_record->value = junk;
        QVERIFY(appendCustomColor(fresh));
        QCOMPARE(m_record->value.toStringList(), QStringList(fresh) + junk);
    }

    void otherTypesInTheStore_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QStringList>("behind");

        QTest::newRow("a text") << QVariant(QStringLiteral("#0a0b0c"))
                                << QStringList{QStringLiteral("#0a0b0c")};
        QTest::newRow("a number") << QVariant(5) << QStringList{QStringLiteral("5")};
        QTest::newRow("a list of mixed values")
            << QVariant(QVariantList{QStringLiteral("#0a0b0c"), 5, QRect(1, 2, 3, 4)})
            << QStringList{QStringLiteral("#0a0b0c"), QStringLiteral("5")};
        QTest::newRow("a rectangle") << QVariant(QRect(1, 2, 3, 4)) << QStringList();
        QTest::newRow("a map") << QVariant(QVariantMap{{QStringLiteral("a"), 1}}) << QStringList();
        QTest::newRow("nothing") << QVariant() << QStringList();
    }

    void otherTypesInTheStore()
    {
        QFETCH(QVariant, value);
        QFETCH(QStringList, behind);
        m_record->value = value;
        QVERIFY(appendCustomColor(fresh));
        QCOMPARE(Settings::userCustomColors(), QStringList(fresh) + behind);
    }

    void unwritableStore()
    {
        m_record->value = ownColors(8);
        m_record->isWritable = false;
        QVERIFY(appendCustomColor(fresh));
        // The user's list goes on in memory, and what is stored stays whole.
        QCOMPARE(Settings::userCustomColors(), QStringList(fresh) + ownColors(7));
        QCOMPARE(m_record->value.toStringList(), ownColors(8));
        QVERIFY(!appendCustomColor(fresh));
        QVERIFY(appendCustomColor(QStringLiteral("#654321")));
        QCOMPARE(Settings::userCustomColors().mid(0, 2), (QStringList{QStringLiteral("#654321"), fresh}));
    }

    void storeThatIsWritableAgain()
    {
        m_record->isWritable = false;
        QVERIFY(appendCustomColor(fresh));
        m_record->isWritable = true;
        QVERIFY(appendCustomColor(QStringLiteral("#654321")));
        QCOMPARE(m_record->value.toStringList(), (QStringList{QStringLiteral("#654321"), fresh}));
    }

    void survivesInTheHostsOwnSettings()
    {
        Settings::setStore(nullptr);
        for (int i = 0; i < 9; ++i) {
            QVERIFY(appendCustomColor(ownColors(9).at(i)));
        }
        QStringList expected = ownColors(9).mid(1);
        std::reverse(expected.begin(), expected.end());
        // As another program reads the file.
        QFile::copy(QSettings().fileName(), QSettings().fileName() + QStringLiteral(".copy"));
        const QSettings copy(QSettings().fileName() + QStringLiteral(".copy"), QSettings::IniFormat);
        QCOMPARE(copy.value(QStringLiteral("userCustomColors")).toStringList(), expected);
    }

private:
    std::shared_ptr<Record> m_record;
};

UIC_TEST_MAIN(tst_CustomColors)
#include "tst_CustomColors.moc"
