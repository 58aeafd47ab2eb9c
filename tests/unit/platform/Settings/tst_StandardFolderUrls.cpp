#include "TestMain.h"

#include <Settings/StandardFolderUrls.h>

class tst_StandardFolderUrls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void myComputerIsTheRootFolder()
    {
        const QUrl url = StandardFolderUrls::myComputerUrl();
        QVERIFY(url.isValid());
        QCOMPARE(url.toString(), QStringLiteral("file:///"));
        QCOMPARE(url.toLocalFile(), QDir::rootPath());
        QCOMPARE(url, QUrl::fromLocalFile(QStringLiteral("/")));
    }
};

UIC_TEST_MAIN(tst_StandardFolderUrls)
#include "tst_StandardFolderUrls.moc"
