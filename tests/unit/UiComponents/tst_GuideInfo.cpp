#include "TestMain.h"

#include <UiComponents/GuideInfo.h>

#include <type_traits>
#include <utility>

Q_DECLARE_METATYPE(GuideInfo)

namespace {

GuideInfo sample()
{
    return {QStringLiteral("title"), QStringLiteral("description"), QStringLiteral("link"),
            QStringLiteral("movie")};
}

} // namespace

class tst_GuideInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty()
    {
        const GuideInfo info;
        QVERIFY(info.title.isEmpty());
        QVERIFY(info.moviePath.isEmpty());
        QVERIFY(info.description.isEmpty());
        QVERIFY(info.learnMore.isEmpty());
    }

    void argumentsAreInTheirOwnOrder()
    {
        const GuideInfo info = sample();
        QCOMPARE(info.title, QStringLiteral("title"));
        QCOMPARE(info.description, QStringLiteral("description"));
        QCOMPARE(info.learnMore, QStringLiteral("link"));
        QCOMPARE(info.moviePath, QStringLiteral("movie"));
    }

    void fieldsAreInTheirOrder()
    {
        static_assert(std::is_standard_layout_v<GuideInfo>);
        const std::size_t offsets[] = {offsetof(GuideInfo, title), offsetof(GuideInfo, moviePath),
                                       offsetof(GuideInfo, description), offsetof(GuideInfo, learnMore)};
        for (std::size_t i = 0; i < std::size(offsets); ++i) {
            QCOMPARE(offsets[i], i * sizeof(QString));
        }
        QCOMPARE(sizeof(GuideInfo), 4 * sizeof(QString));
    }

    void equalWhenAllStringsAre_data()
    {
        QTest::addColumn<GuideInfo>("other");
        QTest::addColumn<bool>("equal");
        const auto changed = [](QString GuideInfo::*field) {
            GuideInfo info = sample();
            info.*field = QStringLiteral("other");
            return info;
        };
        QTest::newRow("the same") << sample() << true;
        QTest::newRow("title") << changed(&GuideInfo::title) << false;
        QTest::newRow("movie") << changed(&GuideInfo::moviePath) << false;
        QTest::newRow("description") << changed(&GuideInfo::description) << false;
        QTest::newRow("link") << changed(&GuideInfo::learnMore) << false;
        QTest::newRow("empty") << GuideInfo() << false;
    }

    void equalWhenAllStringsAre()
    {
        QFETCH(GuideInfo, other);
        QTEST(sample() == other, "equal");
        QTEST(other == sample(), "equal");
    }

    void nullAndEmptyStringsAreEqual()
    {
        const QString empty = QStringLiteral("");
        QVERIFY(GuideInfo() == GuideInfo(empty, empty, empty, empty));
    }

    void copies()
    {
        const GuideInfo original = sample();
        GuideInfo copy(original); // NOLINT(performance-unnecessary-copy-initialization): what is tested
        QVERIFY(copy == original);
        copy.title.clear();
        QCOMPARE(original.title, QStringLiteral("title"));
        copy = original;
        QVERIFY(copy == original);
    }

    void moves()
    {
        static_assert(std::is_nothrow_move_constructible_v<GuideInfo>);
        static_assert(std::is_nothrow_move_assignable_v<GuideInfo>);
        GuideInfo original = sample();
        GuideInfo moved(std::move(original));
        QVERIFY(moved == sample());
        GuideInfo assigned;
        assigned = std::move(moved);
        QVERIFY(assigned == sample());
    }
};

UIC_TEST_MAIN(tst_GuideInfo)
#include "tst_GuideInfo.moc"
