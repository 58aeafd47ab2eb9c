#include "TestMain.h"

#include <UiComponents/DialogGuideInfo.h>

#include <type_traits>

class tst_DialogGuideInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty()
    {
        const DialogGuideInfo info;
        QVERIFY(info.title.isEmpty());
        QVERIFY(info.description.isEmpty());
        QVERIFY(info.mainButtonText.isEmpty());
        QVERIFY(info.secondaryButtonText.isEmpty());
        QVERIFY(info.moviePath.isEmpty());
    }

    void fieldsAreInTheirOrder()
    {
        static_assert(std::is_aggregate_v<DialogGuideInfo>);
        const DialogGuideInfo info{QStringLiteral("title"), QStringLiteral("description"),
                                   QStringLiteral("main"), QStringLiteral("secondary"),
                                   QStringLiteral("movie")};
        QCOMPARE(info.title, QStringLiteral("title"));
        QCOMPARE(info.description, QStringLiteral("description"));
        QCOMPARE(info.mainButtonText, QStringLiteral("main"));
        QCOMPARE(info.secondaryButtonText, QStringLiteral("secondary"));
        QCOMPARE(info.moviePath, QStringLiteral("movie"));
    }
};

UIC_TEST_MAIN(tst_DialogGuideInfo)
#include "tst_DialogGuideInfo.moc"
