#include "AccessibleEars.h"
#include "OnEvent.h"
#include "QmlTest.h"
#include "TestMain.h"

#include <UiComponents/QuickContent.h>
#include <UiComponents/QuickDialog.h>

#include <QQmlContext>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>

#include <functional>

using Qml::QuickDialog;

namespace {

constexpr int rounds = 3;

const QString lit = QStringLiteral("width: 120; height: 80; color: '#206040'");

/// What a host derives to give values to a scene and take them back.
class FormDialog : public QuickDialog
{
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER name NOTIFY nameChanged)

public:
    using QuickDialog::content;
    using QuickDialog::cursorPos;
    using QuickDialog::QuickDialog;

    QWidget* container() { return content()->getUiContent(); }
    QQuickWidget* view() { return container()->findChild<QQuickWidget*>(); }
    QQuickItem* root() { return view()->rootObject(); }

    Q_INVOKABLE void call()
    {
        if (onCall) {
            onCall();
        }
    }

    std::function<void()> onCall;
    QString name;

Q_SIGNALS:
    void nameChanged();
};

/// Runs the dialog, and @p meanwhile once its event loop does. A check that fails there ends it.
int execWith(QuickDialog& dialog, const std::function<void()>& meanwhile)
{
    const QPointer<QDialog> alive = &dialog;
    QTimer start;
    start.setSingleShot(true);
    QObject::connect(&start, &QTimer::timeout, &start, [&] {
        meanwhile();
        if (alive && QTest::currentTestFailed()) {
            alive->reject();
        }
    });
    start.start(0);
    return dialog.exec();
}

using Act = std::function<void(FormDialog*)>;

} // namespace

Q_DECLARE_METATYPE(Act)

class tst_QuickDialog : public QmlTest
{
    Q_OBJECT

private Q_SLOTS:
    void readersFindTheScene()
    {
        FormDialog dialog;
        dialog.setQmlPath(m_files->item(QStringLiteral(
            "width: 120; height: 80; Accessible.role: Accessible.Pane; Accessible.name: 'Discard the clip?'\n"
            "Rectangle { width: 50; height: 20; Accessible.role: Accessible.Button; Accessible.name: "
            "'Discard'\n"
            "Accessible.onPressAction: callback.accept() }")));
        const int result = execWith(dialog, [&dialog] {
            QCOMPARE(spokenName(&dialog), QStringLiteral("Discard the clip?"));
            QAccessibleInterface& view = reader(dialog.view());
            QCOMPARE(accessibleTree(view),
                     QStringList({QStringLiteral("Client"), QStringLiteral("  Pane Discard the clip?"),
                                  QStringLiteral("    Button Discard")}));
            QAccessibleInterface* const button = view.child(0)->child(0);
            QCOMPARE(view.indexOfChild(view.child(0)), 0);
            const QPoint middle = button->rect().center();
            QCOMPARE(view.childAt(middle.x(), middle.y()), view.child(0));
            dialog.setWindowTitle(QStringLiteral("Clip"));
            QCOMPARE(spokenName(&dialog), QStringLiteral("Clip"));
            button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        });
        QCOMPARE(result, int(QDialog::Accepted));
    }

    void fresh()
    {
        QWidget parent;
        FormDialog dialog(&parent);
        QCOMPARE(dialog.parentWidget(), &parent);
        QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(!dialog.isVisible());
        QVERIFY(dialog.content());
        QVERIFY(dialog.content()->isUndefined());
        QVERIFY(!dialog.container()->parent());
        QCOMPARE(
            dialog.content()->qmlContext()->contextProperty(QStringLiteral("callback")).value<QObject*>(),
            &dialog);
        const QuickDialog alone;
        QVERIFY(!alone.parentWidget());
    }

    void sizePolicyKeepsHeightForWidth()
    {
        FormDialog dialog;
        QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        policy.setHeightForWidth(true);
        policy.setHorizontalStretch(3);
        policy.setVerticalStretch(4);
        dialog.setSizePolicy(policy);
        dialog.setQmlPath(scene());
        execWith(dialog, [&dialog] { dialog.accept(); });
        QSizePolicy expected(QSizePolicy::Minimum, QSizePolicy::Minimum);
        expected.setHeightForWidth(true);
        QCOMPARE(dialog.sizePolicy(), expected);
    }

