#include "RealInput.h"
#include "TestMain.h"

#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>

#include <functional>
#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/PropertyPanel.h>
#include <gallery/SceneDialog.h>
#include <gallery/SignalLogView.h>

namespace {

enum Scene { Confirmation, Form, Broken };

const QString againLabel = QStringLiteral("Open the last dialog again");
const QString resultLabel = QStringLiteral("Result of exec()");

SceneDialog* shownDialog()
{
    auto* const dialog = qobject_cast<SceneDialog*>(QApplication::activeModalWidget());
    return dialog && dialog->isVisible() && dialog->isActiveWindow() ? dialog : nullptr;
}

QQuickWidget* viewOf(const SceneDialog* dialog)
{
    return dialog->findChild<QQuickWidget*>();
}

QQuickItem* focusedItem(const SceneDialog* dialog)
{
    return viewOf(dialog)->quickWindow()->activeFocusItem();
}

/// The item of the scene that has this text.
QQuickItem* itemWith(const SceneDialog* dialog, const QString& text)
{
    const auto items = viewOf(dialog)->rootObject()->findChildren<QQuickItem*>();
    for (QQuickItem* item : items) {
        if (item->property("text").toString() == text) {
            return item;
        }
    }
    return nullptr;
}

bool clickOn(const SceneDialog* dialog, const QString& text)
{
    const QQuickItem* const item = itemWith(dialog, text);
    return item &&
           RealInput::click(viewOf(dialog), item->mapToScene(item->boundingRect().center()).toPoint());
}

bool isAsked(const QString& text)
{
    const SceneDialog* const dialog = shownDialog();
    return dialog && focusedItem(dialog) && focusedItem(dialog)->property("text").toString() == text;
}

} // namespace

/**
 * The QML dialogs of the gallery, driven by mouse and keyboard as a user does, and what is on the screen
 * meanwhile.
 */
