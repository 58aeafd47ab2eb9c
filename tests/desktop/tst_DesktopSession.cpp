#include "RealInput.h"
#include "TestMain.h"

namespace {

class DragTarget : public QWidget
{
public:
    QPoint pressedAt;
    QPoint releasedAt;
    int moves = 0;

protected:
    void mousePressEvent(QMouseEvent* event) override { pressedAt = event->pos(); }
    void mouseReleaseEvent(QMouseEvent* event) override { releasedAt = event->pos(); }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (event->buttons() == Qt::LeftButton) {
            ++moves;
        }
    }
};

/// Half black, over everything.
class Veil : public QWidget
{
public:
    Veil()
        : QWidget(nullptr, Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    {
        setAttribute(Qt::WA_TranslucentBackground);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(0, 0, 0, 128)); }
};

} // namespace

/**
 * The desktop that the tests of this folder stand on: what they take for granted is checked here once.
 */
class tst_DesktopSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowManagerActivatesWindows()
    {
        QWidget first;
        first.setWindowTitle(QStringLiteral("First"));
        first.setGeometry(100, 100, 200, 120);
        QVERIFY(RealInput::showAndActivate(&first));
        // Without a window manager there would be no frame around the window.
        QTRY_VERIFY(first.frameGeometry().height() > first.height());

        QWidget second;
        second.setGeometry(400, 100, 200, 120);
        QVERIFY(RealInput::showAndActivate(&second));
        QVERIFY(!first.isActiveWindow());

        QVERIFY(RealInput::click(&first));
        QTRY_VERIFY(first.isActiveWindow());
    }

    void realInputArrives()
    {
        QWidget window;
        window.setGeometry(100, 100, 300, 150);
        QVBoxLayout layout(&window);
        QPushButton button(QStringLiteral("Press"));
        QLineEdit edit;
        layout.addWidget(&button);
        layout.addWidget(&edit);
        QSignalSpy clicked(&button, &QPushButton::clicked);
        QVERIFY(RealInput::showAndActivate(&window));

        QVERIFY(RealInput::click(&button));
        QTRY_COMPARE(clicked.count(), 1);
        QVERIFY(RealInput::clickInto(&edit));
        QVERIFY(RealInput::type(QStringLiteral("Cut 12, take 3")));
        QTRY_COMPARE(edit.text(), QStringLiteral("Cut 12, take 3"));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::key(QStringLiteral("BackSpace")));
        QTRY_COMPARE(edit.text(), QString());
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("desktop-session")));
    }

    void dragMovesWithTheButtonDown()
    {
        DragTarget target;
        target.setGeometry(100, 100, 300, 200);
        QVERIFY(RealInput::showAndActivate(&target));
        QVERIFY(RealInput::drag(&target, QPoint(20, 30), QPoint(220, 130)));
        QTRY_COMPARE(target.releasedAt, QPoint(220, 130));
        QCOMPARE(target.pressedAt, QPoint(20, 30));
        QVERIFY(target.moves > 1);
    }

    void compositorBlendsWindows()
    {
        QWidget below;
        below.setPalette(QPalette(Qt::white));
        below.setGeometry(100, 100, 300, 200);
        QVERIFY(RealInput::showAndActivate(&below));
        QTRY_COMPARE(RealInput::pixel(&below, QPoint(50, 50)), QColor(Qt::white));

        Veil veil;
        veil.setGeometry(below.geometry());
        veil.show();
        // Half black over white; without a compositor it would be black.
        QTRY_COMPARE(RealInput::pixel(&below, QPoint(50, 50)).red() / 8, 127 / 8);
        veil.hide();
        QTRY_COMPARE(RealInput::pixel(&below, QPoint(50, 50)), QColor(Qt::white));
    }

    void commandsRunOnTheirOwn()
    {
        // Nothing of a surrounding session is seen or written.
        const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
        QCOMPARE(QFile::permissions(runtime) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        QVERIFY(!qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(1280, 800));
        QCOMPARE(QGuiApplication::primaryScreen()->depth(), 24);
        QCOMPARE(QGuiApplication::primaryScreen()->logicalDotsPerInch(), 96.0);
    }
};

UIC_TEST_MAIN(tst_DesktopSession)
#include "tst_DesktopSession.moc"
