#include "MetaObject.h"
#include "NormalUser.h"
#include "QmlTest.h"
#include "TestMain.h"

#include <UiComponents/QuickContent.h>

#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QTcpServer>
#include <QTcpSocket>

#include <sys/stat.h>

using Qml::QuickContent;

namespace {

const QString noRoot = QStringLiteral("WARNING QuickContent.cpp: Could not resolve root object for main qml");

QString notFound(const QString& path)
{
    return QStringLiteral("WARNING QuickContent.cpp: Could not find main qml file: ") + path;
}

QQuickWidget* viewOf(QuickContent& content)
{
    return content.getUiContent()->findChild<QQuickWidget*>();
}

} // namespace

class tst_QuickContent : public QmlTest
{
    Q_OBJECT

private Q_SLOTS:
    void fresh()
    {
        QuickContent content;
        QVERIFY(content.isUndefined());
        QVERIFY(!content.isAvailable());
        QVERIFY(!content.parent());
        const QPointer<QWidget> container = content.getUiContent();
        QVERIFY(container);
        QCOMPARE(container->metaObject()->className(), "QWidget");
        QVERIFY(!container->parent());
        QVERIFY(qobject_cast<QVBoxLayout*>(container->layout()));
        QCOMPARE(container->layout()->contentsMargins(), QMargins());
        QCOMPARE(container->layout()->count(), 1);

        auto* const view = qobject_cast<QQuickWidget*>(container->layout()->itemAt(0)->widget());
        QVERIFY(view);
        QVERIFY(view->testAttribute(Qt::WA_AlwaysStackOnTop));
        QCOMPARE(view->quickWindow()->color(), QColor(Qt::transparent));
        QCOMPARE(content.qmlContext().data(), view->rootContext());
    }