class tst_QmlDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init() { openPage(); }

    void cleanup() { m_window.reset(); }

    void mouseAccepts()
    {
        QVERIFY(runs([](SceneDialog* dialog) { QVERIFY(clickOn(dialog, QStringLiteral("Discard"))); }));
        QTRY_COMPARE(resultOf(resultLabel), QStringLiteral("1"));
        QVERIFY(runs([](SceneDialog* dialog) { QVERIFY(clickOn(dialog, QStringLiteral("Keep"))); }));
        QTRY_COMPARE(resultOf(resultLabel), QStringLiteral("0"));
        QTRY_VERIFY(m_window->isActiveWindow());
    }

    void enterPressesTheButtonWithTheKeyboard()
    {
        QVERIFY(runs([](SceneDialog*) {
            QTRY_VERIFY(isAsked(QStringLiteral("Keep")));
            QVERIFY(RealInput::key(QStringLiteral("Tab")));
            QTRY_VERIFY(isAsked(QStringLiteral("Discard")));
            QVERIFY(RealInput::key(QStringLiteral("Return")));
        }));
        QTRY_COMPARE(resultOf(resultLabel), QStringLiteral("1"));
    }

    void escapeRejects()
    {
        for (const Scene scene : {Confirmation, Form}) {
            choose(scene);
            QVERIFY(runs([](SceneDialog*) { QVERIFY(RealInput::key(QStringLiteral("Escape"))); }));
            QTRY_COMPARE(resultOf(resultLabel), QStringLiteral("0"));
            QCOMPARE(resultOf(QStringLiteral("Values of the form")), QString());
        }
    }

    void closedByTheWindowManager()
    {
        QVERIFY(runs([](SceneDialog*) { QVERIFY(RealInput::key(QStringLiteral("alt+F4"))); }));
        QTRY_COMPARE(resultOf(resultLabel), QStringLiteral("0"));
    }

    // The container of the view leaves the window each time, and Qt forgets its focus then.
    void sceneHasTheKeyboardEveryTime()
    {
        choose(Form);
        QString expected = QStringLiteral("Sequence 1");
        for (int round = 0; round < 3; ++round) {
            expected += QLatin1Char('x');
            const auto typeOne = [&expected](SceneDialog*) {
                QVERIFY(RealInput::key(QStringLiteral("End")));
                QVERIFY(RealInput::type(QStringLiteral("x")));
                QTRY_VERIFY(isAsked(expected));
                QVERIFY(RealInput::key(QStringLiteral("Return")));
            };
            QVERIFY(round == 0 ? runs(typeOne) : runs(typeOne, againLabel));
            QTRY_COMPARE(resultOf(QStringLiteral("Values of the form")),
                         QStringLiteral("rate: 25, title: \"%1\"").arg(expected));
        }
    }

    void formByKeyboard()
    {
        choose(Form);
        QVERIFY(runs([](SceneDialog*) {
            QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
            QVERIFY(RealInput::type(QStringLiteral("Reel 7")));
            QVERIFY(RealInput::key(QStringLiteral("Tab")));
            QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
            QVERIFY(RealInput::type(QStringLiteral("999")));
            // Too many: Enter does not end the form.
            QTRY_VERIFY(isAsked(QStringLiteral("999")));
            QVERIFY(RealInput::key(QStringLiteral("Return")));
            QVERIFY(RealInput::key(QStringLiteral("BackSpace")));
            QTRY_VERIFY(isAsked(QStringLiteral("99")));
            QVERIFY(RealInput::key(QStringLiteral("Return")));
        }));
        QTRY_COMPARE(resultOf(resultLabel), QStringLiteral("1"));
        QCOMPARE(resultOf(QStringLiteral("Values of the form")),
                 QStringLiteral("rate: 99, title: \"Reel 7\""));
    }

    void formByMouse()
    {
        choose(Form);
        QVERIFY(runs([](SceneDialog* dialog) {
            QVERIFY(clickOn(dialog, QStringLiteral("25")));
            QTRY_VERIFY(isAsked(QStringLiteral("25")));
            QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
            QVERIFY(RealInput::key(QStringLiteral("BackSpace")));
            QTRY_VERIFY(isAsked(QString()));
            // Not complete: neither the button nor Enter ends it.
            QVERIFY(clickOn(dialog, QStringLiteral("Create")));
            QVERIFY(RealInput::key(QStringLiteral("Return")));
            QVERIFY(RealInput::type(QStringLiteral("60")));
            QTRY_VERIFY(isAsked(QStringLiteral("60")));
            QVERIFY(clickOn(dialog, QStringLiteral("Create")));
        }));
        QTRY_COMPARE(resultOf(QStringLiteral("Values of the form")),
                     QStringLiteral("rate: 60, title: \"Sequence 1\""));
    }

    void whatIsBehindShowsThroughAndIsBlocked()
    {
        write(QStringLiteral("import QtQuick 2.15\nItem { width: 300; height: 200\n"
                             "Rectangle { width: 100; height: 200; color: '#00c000' }\n"
                             "MouseArea { anchors.fill: parent; onClicked: callback.accept() } }"));
        QVERIFY(runs([this](SceneDialog* dialog) {
            QTRY_COMPARE(RealInput::pixel(dialog, QPoint(50, 100)), QColor(0, 0xc0, 0));
            // What the page itself shows there.
            const QPoint hole(250, 100);
            const QPoint below = m_window->mapFromGlobal(dialog->mapToGlobal(hole));
            QTRY_COMPARE(RealInput::pixel(dialog, hole), m_window->grab().toImage().pixelColor(below));
            // A click beside the dialog reaches nothing.
            QVERIFY(press(QStringLiteral("Open a new dialog")));
            QCoreApplication::processEvents();
            QCOMPARE(QApplication::activeModalWidget(), dialog);
            QVERIFY(RealInput::click(dialog, hole));
        }));
        QTRY_COMPARE(resultOf(resultLabel), QStringLiteral("1"));
    }

    void centredOnItsParent()
    {
        for (const QPoint corner : {QPoint(40, 40), QPoint(120, 60)}) {
            openPage(QStringLiteral("dark"), corner);
            write(QStringLiteral("import QtQuick 2.15\nRectangle { width: 201; height: 101; focus: true }"));
            QVERIFY(runs([this](SceneDialog* dialog) {
                const QWidget* const page = m_window->page();
                const QPoint expected = page->mapToGlobal(page->rect().center()) - QPoint(100, 50);
                QCOMPARE(dialog->pos(), expected);
                // On the screen too.
                QTRY_COMPARE(RealInput::pixel(page, page->rect().center() - QPoint(100, 50)),
                             QColor(Qt::white));
                QTRY_COMPARE(RealInput::pixel(page, page->rect().center() + QPoint(100, 50)),
                             QColor(Qt::white));
                QVERIFY(RealInput::pixel(page, page->rect().center() - QPoint(101, 51)) != QColor(Qt::white));
                QVERIFY(RealInput::key(QStringLiteral("Escape")));
            }));
        }
    }

    void isOnTheUsersScreen_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::newRow("with a parent") << true;
        QTest::newRow("without a parent") << false;
    }

    // On the screen of the window that the user was in.
    void isOnTheUsersScreen()
    {
        QFETCH(bool, hasParent);
        const auto screens = QGuiApplication::screens();
        QCOMPARE(screens.size(), 2);
        for (QScreen* const screen : screens) {
            openPage(QStringLiteral("dark"), screen->geometry().topLeft() + QPoint(40, 40));
            write(QStringLiteral(
                "import QtQuick 2.15\nRectangle { width: 201; height: 101; color: '#00a0a0' }"));
            m_window->page()->properties()->findChild<QCheckBox*>()->setChecked(hasParent);
            QVERIFY(runs([this, screen, hasParent](SceneDialog* dialog) {
                const QWidget* const page = m_window->page();
                QCOMPARE(dialog->parentWidget() != nullptr, hasParent);
                QVERIFY(!hasParent || dialog->screen() == screen);
                QCOMPARE(dialog->pos(), (hasParent ? page->mapToGlobal(page->rect().center())
                                                   : screen->availableGeometry().center()) -
                                            QPoint(100, 50));
                QTRY_COMPARE(RealInput::pixel(dialog, QPoint(100, 50)), QColor(0, 0xa0, 0xa0));
                QVERIFY(RealInput::key(QStringLiteral("Escape")));
            }));
        }
    }

    // The dialog can still be ended, whatever became of its window.
    void parentHiddenMeanwhile()
    {
        QVERIFY(runs([this](SceneDialog* dialog) {
            m_window->hide();
            QTRY_VERIFY(dialog->isActiveWindow());
            QVERIFY(RealInput::saveScreenshot(QStringLiteral("qml-dialog-alone")));
            QVERIFY(clickOn(dialog, QStringLiteral("Discard")));
        }));
        QCOMPARE(resultOf(resultLabel), QStringLiteral("1"));
    }

    void pictures_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("scene");
        QTest::addColumn<QString>("name");

        for (const char* const style : {"dark", "light"}) {
            const QString name = QLatin1String(style);
            QTest::addRow("confirmation, %s", style) << name << static_cast<int>(Confirmation)
                                                     << QStringLiteral("qml-dialog-confirmation-") + name;
            QTest::addRow("form, %s", style)
                << name << static_cast<int>(Form) << QStringLiteral("qml-dialog-form-") + name;
        }
    }

    void pictures()
    {
        QFETCH(QString, style);
        QFETCH(int, scene);
        QFETCH(QString, name);
        openPage(style);
        choose(scene);
        QVERIFY(runs([this, &style, &name](SceneDialog* dialog) {
            const bool isDark = style == QLatin1String("dark");
            // The paper of either scene, in the colour of the style.
            const QPoint paper(dialog->width() / 2, dialog->height() - 20);
            QTRY_COMPARE(RealInput::pixel(dialog, paper),
                         isDark ? QColor(0x2b, 0x2b, 0x2b) : QColor(Qt::white));
            // Whoever has the keyboard shows it.
            QTRY_VERIFY(focusedItem(dialog));
            const QQuickItem* const item = focusedItem(dialog);
            const QPoint ring = item->mapToScene(QPointF(1, item->height() / 2)).toPoint();
            QTRY_COMPARE(RealInput::pixel(viewOf(dialog), ring),
                         isDark ? QColor(0x86, 0xb6, 0xff) : QColor(0x1f, 0x66, 0xc7));
            QVERIFY(RealInput::moveTo(m_window.get(), QPoint(5, 5)));
            const QString scale =
                qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? QStringLiteral("-scaled") : QString();
            QVERIFY(RealInput::saveScreenshot(name + scale));
            QVERIFY(RealInput::key(QStringLiteral("Escape")));
        }));
    }

