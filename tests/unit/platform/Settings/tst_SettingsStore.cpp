#include "TestMain.h"

#include <Settings/Settings.h>
#include <Settings/SettingsStore.h>

namespace {

struct Journal
{
    QStringList calls;
    QVariantMap values;
    bool takesWrites = true;
    int alive = 0;
};

class FakeStore : public SettingsStore
{
public:
    explicit FakeStore(std::shared_ptr<Journal> journal)
        : m_journal(std::move(journal))
    {
        ++m_journal->alive;
    }
    ~FakeStore() override { --m_journal->alive; }

    QVariant read(const QString& key) const override
    {
        m_journal->calls += QStringLiteral("read ") + key;
        return m_journal->values.value(key);
    }
    bool write(const QString& key, const QVariant& value) override
    {
        m_journal->calls += QStringLiteral("write ") + key;
        if (m_journal->takesWrites) {
            m_journal->values.insert(key, value);
        }
        return m_journal->takesWrites;
    }

private:
    const std::shared_ptr<Journal> m_journal; // the store may live longer than the test
};

QString key()
{
    return QStringLiteral("userCustomColors");
}
QStringList twoColors()
{
    return {QStringLiteral("#112233"), QStringLiteral("#abcdef")};
}
QStringList oneColor()
{
    return {QStringLiteral("#445566")};
}

} // namespace

class tst_SettingsStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        Settings::setStore(nullptr);
        Settings::setUserCustomColors({});
    }

    void takesTheBuiltInStoresPlace()
    {
        Settings::setUserCustomColors(twoColors());
        const auto journal = std::make_shared<Journal>();
        Settings::setStore(std::make_unique<FakeStore>(journal));
        QCOMPARE(Settings::userCustomColors(), QStringList());
        Settings::setUserCustomColors(oneColor());
        QCOMPARE(journal->calls,
                 QStringList({QStringLiteral("read ") + key(), QStringLiteral("write ") + key()}));
        QCOMPARE(journal->values.value(key()), QVariant(oneColor()));
        QCOMPARE(Settings::userCustomColors(), oneColor());

        Settings::setStore(nullptr);
        QCOMPARE(Settings::userCustomColors(), twoColors());
    }

    void ownershipGoesToSettings()
    {
        const auto first = std::make_shared<Journal>();
        const auto second = std::make_shared<Journal>();
        Settings::setStore(std::make_unique<FakeStore>(first));
        QCOMPARE(first->alive, 1);
        Settings::setStore(std::make_unique<FakeStore>(second));
        QCOMPARE(first->alive, 0);
        QCOMPARE(second->alive, 1);
        Settings::setStore(nullptr);
        QCOMPARE(second->alive, 0);
    }

    void everyReadAsksTheStore()
    {
        const auto journal = std::make_shared<Journal>();
        Settings::setStore(std::make_unique<FakeStore>(journal));
        journal->values.insert(key(), oneColor());
        QCOMPARE(Settings::userCustomColors(), oneColor());
        journal->values.insert(key(), twoColors());
        QCOMPARE(Settings::userCustomColors(), twoColors());
        QCOMPARE(journal->calls.size(), 2);
    }

    void whatTheStoreRefusesIsKeptInMemory()
    {
        const auto journal = std::make_shared<Journal>();
        Settings::setStore(std::make_unique<FakeStore>(journal));
        Settings::setUserCustomColors(oneColor());
        journal->takesWrites = false;
        Settings::setUserCustomColors(twoColors());
        QCOMPARE(journal->values.value(key()), QVariant(oneColor()));
        QCOMPARE(Settings::userCustomColors(), twoColors());
        Settings::setUserCustomColors({});
        QCOMPARE(Settings::userCustomColors(), QStringList());

        journal->takesWrites = true;
        Settings::setUserCustomColors(twoColors());
        QCOMPARE(journal->values.value(key()), QVariant(twoColors()));
        // The store's word counts again.
        journal->values.insert(key(), oneColor());
        QCOMPARE(Settings::userCustomColors(), oneColor());
    }

    void aNewStoreStartsWithItsOwnValues()
    {
        const auto full = std::make_shared<Journal>();
        full->takesWrites = false;
        Settings::setStore(std::make_unique<FakeStore>(full));
        Settings::setUserCustomColors(twoColors());
        const auto next = std::make_shared<Journal>();
        next->values.insert(key(), oneColor());
        Settings::setStore(std::make_unique<FakeStore>(next));
        QCOMPARE(Settings::userCustomColors(), oneColor());
    }

    void oddValues_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QStringList>("expected");

        const QString red = QStringLiteral("#ff0000");
        QStringList thousand;
        for (int i = 0; i < 1000; ++i) {
            thousand += QStringLiteral("#%1").arg(i, 6, 16, QLatin1Char('0'));
        }
        QTest::newRow("nothing") << QVariant() << QStringList();
        QTest::newRow("list") << QVariant(twoColors()) << twoColors();
        QTest::newRow("empty list") << QVariant(QStringList()) << QStringList();
        QTest::newRow("list of variants")
            << QVariant(QVariantList{red, QByteArray("blue")}) << QStringList{red, QStringLiteral("blue")};
        QTest::newRow("list with parts that are no text")
            << QVariant(QVariantList{QVariantMap(), red, QVariant(), 7})
            << QStringList{red, QStringLiteral("7")};
        QTest::newRow("text") << QVariant(red) << QStringList{red};
        QTest::newRow("bytes") << QVariant(QByteArray("red")) << QStringList{QStringLiteral("red")};
        QTest::newRow("number") << QVariant(5) << QStringList{QStringLiteral("5")};
        QTest::newRow("map") << QVariant(QVariantMap{{red, red}}) << QStringList();
        QTest::newRow("rectangle") << QVariant(QRect(1, 2, 3, 4)) << QStringList();
        QTest::newRow("empty entries")
            << QVariant(QStringList{QString(), red, QString()}) << QStringList{QString(), red, QString()};
        QTest::newRow("thousand entries") << QVariant(thousand) << thousand;
    }

    void oddValues()
    {
        QFETCH(QVariant, stored);
        const auto journal = std::make_shared<Journal>();
        journal->values.insert(key(), stored);
        Settings::setStore(std::make_unique<FakeStore>(journal));
        QTEST(Settings::userCustomColors(), "expected");
    }
};

UIC_TEST_MAIN(tst_SettingsStore)
#include "tst_SettingsStore.moc"
