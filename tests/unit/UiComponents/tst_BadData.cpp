#include "GlogCapture.h"
#include "NormalUser.h"
#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/QuickContent.h>
#include <WidgetToolkit/OvComboBox.h>

#include <QLabel>
#include <QSettings>
#include <QTranslator>
#include <QVBoxLayout>

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

/// No file is needed for the title.
bool showGuide(const QString& description, const QString& moviePath)
{
    GuideWidget guide(GuideInfo("title", description, {}, moviePath), nullptr);
    return !guide.grab().isNull() && guide.findChild<QLabel*>("headerLabel")->isVisibleTo(&guide);
}

bool showMovie(const QString& path)
{
    return showGuide("description", path);
}

/// All that Qt loads for rich text.
bool showRichText(const QString& path)
{
    const QString files =
        "<link rel='stylesheet' href='%1'><p style='background-image: url(%1)'><img src='%1'>";
    return showGuide(files.arg(path), {});
}

/// Whether all that @p before says about the host is in a file of @p folder.
bool isKept(const QByteArray& before, const QString& folder)
{
    const auto linesOf = [](const QByteArray& text) {
        QSet<QByteArray> lines;
        const auto all = text.split('\n');
        for (const QByteArray& line : all) {
            lines += line.startsWith("userCustomColors=") ? QByteArray() : line;
        }
        return lines;
    };
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files);
    return before.isEmpty() || std::any_of(files.begin(), files.end(), [&](const QFileInfo& file) {
               return linesOf(beginOf(file.filePath())).contains(linesOf(before));
           });
}

/// A model that keeps no promise.
class BadModel : public QAbstractListModel
{
public:
    BadModel(int rows, QVariant value)
        : m_rows(rows)
        , m_value(std::move(value))
    {
    }
    int rowCount(const QModelIndex& = {}) const override { return m_rows; }
    QVariant data(const QModelIndex&, int = 0) const override { return m_value; }
    Qt::ItemFlags flags(const QModelIndex&) const override { return ~Qt::ItemFlags(); }

private:
    const int m_rows;
    const QVariant m_value;
};

/// What of a host's data is on the screen all the time.
struct Window : QWidget
{
    Window()
    {
        auto* const layout = new QVBoxLayout(this);
        for (QWidget* part : std::initializer_list<QWidget*>{&panel, &guide, &list, &box}) {
            layout->addWidget(part);
        }
        show();
    }

    ColorPickerWidget panel{nullptr, true};
    GuideWidget guide{GuideInfo("title", "description", "more", {}), nullptr};
    AdjustingListView list{nullptr};
    OvComboBox box{nullptr};
};

void mute(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace
Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Use)

class tst_BadData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Q_INIT_RESOURCE(styles); }

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
            {"a device",
             [](const QString& path, const QByteArray&) { return QFile::link("/dev/zero", path); }},
            {"a folder", [](const QString& path, const QByteArray&) { return QDir().mkdir(path); }},
            {"a link to itself",
             [](const QString& path, const QByteArray&) { return QFile::link(path, path); }},
            {"for others",
             [](const QString& path, const QByteArray& good) {
                 return write(path, good) && QFile::setPermissions(path, {});
             }},
        };
        const QByteArray picture = beginOf(UIC_TEST_DATA "/../../../../gallery/resources/guides/search.gif");
        const std::tuple<const char*, QByteArray, Use> users[] = {
            {"settings",
             "[General]\nhost=5\nuserCustomColors=#112233, #445566\n\n[window]\nsize=@Size(3 4)\n", addColor},
            {"scene", "import QtQuick 2.15\nItem { width: 5; height: 4 }\n", loadScene},
            {"guide", picture, showMovie},
            {"guide's text", picture, showRichText},
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

    void models_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<QVariant>("value");
        for (const int rows : {0, 3, 1000}) {
            for (const QVariant& value :
                 {QVariant(), QVariant(QVariantMap()), QVariant(QSize(-9, 1 << 30)), QVariant(1e300),
                  QVariant(QString(QChar(0xd800)).repeated(5000)), QVariant(QPixmap(0, 0))}) {
                QTest::addRow("%d times %s", rows, value.typeName()) << rows << value;
            }
        }
    }

    void models()
    {
        QFETCH(int, rows);
        QFETCH(QVariant, value);
        BadModel model(rows, value);
        Window window;
        window.list.setModel(&model);
        window.box.setModel(&model);
        QCoreApplication::processEvents();
        window.box.showPopup();
        QVERIFY(!window.grab().isNull());
        QCOMPARE(window.box.count(), rows);
    }

    void sheets_data()
    {
        QTest::addColumn<QString>("sheet");
        QFile file(":/styles/dark.qss");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString sheet = QString::fromUtf8(file.readAll());
        constexpr int parts = 12;
        for (int i = 0; i < parts; ++i) {
            QTest::addRow("cut after %d", i) << sheet.left(sheet.size() * i / parts);
        }
        QTest::newRow("another encoding")
            << QString(sheet).replace('a', QChar(0)).replace('{', QChar(0xd800));
        QTest::newRow("impossible values")
            << "* { qproperty-layoutMargin: red; qproperty-layoutSpacing: 99999999999; "
               "qproperty-currentColor: 7;"
               " qproperty-minimumSize: -4; font-size: 99999px; margin: -3px; border-radius: 1e9px; }";
        QTest::newRow("pictures that are none")
            << "* { border-image: url(/nowhere.png) 9 9; image: url(:/x); }";
    }

    void sheets()
    {
        QFETCH(QString, sheet);
        const QtMessageHandler handler = qInstallMessageHandler(mute);
        Window window;
        window.setStyleSheet(sheet);
        QCoreApplication::processEvents();
        const bool isPainted = !window.grab().isNull();
        qInstallMessageHandler(handler);
        QVERIFY(isPainted);
    }

    void translations_data()
    {
        QTest::addColumn<bool>("isCut");
        QTest::newRow("cut") << true;
        QTest::newRow("with a wrong byte") << false;
    }

    void translations()
    {
        QFETCH(bool, isCut);
        QFile file(":/uicomponents/translations/uicomponents_de.qm");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray good = file.readAll();
        Window window;
        // Only the sections at the end may be cut and the rest still be taken.
        constexpr int end = 200;
        int loaded = 0;
        for (int length = good.size(); length > 0; length -= good.size() - length < end ? 1 : 97) {
            QByteArray bad = isCut ? good.left(length) : good;
            if (!isCut) {
                bad[length - 1] = static_cast<char>(~bad.at(length - 1));
            }
            QTranslator translator;
            if (translator.load(reinterpret_cast<const uchar*>(bad.constData()), bad.size())) {
                QCoreApplication::installTranslator(&translator);
                QCoreApplication::processEvents();
                ++loaded;
            }
        }
        QVERIFY(loaded > 1);
    }
};

UIC_TEST_MAIN(tst_BadData)
#include "tst_BadData.moc"
