#include "NormalUser.h"
#include "TestMain.h"

#include <UiComponents/PathSelectionWidget.h>

#include <gallery/FolderBrowser.h>

class tst_FolderBrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // In a chroot, and in some containers, the table of mounted disks lists none of those that are seen.
    void freeSpaceOfAnUnlistedDisk()
    {
        PathSelectionWidget field(nullptr);
        connectToDisk(&field);
        const auto* space = field.findChild<QLabel*>("availableLabel");
        const auto showsSpace = [&] {
            Q_EMIT field.pathChanged(QDir::rootPath());
            return space->text().contains(QRegularExpression("[1-9]"));
        };
        const auto emptyTheTable = [] {
            return mountEmpty("/proc") && QDir().mkdir("/proc/self") &&
                   QFile("/proc/self/mounts").open(QIODevice::WriteOnly);
        };
        const Answer answer = askInChild(emptyTheTable, showsSpace);
        if (answer == Answer::Unknown) {
            QTest::qSkip("only where a user may mount file systems", __FILE__, __LINE__);
            return;
        }
        QCOMPARE(answer, Answer::Yes);
    }
};

UIC_TEST_MAIN(tst_FolderBrowser)
#include "tst_FolderBrowser.moc"