private:
    using Act = std::function<void(SceneDialog*)>;

    void openPage(const QString& style = QStringLiteral("dark"), const QPoint& corner = QPoint(40, 40))
    {
        CommandLine start;
        start.page = QStringLiteral("qml-dialog");
        start.style = style;
        m_window.reset();
        m_window = std::make_unique<MainWindow>(start);
        m_window->setGeometry(QRect(corner, QSize(1100, 720)));
        QVERIFY(RealInput::showAndActivate(m_window.get()));
    }

    void choose(int scene) const
    {
        m_window->page()->properties()->findChild<QComboBox*>()->setCurrentIndex(scene);
    }

    void write(const QString& source) const
    {
        m_window->page()->findChild<QPlainTextEdit*>(QStringLiteral("qmlSource"))->setPlainText(source);
    }

    bool press(const QString& action) const
    {
        const auto buttons = m_window->page()->properties()->findChildren<QPushButton*>();
        for (const QPushButton* button : buttons) {
            if (button->text() == action) {
                return isStill(button) && RealInput::click(button);
            }
        }
        return false;
    }

    /// The page makes room for a result that has just come, in several turns.
    static bool isStill(const QPushButton* button)
    {
        constexpr int enough = 5;
        QPoint place;
        int turns = 0;
        return QTest::qWaitFor([&] {
            const QPoint before = std::exchange(place, button->mapToGlobal(QPoint()));
            turns = before == place ? turns + 1 : 0;
            return turns == enough;
        });
    }

    /// Clicks a button of the page, does @p act with the dialog that is there then, and waits for its end.
    /// The click blocks inside the dialog, so what happens meanwhile starts from a timer.
    bool runs(const Act& act, const QString& action = QStringLiteral("Open a new dialog")) const
    {
        bool hasActed = false;
        QTimer look;
        connect(&look, &QTimer::timeout, &look, [&] {
            const QPointer<SceneDialog> dialog = shownDialog();
            if (dialog && !hasActed) {
                hasActed = true;
                act(dialog);
                if (dialog && QTest::currentTestFailed()) {
                    dialog->reject();
                }
            }
        });
        constexpr int lookEveryMs = 10;
        look.start(lookEveryMs);
        return press(action) &&
               QTest::qWaitFor([&] { return hasActed && !QApplication::activeModalWidget(); });
    }

    QString resultOf(const QString& name) const
    {
        const auto names = m_window->page()->findChildren<QLabel*>(QStringLiteral("resultName"));
        const auto values = m_window->page()->findChildren<QLabel*>(QStringLiteral("resultValue"));
        for (int i = 0; i < names.size() && i < values.size(); ++i) {
            if (names[i]->text() == name) {
                return values[i]->text();
            }
        }
        return {};
    }

    std::unique_ptr<MainWindow> m_window;
};

UIC_TEST_MAIN(tst_QmlDialog)
#include "tst_QmlDialog.moc"