    void everyExec()
    {
        QWidget parent;
        FormDialog dialog(&parent);
        dialog.setQmlPath(scene());
        QPointer<QLayout> before;
        for (int round = 0; round < rounds; ++round) {
            const int result = execWith(dialog, [&dialog, &before] {
                QCOMPARE(static_cast<int>(dialog.windowFlags()), 0x803);
                QVERIFY(dialog.isModal());
                QVERIFY(dialog.isVisible());
                QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
                QCOMPARE(dialog.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
                QCOMPARE(dialog.size(), QSize(120, 80));

                auto* const layout = qobject_cast<QHBoxLayout*>(dialog.layout());
                QVERIFY(layout && !before);
                QCOMPARE(dialog.findChildren<QLayout*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
                QCOMPARE(layout->contentsMargins(), QMargins());
                QCOMPARE(layout->spacing(), 0);
                QCOMPARE(layout->count(), 1);
                QCOMPARE(layout->itemAt(0)->widget(), dialog.container());
                QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
                QCOMPARE(layout->stretch(0), 0);

                QCOMPARE(dialog.container()->parent(), &dialog);
                QVERIFY(dialog.container()->isVisible());
                for (const QWidget* part : {dialog.container(), static_cast<QWidget*>(dialog.view())}) {
                    QCOMPARE(part->geometry(), QRect(0, 0, 120, 80));
                }
                QVERIFY(dialog.view()->isVisible());
                QCOMPARE(dialog.view()->window(), &dialog);
                QTRY_COMPARE(dialog.grab().toImage().pixelColor(60, 40), QColor(0x20, 0x60, 0x40));
                dialog.accept();
            });
            QCOMPARE(result, 1);
            QVERIFY(!dialog.isVisible());
            before = dialog.layout();
            QCOMPARE(before->count(), 0);
            QVERIFY(!dialog.container()->parent());
            QVERIFY(!dialog.container()->isVisible());
        }
    }

    void layoutOfTheHostIsReplaced()
    {
        FormDialog dialog;
        auto* const mine = new QVBoxLayout(&dialog);
        auto* const button = new QPushButton(&dialog);
        mine->addWidget(button);
        dialog.setQmlPath(scene());
        execWith(dialog, [&dialog] {
            QCOMPARE(dialog.size(), QSize(120, 80));
            dialog.accept();
        });
        QVERIFY(qobject_cast<QHBoxLayout*>(dialog.layout()));
        QCOMPARE(button->parent(), &dialog);
    }

    void filesThatCannotBeLoaded_data()
    {
        QTest::addColumn<QString>("body"); // of a scene
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("logged");
        const QString missing = QStringLiteral("Could not find main qml file: ");
        const QString nowhere = QStringLiteral("/nowhere/Scene.qml");
        QTest::newRow("no path") << QString() << QString() << missing;
        QTest::newRow("missing") << QString() << nowhere << missing + nowhere;
        QTest::newRow("broken") << "width:" << QString() << "Could not resolve root object for main qml";
    }

    void filesThatCannotBeLoaded()
    {
        QFETCH(QString, body);
        QFETCH(QString, path);
        QFETCH(QString, logged);
        FormDialog dialog;
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.setQmlPath(body.isEmpty() ? path : scene(body));
        if (!body.isEmpty()) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("main.qml:2")));
        }
        QCOMPARE(dialog.exec(), 0);
        QCOMPARE(m_log->take(), QStringList{QStringLiteral("WARNING QuickContent.cpp: ") + logged});
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.layout());
        QVERIFY(!dialog.content()->isUndefined());
        QVERIFY(!dialog.container() || !dialog.container()->parent());
        QCOMPARE(finished.count(), 0);
    }

    void failedLoadIsNotRetried()
    {
        FormDialog dialog;
        dialog.exec();
        m_log->take();
        dialog.setQmlPath(scene());
        for (int round = 0; round < rounds; ++round) {
            QCOMPARE(dialog.exec(), 0);
        }
        QVERIFY(!dialog.content()->isAvailable());
        // Nothing was logged again either: cleanup() looks.
    }

    void pathAfterTheFirstExecHasNoEffect()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene());
        execWith(dialog, [&dialog] { dialog.accept(); });
        dialog.setQmlPath(QStringLiteral("/nowhere/Scene.qml"));
        const int result = execWith(dialog, [&dialog] {
            QCOMPARE(dialog.size(), QSize(120, 80));
            dialog.accept();
        });
        QCOMPARE(result, 1);
    }

    void results_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<int>("result");

        QTest::newRow("accept") << QStringLiteral("callback.accept()") << 1;
        QTest::newRow("reject") << QStringLiteral("callback.reject()") << 0;
        QTest::newRow("done") << QStringLiteral("callback.done(42)") << 42;
        QTest::newRow("done below zero") << QStringLiteral("callback.done(-7)") << -7;
        QTest::newRow("accept twice") << QStringLiteral("{ callback.done(5); callback.accept() }") << 1;
    }

    void results()
    {
        QFETCH(QString, end);
        QFETCH(int, result);
        FormDialog dialog;
        dialog.setQmlPath(
            scene(lit + QStringLiteral("; MouseArea { anchors.fill: parent; onClicked: %1 }").arg(end)));
        for (int round = 0; round < rounds; ++round) {
            const int returned =
                execWith(dialog, [&dialog] { QTest::mouseClick(dialog.view(), Qt::LeftButton); });
            QCOMPARE(returned, result);
            QCOMPARE(dialog.result(), result);
        }
    }

    void callbackOffersItsSlots()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene(QStringLiteral(
            "property string kinds: [callback.accept, callback.reject, callback.done, callback.cursorPos]"
            ".map(function(f) { return typeof f }).join()")));
        execWith(dialog, [&dialog] { dialog.accept(); });
        QCOMPARE(dialog.root()->property("kinds").toString(),
                 QStringLiteral("function,function,function,function"));
    }

    void cursorPosition()
    {
        FormDialog dialog;
        QCursor::setPos(123, 45);
        QCOMPARE(dialog.cursorPos(), QPoint(123, 45));
        dialog.setQmlPath(scene(QStringLiteral("property point mouse: callback.cursorPos()")));
        execWith(dialog, [&dialog] { dialog.accept(); });
        QCOMPARE(dialog.root()->property("mouse").toPoint(), QPoint(123, 45));
    }

    void formGivesItsValuesBack()
    {
        FormDialog dialog;
        dialog.name = QStringLiteral("Reel 1");
        dialog.setQmlPath(
            scene(lit + QStringLiteral("; property bool hasKeyboard: field.activeFocus; TextInput "
                                       "{ id: field; focus: true; text: callback.name }"
                                       "MouseArea { anchors.fill: parent; onClicked: "
                                       "{ callback.name = field.text; callback.accept() } }")));
        const int result = execWith(dialog, [&dialog] {
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QTRY_VERIFY(dialog.root()->property("hasKeyboard").toBool());
            QTest::keyClick(dialog.windowHandle(), '7');
            QTest::mouseClick(dialog.view(), Qt::LeftButton);
        });
        QCOMPARE(result, 1);
        QCOMPARE(dialog.name, QStringLiteral("Reel 17"));
    }

    void stateIsKept()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene(QStringLiteral("property int count: 0; property int loads: 0; "
                                               "Component.onCompleted: ++loads")));
        QPointer<QQuickItem> root;
        for (int round = 1; round <= rounds; ++round) {
            execWith(dialog, [&] {
                if (!root) {
                    root = dialog.root();
                }
                root->setProperty("count", root->property("count").toInt() + 1);
                dialog.accept();
            });
            QCOMPARE(dialog.root(), root.data());
            QCOMPARE(root->property("count").toInt(), round);
            QCOMPARE(root->property("loads").toInt(), 1);
        }
    }

    void positions_data()
    {
        QTest::addColumn<QRect>("parent");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QPoint>("position");

        // The middle of 100 pixels is the 49th from the first; halves are cut.
        QTest::newRow("even in even") << QRect(200, 150, 100, 60) << QStringLiteral("width: 40; height: 20")
                                      << QPoint(249 - 20, 179 - 10);
        QTest::newRow("odd in even") << QRect(200, 150, 100, 60) << QStringLiteral("width: 41; height: 21")
                                     << QPoint(249 - 20, 179 - 10);
        QTest::newRow("even in odd") << QRect(200, 150, 101, 61) << QStringLiteral("width: 40; height: 20")
                                     << QPoint(250 - 20, 180 - 10);
        QTest::newRow("odd in odd") << QRect(200, 150, 101, 61) << QStringLiteral("width: 41; height: 21")
                                    << QPoint(250 - 20, 180 - 10);
        QTest::newRow("larger than the parent")
            << QRect(200, 150, 10, 10) << QStringLiteral("width: 101; height: 99")
            << QPoint(204 - 50, 154 - 49);
        QTest::newRow("one pixel") << QRect(200, 150, 10, 10) << QStringLiteral("width: 1; height: 1")
                                   << QPoint(204, 154);
        QTest::newRow("a fraction") << QRect(200, 150, 100, 60) << QStringLiteral("width: 40.6; height: 20.4")
                                    << QPoint(249 - 20, 179 - 10);
    }

    void positions()
    {
        QFETCH(QRect, parent);
        QFETCH(QString, size);
        QFETCH(QPoint, position);
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(parent);
        window.show();
        FormDialog dialog(&window);
        dialog.setQmlPath(scene(size));
        for (int round = 0; round < rounds; ++round) {
            execWith(dialog, [&] {
                QCOMPARE(dialog.pos(), position);
                dialog.accept();
            });
            // Each exec() looks where the parent is by then.
            window.move(window.pos() + QPoint(7, 3));
            position += QPoint(7, 3);
        }
    }

    void withoutAParentInTheMiddleOfTheScreen_data()
    {
        QTest::addColumn<QPoint>("cursor");
        QTest::newRow("with the cursor") << QPoint(5, 5);
        QTest::newRow("the primary one, with the cursor on none") << QPoint(-5000, -5000);
    }

    void withoutAParentInTheMiddleOfTheScreen()
    {
        QFETCH(QPoint, cursor);
        QCursor::setPos(cursor);
        QCOMPARE(QGuiApplication::screenAt(QCursor::pos()) != nullptr, cursor.x() > 0);
        FormDialog dialog;
        dialog.setQmlPath(scene());
        const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
        execWith(dialog, [&] {
            QCOMPARE(dialog.pos(), middle - QPoint(60, 40));
            dialog.accept();
        });
    }

    void parentThatIsNoWindow()
    {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(100, 100, 400, 300);
        auto* const inner = new QWidget(&window);
        inner->setGeometry(200, 100, 100, 60);
        window.show();
        FormDialog dialog(inner);
        dialog.setQmlPath(scene(QStringLiteral("width: 40; height: 20")));
        execWith(dialog, [&] {
            QCOMPARE(dialog.pos(), QPoint(100 + 200 + 49 - 20, 100 + 100 + 29 - 10));
            dialog.accept();
        });
    }

    void parentPartlyOutsideTheScreen()
    {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(-60, -50, 100, 60);
        window.show();
        FormDialog dialog(&window);
        dialog.setQmlPath(scene(QStringLiteral("width: 40; height: 20")));
        execWith(dialog, [&] {
            QCOMPARE(dialog.pos(), QPoint(-60 + 49 - 20, -50 + 29 - 10));
            dialog.accept();
        });
    }

    void placeWhenItBecomesActive_data()
    {
        QTest::addColumn<bool>("isMovedByTheWindowSystem");

        QTest::newRow("the window system says that it is elsewhere") << true;
        QTest::newRow("a handler moved it") << false;
    }

    // With some window managers Qt believes now and then that a frameless window is in the corner of the
    // screen.
    void placeWhenItBecomesActive()
    {
        QFETCH(bool, isMovedByTheWindowSystem);
        const QPoint corner(0, 0);
        FormDialog dialog;
        dialog.setQmlPath(scene());
        const OnEvent filter(QEvent::Show, &dialog, [&] {
            dialog.move(corner);
            if (isMovedByTheWindowSystem) {
                QMoveEvent event(corner, corner);
                QSpontaneKeyEvent::setSpontaneous(&event);
                qApp->notify(&dialog, &event);
            }
        });
        execWith(dialog, [&] {
            QTRY_VERIFY(dialog.isActiveWindow());
            const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
            QCOMPARE(dialog.pos(), isMovedByTheWindowSystem ? middle - QPoint(60, 40) : corner);
            // From now on it is where it is put.
            dialog.move(33, 44);
            QMoveEvent event(QPoint(33, 44), corner);
            QSpontaneKeyEvent::setSpontaneous(&event);
            qApp->notify(&dialog, &event);
            QEvent activation(QEvent::WindowActivate);
            QCoreApplication::sendEvent(&dialog, &activation);
            QCOMPARE(dialog.pos(), QPoint(33, 44));
            dialog.accept();
        });
    }

    void sceneWithoutASize_data()
    {
        QTest::addColumn<QString>("size");
        QTest::newRow("none") << QString();
        QTest::newRow("no height") << QStringLiteral("width: 100");
        QTest::newRow("no width") << QStringLiteral("height: 100");
        QTest::newRow("less than half a pixel") << QStringLiteral("width: 0.4; height: 100");
    }

    void sceneWithoutASize()
    {
        QFETCH(QString, size);
        FormDialog dialog;
        const QString path = scene(size);
        dialog.setQmlPath(path);
        const OnEvent onShow(QEvent::Show, &dialog, [] { QFAIL("It was shown."); });
        for (int round = 1; round <= rounds; ++round) {
            // It would not end by itself.
            QTimer::singleShot(2000, &dialog, [&dialog] { dialog.done(7); });
            QCOMPARE(dialog.exec(), int(QDialog::Rejected));
            QCOMPARE(m_log->take(),
                     QStringList{QStringLiteral("WARNING QuickDialog.cpp: Nothing to show, the root "
                                                "item has no size: ") +
                                 path});
            QVERIFY(!dialog.container()->parentWidget());
        }
    }

    void sizeThatComesLater_data()
    {
        QTest::addColumn<QString>("body");
        const QString bound = QStringLiteral("property int side: 0; width: side; height: side; ");
        QTest::newRow("on the next turn")
            << bound + QStringLiteral("Component.onCompleted: Qt.callLater(function() { side = 90 })");
        QTest::newRow("by a timer")
            << bound + QStringLiteral("Timer { interval: 20; running: true; onTriggered: parent.side = 90 }");
        QTest::newRow("one after the other")
            << QStringLiteral("width: 90; Component.onCompleted: Qt.callLater(function() { height = 90 })");
    }

    void sizeThatComesLater()
    {
        QFETCH(QString, body);
        QWidget host;
        host.setGeometry(100, 100, 400, 300);
        host.show();
        FormDialog dialog(&host);
        dialog.setQmlPath(scene(body));
        bool isShown = false;
        const OnEvent onShow(QEvent::Show, &dialog, [&] {
            isShown = true;
            QCOMPARE(dialog.pos(), host.mapToGlobal(host.rect().center()) - QPoint(45, 45));
            QTimer::singleShot(0, &dialog, [&dialog] {
                QCOMPARE(dialog.size(), QSize(90, 90));
                dialog.accept();
            });
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        QVERIFY(isShown);
    }

    void endedWithoutASize()
    {
        FormDialog dialog;
        dialog.setQmlPath(
            scene(QStringLiteral("Component.onCompleted: Qt.callLater(function() { callback.done(5) })")));
        QCOMPARE(dialog.exec(), 5);
    }

    void deletedWithoutASize()
    {
        const QPointer<FormDialog> dialog = new FormDialog;
        dialog->setQmlPath(scene(QString()));
        QTimer::singleShot(0, dialog, [&dialog] { delete dialog; });
        QCOMPARE(dialog->exec(), int(QDialog::Rejected));
        QVERIFY(!dialog);
    }

    void sceneChangesItsSizeWhileShown()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene());
        execWith(dialog, [&dialog] {
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            const QPoint before = dialog.pos();
            for (const QSize size : {QSize(300, 200), QSize(50, 40), QSize(301, 20)}) {
                dialog.root()->setSize(size);
                QTRY_COMPARE(dialog.size(), size);
                QCOMPARE(dialog.container()->geometry(), QRect(QPoint(0, 0), size));
                QTRY_COMPARE(dialog.view()->geometry(), QRect(QPoint(0, 0), size));
                QCOMPARE(dialog.pos(), before);
            }
            // Nothing could end a dialog that Qt hides.
            dialog.root()->setSize(QSize(0, 0));
            QCoreApplication::processEvents();
            QCOMPARE(dialog.size(), QSize(301, 20));
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QVERIFY(!dialog.isVisible());
    }

    void sceneChangesItsSizeWhileHidden()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene());
        for (const QSize size : {QSize(120, 80), QSize(300, 200), QSize(50, 40)}) {
            if (dialog.root()) {
                dialog.root()->setSize(size);
            }
            execWith(dialog, [&] {
                QCOMPARE(dialog.size(), size);
                dialog.accept();
            });
        }
    }

    void endedWhileLoading_data()
    {
        QTest::addColumn<QString>("end");
        QTest::addColumn<int>("result");

        QTest::newRow("accept") << QStringLiteral("callback.accept()") << 1;
        QTest::newRow("reject") << QStringLiteral("callback.reject()") << 0;
        QTest::newRow("done") << QStringLiteral("callback.done(42)") << 42;
        QTest::newRow("twice") << QStringLiteral("{ callback.accept(); callback.done(2) }") << 2;
    }

    // QDialog alone would show the dialog afterwards, and nothing would end it.
    void endedWhileLoading()
    {
        QFETCH(QString, end);
        QFETCH(int, result);
        QWidget parent;
        parent.show();
        FormDialog dialog(&parent);
        dialog.setQmlPath(scene(lit + QStringLiteral("; Component.onCompleted: %1").arg(end)));
        bool isShown = false;
        QTimer::singleShot(0, &dialog, [&] { isShown = dialog.isVisible(); });
        QCOMPARE(dialog.exec(), result);
        QCoreApplication::processEvents();
        QVERIFY(!isShown);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.container()->parent());
        // The next one is an ordinary one.
        QCOMPARE(execWith(dialog, [&dialog] { dialog.done(dialog.isVisible() ? 8 : 0); }), 8);
    }

    void endedWhileLoadingAndNotAvailable()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene(QStringLiteral("width: -1; Component.onCompleted: callback.accept()")));
        QCOMPARE(dialog.exec(), 0);
    }

    void endedWhileBeingShown()
    {
        FormDialog dialog;
        dialog.setQmlPath(
            scene(lit + QStringLiteral("; focus: true; onActiveFocusChanged: callback.done(6)")));
        QCOMPARE(dialog.exec(), 6);
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.container()->parent());
        // Without a scene's help: a filter that ends it in the middle of show().
        FormDialog other;
        other.setQmlPath(m_files->file(QStringLiteral("other.qml"),
                                       QmlFiles::itemText(QStringLiteral("width: 9; height: 9"))));
        const OnEvent filter(QEvent::Show, &other, [&other] { other.done(7); });
        QCOMPARE(other.exec(), 7);
        QVERIFY(!other.isVisible());
        QVERIFY(!other.container()->parent());
    }

    void execWithinItself()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene());
        int inner = -1;
        const int result = execWith(dialog, [&] {
            inner = dialog.exec();
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.container()->parent(), &dialog);
            QCOMPARE(dialog.layout()->count(), 1);
            dialog.done(4);
        });
        QCOMPARE(inner, 0);
        QCOMPARE(result, 4);
    }

    void execWithinItselfWhileLoading()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene(
            lit +
            QStringLiteral("; property int inner: -1; Component.onCompleted: inner = callback.exec()")));
        QCOMPARE(execWith(dialog, [&dialog] { dialog.done(4); }), 4);
        QCOMPARE(dialog.root()->property("inner").toInt(), 0);
    }

    void execOfTwoDialogs()
    {
        FormDialog outer;
        outer.setQmlPath(scene());
        FormDialog inner(&outer);
        inner.setQmlPath(scene());
        int innerResult = -1;
        const int result = execWith(outer, [&] {
            innerResult = execWith(inner, [&inner] { inner.done(2); });
            QVERIFY(outer.isVisible());
            outer.done(3);
        });
        QCOMPARE(innerResult, 2);
        QCOMPARE(result, 3);
    }

    void whileItRuns_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("result");
        const auto row = [](const char* name, int result, const Act& act) {
            QTest::newRow(name) << act << result;
        };
        row("done", 3, [](FormDialog* dialog) { dialog->done(3); });
        row("rejected", 0, [](FormDialog* dialog) { dialog->reject(); });
        row("hidden", 0, [](FormDialog* dialog) { dialog->hide(); });
        row("closed by the window manager", 0, [](FormDialog* dialog) { dialog->close(); });
        row("closed, and deleted by that", 5, [](FormDialog* dialog) {
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            dialog->done(5);
        });
        row("deleted later by a slot of finished", 5, [](FormDialog* dialog) {
            connect(dialog, &QDialog::finished, dialog, &QObject::deleteLater);
            dialog->done(5);
        });
        row("deleted", 0, [](FormDialog* dialog) { delete dialog; });
        row("parent deleted", 0, [](FormDialog* dialog) { delete dialog->parentWidget(); });
        row("parent hidden", 0, [](FormDialog* dialog) {
            dialog->parentWidget()->hide();
            QCoreApplication::processEvents();
            QVERIFY(dialog->isVisible());
            QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
        });
        row("container deleted", 0, [](FormDialog* dialog) { delete dialog->container(); });
        row("container deleted, and done", 3, [](FormDialog* dialog) {
            connect(dialog, &QDialog::finished, dialog, [dialog](int result) {
                QCOMPARE(result, 3);
                QCoreApplication::processEvents();
                QCOMPARE(dialog->result(), 3);
            });
            delete dialog->container();
            dialog->done(3);
        });
        row("container taken away", 1, [](FormDialog* dialog) {
            dialog->container()->setParent(dialog->parentWidget());
            dialog->accept();
        });
        row("layout deleted", 1, [](FormDialog* dialog) {
            delete dialog->layout();
            dialog->accept();
        });
    }

    void whileItRuns()
    {
        QFETCH(Act, act);
        QFETCH(int, result);
        const QPointer<QWidget> window = new QWidget;
        window->show();
        const QPointer<FormDialog> dialog = new FormDialog(window);
        dialog->setQmlPath(scene());
        const QPointer<QWidget> container = dialog->container();
        QCOMPARE(execWith(*dialog, [&] { act(dialog); }), result);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (dialog) {
            QVERIFY(!dialog->isVisible());
            QVERIFY(!container || !container->parent());
            QCOMPARE(execWith(*dialog,
                              [&dialog] {
                                  QVERIFY(dialog->view()->isVisible());
                                  dialog->done(8);
                              }),
                     container ? 8 : 0);
        } else {
            QVERIFY(!container);
        }
        delete window;
    }

    void applicationQuitsMeanwhile()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene());
        int result = -1;
        QTimer::singleShot(0, &dialog, [&] {
            result = execWith(dialog, [] { QCoreApplication::quit(); });
            QVERIFY(!dialog.isVisible());
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(result, 0);
        QVERIFY(!dialog.container()->parent());
    }

    // The slot runs before exec() has returned.
    void runAgainBySlotOfFinished()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene());
        QVector<int> inner;
        connect(&dialog, &QDialog::finished, &dialog, [&] { inner += dialog.exec(); });
        QCOMPARE(execWith(dialog, [&dialog] { dialog.done(5); }), 5);
        QCOMPARE(inner, QVector<int>{0});
    }

    void keyboardGoesIntoTheScene()
    {
        FormDialog dialog;
        dialog.setQmlPath(scene(lit + QStringLiteral("; TextInput { objectName: 'field'; focus: true }")));
        for (int round = 1; round <= rounds; ++round) {
            execWith(dialog, [&] {
                QVERIFY(QTest::qWaitForWindowExposed(&dialog));
                QCOMPARE(dialog.focusWidget(), dialog.view());
                const auto* const field = dialog.root()->findChild<QQuickItem*>(QStringLiteral("field"));
                QTRY_VERIFY(field->hasActiveFocus());
                QTest::keyClick(dialog.windowHandle(), 'x');
                QCOMPARE(field->property("text").toString(), QString(round, QLatin1Char('x')));
                dialog.accept();
            });
        }
    }

    void tabGoesThroughTheScene()
    {
        FormDialog dialog;
        dialog.setQmlPath(
            scene(lit + QStringLiteral("; Item { objectName: 'a'; focus: true; activeFocusOnTab: true }"
                                       "Item { objectName: 'b'; activeFocusOnTab: true }"
                                       "Item { objectName: 'c'; activeFocusOnTab: true }")));
        execWith(dialog, [&dialog] {
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QQuickWindow* const window = dialog.view()->quickWindow();
            const auto focused = [window] { return window->activeFocusItem()->objectName(); };
            QTRY_VERIFY(window->activeFocusItem());
            QCOMPARE(focused(), QStringLiteral("a"));
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
            QCOMPARE(focused(), QStringLiteral("b"));
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
            QCOMPARE(focused(), QStringLiteral("c"));
            // There is nothing else in the window: round and round.
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
            QCOMPARE(focused(), QStringLiteral("a"));
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
            QCOMPARE(focused(), QStringLiteral("c"));
            QCOMPARE(dialog.focusWidget(), dialog.view());
            dialog.accept();
        });
    }

    void escape_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<int>("result");

        QTest::newRow("nobody handles it") << QString() << 0;
        QTest::newRow("the item with the focus does not")
            << QStringLiteral("; TextInput { focus: true }") << 0;
        QTest::newRow("the scene handles it")
            << QStringLiteral("; focus: true; Keys.onEscapePressed: callback.done(12)") << 12;
    }

    void escape()
    {
        QFETCH(QString, body);
        QFETCH(int, result);
        FormDialog dialog;
        dialog.setQmlPath(scene(lit + body));
        const int returned = execWith(dialog, [&dialog] {
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QTRY_COMPARE(QApplication::focusWidget(), dialog.view());
            QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
        });
        QCOMPARE(returned, result);
    }

    void enter_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Return") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Enter);
    }

    void enter()
    {
        QFETCH(int, key);
        FormDialog plain;
        plain.setQmlPath(scene());
        const int result = execWith(plain, [&] {
            QVERIFY(QTest::qWaitForWindowExposed(&plain));
            QTest::keyClick(plain.windowHandle(), static_cast<Qt::Key>(key));
            QVERIFY(plain.isVisible());
            plain.done(3);
        });
        QCOMPARE(result, 3);

        FormDialog handling;
        handling.setQmlPath(
            scene(lit + QStringLiteral("; focus: true; Keys.onReturnPressed: callback.accept(); "
                                       "Keys.onEnterPressed: callback.accept()")));
        const int handled = execWith(handling, [&] {
            QVERIFY(QTest::qWaitForWindowExposed(&handling));
            QTRY_VERIFY(handling.root()->hasActiveFocus());
            QTest::keyClick(handling.windowHandle(), static_cast<Qt::Key>(key));
        });
        QCOMPARE(handled, 1);
    }

    void nothingIsPaintedBehindTheScene_data()
    {
        QTest::addColumn<QString>("sheet");

        QTest::newRow("no sheet") << QString();
        QTest::newRow("a sheet that colours dialogs")
            << QStringLiteral("QDialog { background: red; border: 5px solid red }");
        QTest::newRow("a sheet that colours widgets") << QStringLiteral("QWidget { background: red }");
        QTest::newRow("a sheet that colours everything")
            << QStringLiteral("* { background: red; border: 3px solid red }");
    }

    void nothingIsPaintedBehindTheScene()
    {
        QFETCH(QString, sheet);
        qApp->setStyleSheet(sheet);
        FormDialog dialog;
        dialog.setQmlPath(m_files->file(
            QStringLiteral("hole.qml"),
            QmlFiles::itemText(QStringLiteral(
                "width: 60; height: 40; Rectangle { color: '#00ff00'; width: 10; height: 10 }"))));
        execWith(dialog, [&dialog] {
            QVERIFY(QTest::qWaitForWindowExposed(&dialog));
            QImage image(dialog.size(), QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            dialog.render(&image);
            QCOMPARE(image.pixelColor(5, 5), QColor(0, 255, 0));
            QCOMPARE(image.pixelColor(50, 30).alpha(), 0);
            dialog.accept();
        });
        qApp->setStyleSheet(QString());
    }

private:
    QString scene(const QString& body = lit) const
    {
        return m_files->file(QStringLiteral("main.qml"),
                             QStringLiteral("import QtQuick 2.15\nRectangle { %1 }\n").arg(body));
    }
};

UIC_TEST_MAIN(tst_QuickDialog)
#include "tst_QuickDialog.moc"