    void paths_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("a space") << QStringLiteral("a b.qml");
        QTest::newRow("what a URL would take for something else") << QStringLiteral("50% #1?x=&y.qml");
        QTest::newRow("an encoded character") << QStringLiteral("a%20b.qml");
        QTest::newRow("other scripts") << QString::fromUtf8("Übergänge 画面.qml");
        QTest::newRow("no ending") << QStringLiteral("scene");
        QTest::newRow("a scheme") << QStringLiteral("qrc:scene.qml");
    }

    void paths()
    {
        QFETCH(QString, name);
        QuickContent content;
        content.load(m_files->file(name, QmlFiles::itemText(QStringLiteral("width: 7; height: 5"))));
        QVERIFY(content.isAvailable());
        QCOMPARE(content.getUiContent()->size(), QSize(7, 5));
    }

    void relativePath()
    {
        m_files->file(QStringLiteral("Part.qml"), QmlFiles::itemText(QStringLiteral("width: 9")));
        m_files->file(QStringLiteral("main.qml"), QStringLiteral("import QtQuick 2.15\nPart { height: 4 }"));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_files->path()));
        QuickContent content;
        content.load(QStringLiteral("main.qml"));
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(content.isAvailable());
        QCOMPARE(content.getUiContent()->size(), QSize(9, 4));
    }

    void pathsThatAreNoFiles_data()
    {
        QTest::addColumn<QString>("path");

        QTest::newRow("empty") << QString();
        QTest::newRow("missing") << QStringLiteral("/nowhere/Scene.qml");
        QTest::newRow("logged as it is")
            << QString::fromUtf8("./no such/../フォルダ//Überblick %20 <b>.qml ");
        QTest::newRow("http") << QStringLiteral("http://127.0.0.1/Scene.qml");
        QTest::newRow("https") << QStringLiteral("https://127.0.0.1/Scene.qml");
        QTest::newRow("qrc") << QStringLiteral("qrc:/Scene.qml");
        QTest::newRow("resource") << QStringLiteral(":/Scene.qml");
        QTest::newRow("file URL") << QStringLiteral("file:///etc/hostname");
    }

    void pathsThatAreNoFiles()
    {
        QFETCH(QString, path);
        QuickContent content;
        const QSize before = content.getUiContent()->size();
        content.load(path);
        QCOMPARE(m_log->take(), QStringList{notFound(path)});
        QVERIFY(!content.isAvailable());
        QVERIFY(!content.isUndefined());
        QCOMPARE(content.getUiContent()->size(), before);
        content.load(m_files->item(QStringLiteral("width: 10; height: 10")));
        QVERIFY(content.isAvailable());
        QCOMPARE(content.getUiContent()->size(), QSize(10, 10));
    }

    void folder()
    {
        QuickContent content;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^file://.*")));
        content.load(m_files->path());
        QCOMPARE(m_log->take(), QStringList{noRoot});
        QVERIFY(!content.isAvailable());
        QVERIFY(!content.isUndefined());
    }

    void filesWithoutARootItem_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("warning");

        QTest::newRow("empty") << QString() << QStringLiteral("File is empty");
        QTest::newRow("syntax error")
            << QStringLiteral("import QtQuick 2.15\nItem { width: ") << QStringLiteral(":2");
        QTest::newRow("no QML at all") << QStringLiteral("\x01\x02 <html>") << QStringLiteral("file:");
        QTest::newRow("missing import")
            << QStringLiteral("import No.Such.Module 1.0\nItem {}") << QStringLiteral("is not installed");
        QTest::newRow("missing type") << QStringLiteral("import QtQuick 2.15\nNoSuchItem {}")
                                      << QStringLiteral("NoSuchItem is not a type");
        QTest::newRow("missing property") << QStringLiteral("import QtQuick 2.15\nItem { noSuch: 1 }")
                                          << QStringLiteral("non-existent property");
        QTest::newRow("no item") << QStringLiteral("import QtQuick 2.15\nQtObject {}")
                                 << QStringLiteral(
                                        "only supports loading of root objects that derive from QQuickItem");
        QTest::newRow("a window") << QStringLiteral("import QtQuick 2.15\nimport QtQuick.Window 2.15\n"
                                                    "Window { width: 9; height: 9; visible: true }")
                                  << QStringLiteral("does not support using windows as a root item");
        QTest::newRow("a window in a window")
            << QStringLiteral("import QtQuick 2.15\nimport QtQuick.Window 2.15\n"
                              "Window { width: 9; height: 9; visible: true; Window { visible: true } }")
            << QStringLiteral("does not support using windows as a root item");
    }

    void filesWithoutARootItem()
    {
        QFETCH(QString, text);
        QFETCH(QString, warning);
        QuickContent content;
        const int windows = QGuiApplication::allWindows().size();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        content.load(m_files->file(QStringLiteral("main.qml"), text));
        QCOMPARE(m_log->take(), QStringList{noRoot});
        QVERIFY(!content.isAvailable());
        QVERIFY(!content.isUndefined());
        QCoreApplication::processEvents();
        QCOMPARE(QGuiApplication::allWindows().size(), windows);
    }

    void sizes_data()
    {
        QTest::addColumn<QString>("properties");
        QTest::addColumn<QSize>("size");

        QTest::newRow("none given") << QString() << QSize(0, 0);
        QTest::newRow("zero") << QStringLiteral("width: 0; height: 0") << QSize(0, 0);
        QTest::newRow("zero width") << QStringLiteral("width: 0; height: 12") << QSize(0, 12);
        QTest::newRow("one") << QStringLiteral("width: 1; height: 1") << QSize(1, 1);
        QTest::newRow("below a half") << QStringLiteral("width: 100.4; height: 50.49") << QSize(100, 50);
        QTest::newRow("a half") << QStringLiteral("width: 100.5; height: 50.5") << QSize(101, 51);
        QTest::newRow("above a half") << QStringLiteral("width: 100.6; height: 0.9") << QSize(101, 1);
        QTest::newRow("implicit") << QStringLiteral("implicitWidth: 31; implicitHeight: 32") << QSize(31, 32);
        QTest::newRow("bound") << QStringLiteral("property int n: 4; width: n * 10; height: width / 2")
                               << QSize(40, 20);
        QTest::newRow("set when complete")
            << QStringLiteral("width: 5; Component.onCompleted: { width = 55; height = 44 }")
            << QSize(55, 44);
        QTest::newRow("larger than any widget")
            << QStringLiteral("width: 1e12; height: 3") << QSize(QWIDGETSIZE_MAX - 1, 3);
        QTest::newRow("without end") << QStringLiteral("width: Infinity; height: 3")
                                     << QSize(QWIDGETSIZE_MAX - 1, 3);
        QTest::newRow("not a number") << QStringLiteral("width: NaN; height: 3") << QSize(0, 3);
    }

    void sizes()
    {
        QFETCH(QString, properties);
        QFETCH(QSize, size);
        QuickContent content;
        content.load(m_files->item(properties));
        QVERIFY(content.isAvailable());
        QVERIFY(!content.isUndefined());
        QCOMPARE(content.getUiContent()->minimumSize(), size);
        QCOMPARE(content.getUiContent()->maximumSize(), size);
        QCOMPARE(content.getUiContent()->size(), size);
        QVERIFY(!content.getUiContent()->isVisible());
    }

    void invalidSizes_data()
    {
        QTest::addColumn<QString>("properties");

        QTest::newRow("width") << QStringLiteral("width: -1; height: 10");
        QTest::newRow("height") << QStringLiteral("width: 10; height: -1");
        QTest::newRow("both") << QStringLiteral("width: -300; height: -200");
        QTest::newRow("a fraction below") << QStringLiteral("width: -0.001; height: 10");
    }

    // No message: the file was there and made an item.
    void invalidSizes()
    {
        QFETCH(QString, properties);
        QuickContent content;
        const QSize before = content.getUiContent()->size();
        content.load(m_files->item(properties));
        QVERIFY(!content.isAvailable());
        QVERIFY(!content.isUndefined());
        QCOMPARE(content.getUiContent()->size(), before);
        QCOMPARE(content.getUiContent()->maximumWidth(), QWIDGETSIZE_MAX);
    }

    void scriptThatThrows()
    {
        QuickContent content;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("out of cheese")));
        content.load(m_files->item(QStringLiteral(
            "width: 6; height: 4; Component.onCompleted: { throw new Error('out of cheese') }")));
        QVERIFY(content.isAvailable());
        QCOMPARE(content.getUiContent()->size(), QSize(6, 4));
    }

    void contextProperties()
    {
        QuickContent content;
        content.qmlContext()->setContextProperty(QStringLiteral("cells"), 6);
        content.load(m_files->item(QStringLiteral("width: cells * 10; height: cells")));
        QCOMPARE(content.getUiContent()->size(), QSize(60, 6));
    }

    void codeFromTheNetworkIsRefused_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("refused");
        QTest::addColumn<QStringList>("warnings");
        QTest::addColumn<bool>("isAvailable");

        const QString noUrl = QStringLiteral("Invalid null URL");
        QTest::newRow("folder") << QStringLiteral("import \"%1/parts\"\nPart {}")
                                << QStringLiteral("/parts/qmldir")
                                << QStringList{QStringLiteral("Part is not a type")} << false;
        QTest::newRow("script") << QStringLiteral("import \"%1/a.js\" as A\nItem {}")
                                << QStringLiteral("/a.js")
                                << QStringList{QStringLiteral("Script .*unavailable"), noUrl} << false;
        QTest::newRow("loader") << QStringLiteral("Loader { source: \"%1/Part.qml\" }")
                                << QStringLiteral("/Part.qml") << QStringList{noUrl} << true;
        QTest::newRow("loader in the background")
            << QStringLiteral("Loader { asynchronous: true; source: \"%1/Part.qml\" }")
            << QStringLiteral("/Part.qml") << QStringList{noUrl} << true;
        QTest::newRow("component") << QStringLiteral("Item { property url u: \"%1/Part.qml\"\n"
                                                     "Component.onCompleted: Qt.createComponent(u) }")
                                   << QStringLiteral("/Part.qml") << QStringList() << true;
        QTest::newRow("included by a local script")
            << QStringLiteral("import \"local.js\" as Local\nItem { objectName: \"%1\" }")
            << QStringLiteral("/a.js") << QStringList() << true;
    }

    void codeFromTheNetworkIsRefused()
    {
        QFETCH(QString, text);
        QFETCH(QString, refused);
        QFETCH(QStringList, warnings);
        QFETCH(bool, isAvailable);
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        QSignalSpy asked(&server, &QTcpServer::newConnection);
        const QString address = QStringLiteral("http://127.0.0.1:%1").arg(server.serverPort());
        m_files->file(QStringLiteral("local.js"), QStringLiteral("Qt.include('%1/a.js')").arg(address));

        for (const QString& warning : warnings) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        }
        QuickContent content;
        content.load(m_files->file(QStringLiteral("main.qml"),
                                   QStringLiteral("import QtQuick 2.15\n") + text.arg(address)));
        QCOMPARE(content.isAvailable(), isAvailable);
        const QQuickItem* const root = viewOf(content)->rootObject();
        if (root && root->inherits("QQuickLoader")) {
            constexpr int loaderError = 3;
            QTRY_COMPARE(root->property("status").toInt(), loaderError);
        }
        const QString line = QStringLiteral("WARNING QuickContent.cpp: Refused to load as qml: ");
        QTRY_VERIFY(m_log->lines().contains(line + address + refused));
        m_log->take();

        // Whoever asked the server did so before this, so it would be counted.
        QTcpSocket fence;
        fence.connectToHost(QHostAddress::LocalHost, server.serverPort());
        QTRY_VERIFY(asked.count() > 0);
        QCOMPARE(asked.count(), 1);
    }

    void pipesAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("warnings");

        QTest::newRow("list of a folder") << QStringLiteral("qmldir") << QStringList();
        QTest::newRow("script") << QStringLiteral("script.js")
                                << QStringList{QStringLiteral("Script .*unavailable"),
                                               QStringLiteral("Invalid null URL")};
    }

    // Qt would wait for ever for somebody to write into them.
    void pipesAreRefused()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, warnings);
        const QString path = QDir(m_files->path()).filePath(name);
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        for (const QString& warning : warnings) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        }
        const QString script = QStringLiteral("import \"script.js\" as Script\n");
        QuickContent content;
        content.load(m_files->file(QStringLiteral("main.qml"),
                                   (name.endsWith(QLatin1String(".js")) ? script : QString()) +
                                       QmlFiles::itemText(QStringLiteral("width: 5"))));
        QCOMPARE(content.isAvailable(), warnings.isEmpty());
        QVERIFY(m_log->take().contains(QStringLiteral("WARNING QuickContent.cpp: Refused to load as qml: ") +
                                       QUrl::fromLocalFile(path).toString()));
    }

    void codeFromTheDiskIsLoaded()
    {
        QVERIFY(QDir(m_files->path()).mkdir(QStringLiteral("parts")));
        m_files->file(QStringLiteral("parts/Part.qml"), QmlFiles::itemText(QStringLiteral("height: 8")));
        m_files->file(QStringLiteral("parts/numbers.js"), QStringLiteral("var wide = 64;"));
        QuickContent content;
        content.load(m_files->file(QStringLiteral("main.qml"),
                                   QStringLiteral("import QtQuick 2.15\nimport \"parts\"\n"
                                                  "import \"parts/numbers.js\" as Numbers\n"
                                                  "Part { width: Numbers.wide }")));
        QVERIFY(content.isAvailable());
        QCOMPARE(content.getUiContent()->size(), QSize(64, 8));
    }

    // Also what codeFromTheNetworkIsRefused() relies on: a request does arrive.
    void picturesAreTheScenesAffair()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        QSignalSpy asked(&server, &QTcpServer::newConnection);
        QuickContent content;
        content.load(m_files->item(
            QStringLiteral("Image { source: 'http://127.0.0.1:%1/a.png' }").arg(server.serverPort())));
        QVERIFY(content.isAvailable());
        QTRY_COMPARE(asked.count(), 1);
    }

    void sceneChangesItsSize()
    {
        QuickContent content;
        content.load(m_files->item(QStringLiteral("width: 40; height: 30")));
        QQuickItem* const root = viewOf(content)->rootObject();
        root->setWidth(90.6);
        QCOMPARE(content.getUiContent()->minimumSize(), QSize(91, 30));
        QCOMPARE(content.getUiContent()->maximumSize(), QSize(91, 30));
        root->setHeight(10);
        QCOMPARE(content.getUiContent()->size(), QSize(91, 10));
        QVERIFY(content.isAvailable());
    }

    void sceneChangesItsSizeToAnInvalidOne()
    {
        QuickContent content;
        content.load(m_files->item(QStringLiteral("width: 40; height: 30")));
        QQuickItem* const root = viewOf(content)->rootObject();
        root->setWidth(-5);
        QCOMPARE(content.getUiContent()->size(), QSize(40, 30));
        root->setHeight(50);
        QCOMPARE(content.getUiContent()->size(), QSize(40, 30));
        QVERIFY(content.isAvailable());
        root->setWidth(60);
        QCOMPARE(content.getUiContent()->size(), QSize(60, 50));
    }

    void sceneChangesItsSizeWhileItDies()
    {
        m_files->item(
            QStringLiteral("id: root; width: 40; height: 30; Component.onDestruction: root.width = 99; "
                           "Item { Component.onDestruction: { root.width = 88; root.height = 77 } }"));
        {
            QuickContent content;
            content.load(m_files->path() + QStringLiteral("/main.qml"));
            QVERIFY(content.isAvailable());
            content.load(m_files->path() + QStringLiteral("/main.qml"));
            QCOMPARE(content.getUiContent()->size(), QSize(40, 30));
        }
        QuickContent content;
        content.load(m_files->path() + QStringLiteral("/main.qml"));
        delete content.getUiContent();
    }

    void loadedAgain()
    {
        QuickContent content;
        const QPointer<QWidget> container = content.getUiContent();
        const QQuickWidget* const view = viewOf(content);
        content.load(m_files->file(QStringLiteral("a.qml"), QmlFiles::itemText(QStringLiteral("width: 10"))));
        const QPointer<QQuickItem> first = view->rootObject();
        content.load(m_files->file(QStringLiteral("b.qml"), QmlFiles::itemText(QStringLiteral("width: 20"))));
        QVERIFY(content.isAvailable());
        QVERIFY(!first);
        QCOMPARE(content.getUiContent(), container);
        QCOMPARE(viewOf(content), view);
        QCOMPARE(container->size(), QSize(20, 0));
        view->rootObject()->setWidth(25);
        QCOMPARE(container->size(), QSize(25, 0));
    }

    void changedFileIsReadAnew()
    {
        QuickContent content;
        content.load(m_files->item(QStringLiteral("width: 10")));
        QCOMPARE(content.getUiContent()->width(), 10);
        const QString path = m_files->item(QStringLiteral("width: 200"));
        // Qt tells files by their time, and the clock of a file system takes several milliseconds a tick.
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFile::FileModificationTime));
        file.close();
        content.load(path);
        QCOMPARE(content.getUiContent()->width(), 200);
    }

    void unchangedFileStartsAfresh()
    {
        QuickContent content;
        const QString path = m_files->item(QStringLiteral("width: 10; height: 10"));
        content.load(path);
        viewOf(content)->rootObject()->setWidth(99);
        content.load(path);
        QCOMPARE(content.getUiContent()->size(), QSize(10, 10));
    }

    void failureAfterSuccess_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QStringList>("log");
        QTest::addColumn<bool>("isSceneKept");

        QTest::newRow("missing") << QString() << QString()
                                 << QStringList{notFound(QStringLiteral("/nowhere"))} << true;
        QTest::newRow("broken") << QStringLiteral("import QtQuick 2.15\nItem {") << QStringLiteral(":2")
                                << QStringList{noRoot} << false;
        QTest::newRow("invalid size")
            << QmlFiles::itemText(QStringLiteral("width: -1")) << QString() << QStringList() << false;
    }

    void failureAfterSuccess()
    {
        QFETCH(QString, text);
        QFETCH(QString, warning);
        QFETCH(QStringList, log);
        QFETCH(bool, isSceneKept);
        QuickContent content;
        content.load(m_files->item(QStringLiteral("width: 10; height: 10")));
        const QPointer<QQuickItem> scene = viewOf(content)->rootObject();
        if (!warning.isEmpty()) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
        }
        content.load(text.isEmpty() ? QStringLiteral("/nowhere")
                                    : m_files->file(QStringLiteral("next.qml"), text));
        QCOMPARE(m_log->take(), log);
        QVERIFY(!content.isAvailable());
        QVERIFY(!content.isUndefined());
        QCOMPARE(!scene.isNull(), isSceneKept);
        QCOMPARE(content.getUiContent()->size(), QSize(10, 10));
    }

    void viewDiesBeforeTheContainer()
    {
        QStringList deaths;
        {
            QuickContent content;
            content.load(m_files->item(QStringLiteral("width: 10; height: 10")));
            connect(content.getUiContent(), &QObject::destroyed, this,
                    [&] { deaths += QStringLiteral("container"); });
            connect(viewOf(content), &QObject::destroyed, this, [&] { deaths += QStringLiteral("view"); });
        }
        QCOMPARE(deaths, (QStringList{QStringLiteral("view"), QStringLiteral("container")}));
    }

    void containerIsGivenBackAndUsedAgain()
    {
        QuickContent content;
        content.load(m_files->item(QStringLiteral("width: 30; height: 20; Rectangle { anchors.fill: parent; "
                                                  "color: '#204060' }")));
        const QPointer<QWidget> container = content.getUiContent();
        for (int round = 0; round < 3; ++round) {
            QWidget window;
            auto* const layout = new QVBoxLayout(&window);
            layout->addWidget(container);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QVERIFY(container->isVisible());
            QCOMPARE(container->size(), QSize(30, 20));
            QTRY_COMPARE(container->grab().toImage().pixelColor(15, 10), QColor(0x20, 0x40, 0x60));
            container->setParent(nullptr);
        }
        QVERIFY(container);
        QVERIFY(content.isAvailable());
    }

    void containerInAWindowWhenTheContentDies()
    {
        QWidget window;
        auto* const layout = new QVBoxLayout(&window);
        QPointer<QWidget> container;
        {
            QuickContent content;
            content.load(m_files->item(QStringLiteral("width: 30; height: 20")));
            container = content.getUiContent();
            layout->addWidget(container);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
        }
        QVERIFY(!container);
        QCOMPARE(layout->count(), 0);
    }

    void containerDiesWithItsWindow()
    {
        QuickContent content;
        const QString path = m_files->item(QStringLiteral("width: 30; height: 20"));
        content.load(path);
        {
            QWidget window;
            (new QVBoxLayout(&window))->addWidget(content.getUiContent());
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
        }
        QVERIFY(!content.getUiContent());
        QVERIFY(!content.qmlContext());
        QVERIFY(content.isAvailable());
        content.load(path);
        QCOMPARE(m_log->take(), QStringList{noRoot});
        QVERIFY(!content.isAvailable());
    }

    void containerDiesWithItsWindowBeforeLoading()
    {
        QuickContent content;
        delete content.getUiContent();
        QVERIFY(content.isUndefined());
        content.load(m_files->item(QStringLiteral("width: 30; height: 20")));
        QCOMPARE(m_log->take(), QStringList{noRoot});
        QVERIFY(!content.isAvailable());
        QVERIFY(!content.isUndefined());
    }
};

UIC_TEST_MAIN(tst_QuickContent)
#include "moc_QmlTest.cpp"
#include "tst_QuickContent.moc"
