#include "GlogCapture.h"
#include "NormalUser.h"
#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/QuickContent.h>

#include <QLabel>
#include <QSettings>

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Puts something in the place of a file that would have @p good in it.
using Make = bool (*)(const QString& path, const QByteArray& good);

/// Takes the file in. Says whether the user has what would be there with a good one.
using Use = bool (*)(const QString& path);

constexpr int tooLong = 20; // s

QString logged;

QByteArray beginOf(const QString& path)
{
    constexpr int enough = 10000;
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.read(enough) : QByteArray();
}

bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// A black one, in which a few kilobytes say so.
bool writePicture(const QString& path, int side)
{
    return QImage(side, side, QImage::Format_Mono).save(path, "PNG");
}

bool addColor(const QString&)
{
    const QStringList colors = Settings::userCustomColors() << "#123456";
    Settings::setUserCustomColors(colors);
    return Settings::userCustomColors() == colors;
}

bool loadScene(const QString& path)
{
    GlogCapture glog;
    Qml::QuickContent content;
    content.load(path);
    logged += glog.take().join('\n');
    return content.isAvailable() && content.getUiContent()->size() == QSize(5, 4);
}

/// No file is needed for the guide's texts.
bool showGuide(const QString& path)
{
    GuideWidget guide(GuideInfo("title", "description", {}, path), nullptr);
    return !guide.grab().isNull() && guide.findChild<QLabel*>("headerLabel")->isVisibleTo(&guide);
}

/// Whether all that @p before says about the host is in a file of @p folder.
bool isKept(const QByteArray& before, const QString& folder)
{
    const auto linesOf = [](const QByteArray& text) {
        QSet<QByteArray> lines;
        for (const QByteArray& line : text.split('\n')) {
            lines += line.startsWith("userCustomColors=") ? QByteArray() : line;
        }
        return lines;
    };
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
    return before.isEmpty() || std::any_of(files.begin(), files.end(), [&](const QFileInfo& file) {
               return linesOf(beginOf(file.filePath())).contains(linesOf(before));
           });
}

} // namespace
Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Use)

class tst_BadFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data()
    {
        const std::pair<const char*, Make> kinds[] = {
            {"nothing", [](const QString&, const QByteArray&) { return true; }},
            {"good", [](const QString& path, const QByteArray& good) { return write(path, good); }},
            {"empty", [](const QString& path, const QByteArray&) { return write(path, {}); }},
            {"truncated", [](const QString& path,
                             const QByteArray& good) { return write(path, good.left(good.size() / 2)); }},
            {"of another type", [](const QString& path, const QByteArray&) { return writePicture(path, 9); }},
            {"of another encoding",
             [](const QString& path, const QByteArray& good) {
                 const QString text = QString::fromLatin1(good);
                 return write(path, {reinterpret_cast<const char*>(text.utf16()), 2 * text.size()});
             }},
            {"huge",
             [](const QString& path, const QByteArray& good) {
                 constexpr qint64 moreThanQtReads = 3'000'000'000; // and nothing on the disk
                 return write(path, good) && QFile::resize(path, moreThanQtReads);
             }},
            {"a picture that takes all memory",
             [](const QString& path, const QByteArray&) { return writePicture(path, 20000); }},
            {"a pipe", [](const QString& path,
                          const QByteArray&) { return mkfifo(QFile::encodeName(path), 0600) == 0; }},
            {"a folder", [](const QString& path, const QByteArray&) { return QDir().mkdir(path); }},
            {"a link to itself",
             [](const QString& path, const QByteArray&) { return QFile::link(path, path); }},
            {"for others",
             [](const QString& path, const QByteArray& good) {
                 return write(path, good) && QFile::setPermissions(path, {});
             }},
        };
        const std::tuple<const char*, QByteArray, Use> users[] = {
            {"settings",
             "[General]\nhost=5\nuserCustomColors=#112233, #445566\n\n[window]\nsize=@Size(3 4)\n", addColor},
            {"scene", "import QtQuick 2.15\nItem { width: 5; height: 4 }\n", loadScene},
            {"guide", beginOf(UIC_TEST_DATA "/../../../../gallery/resources/guides/search.gif"), showGuide},
        };
        QTest::addColumn<Make>("make");
        QTest::addColumn<QByteArray>("good");
        QTest::addColumn<Use>("use");
        for (const auto& [user, good, use] : users) {
            for (const auto& [kind, make] : kinds) {
                QTest::addRow("%s: %s", user, kind) << make << good << use;
            }
        }
    }

    void survives()
    {
        QFETCH(Make, make);
        QFETCH(QByteArray, good);
        QFETCH(Use, use);
        const QString path = QSettings().fileName();
        const QString folder = QFileInfo(path).path();
        QVERIFY(QDir(folder).removeRecursively() && QDir().mkpath(folder));
        QVERIFY(make(path, good));
        const QByteArray before = beginOf(path);

        const auto survives = [&] {
            logged.clear();
            const auto log = [](QtMsgType, const QMessageLogContext&, const QString& text) {
                logged += text;
            };
            const QtMessageHandler handler = qInstallMessageHandler(log);
            alarm(tooLong);
            const bool isFine = use(path);
            alarm(0);
            qInstallMessageHandler(handler);
            return isFine || logged.contains(path);
        };
        QVERIFY2(survives(), qPrintable(logged));
        QVERIFY(isKept(before, folder));
        QVERIFY(QFile::setPermissions(QDir::homePath(), QFile::Permissions(0x7755)));
        QCOMPARE(askAsNormalUser(survives), Answer::Yes);
        QVERIFY(isKept(before, folder));

        // And when it has gone in between.
        QVERIFY(QDir(folder).removeRecursively());
        QVERIFY2(survives(), qPrintable(logged));
    }
};

UIC_TEST_MAIN(tst_BadFiles)
#include "tst_BadFiles.moc"
