#include "NativeScreens.h"
#include "PixelPattern.h"
#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/LoupeWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/PipetteScreenView.h>

#include <QGraphicsProxyWidget>
#include <QLabel>
#include <QRandomGenerator>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

constexpr int loupePixels = 13;
constexpr int loupeSize = 117;
constexpr int rim = 3;
// The plate with the colour's name, in the loupe.
constexpr QRect plate(20, 80, 77, 23);

// Of colours that the pattern would have only by accident.
const QString roundLoupe =
    QStringLiteral("LoupeWidget { background: transparent; border: 3px solid #ff00ff; border-radius: 58px;"
                   " min-width: 111px; max-width: 111px; min-height: 111px; max-height: 111px; }"
                   "LoupeWidget > #colorNameLabel { color: #00ff00; background: #ff00ff; font-size: 10px;"
                   " margin: 80px 20px 14px 20px; }");
// It has corners, which lie over the pixels that it magnifies.
const QString squareLoupe =
    QStringLiteral("LoupeWidget { background: #ff00ff; min-width: 117px; max-width: 117px; min-height: 117px;"
                   " max-height: 117px; }");

QString name(const QColor& color)
{
    // The overlay makes them one.
    const auto plain = [](int channel) { return channel == 127 ? 128 : channel; };
    return QColor(plain(color.red()), plain(color.green()), plain(color.blue())).name();
}

/// What the pipette has to pick at a point of the desktop.
QString expectedAt(const QPoint& point)
{
    const QPoint pixel = NativeScreens::pixelAt(point);
    return name(QColor(PixelPattern::colorAt(pixel.x(), pixel.y())));
}

QColor darkened(const QColor& color)
{
    const auto dark = [](int channel) { return channel < 128 ? channel : channel - 1; };
    return {dark(color.red()), dark(color.green()), dark(color.blue())};
}

QList<PipetteScreenView*> views()
{
    QList<PipetteScreenView*> found;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        auto* view = qobject_cast<PipetteScreenView*>(window);
        if (view && view->isVisible()) {
            found.append(view);
        }
    }
    return found;
}

PipetteScreenView* viewOf(const QScreen* screen)
{
    const auto all = views();
    for (PipetteScreenView* view : all) {
        if (view->geometry() == screen->geometry()) {
            return view;
        }
    }
    return nullptr;
}

/// Whether each screen has its view. A window manager that puts a frame around a window moves it about.
bool areInPlace()
{
    const auto screens = QGuiApplication::screens();
    return std::all_of(screens.cbegin(), screens.cend(), [](const QScreen* screen) {
        const PipetteScreenView* const view = viewOf(screen);
        return view && view->windowHandle()->isExposed() &&
               view->windowHandle()->geometry() == screen->geometry() &&
               view->windowHandle()->screen() == screen;
    });
}

LoupeWidget* loupe()
{
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        auto* found = qobject_cast<LoupeWidget*>(widget);
        if (found && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

/// The loupe's place on the desktop.
QRect loupePlace()
{
    const LoupeWidget* const shown = loupe();
    return shown ? QRect(shown->graphicsProxyWidget()->scenePos().toPoint(), shown->size()) : QRect();
}

} // namespace

/**
 * The screen pipette as a user has it, over the pixels of another application: what lies on the screens, what
 * comes out of a click. Each run is on other screens.
 */
class tst_ScreenPipette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void everyStartCoversTheScreens();
    void everyPixelIsPickedAsItIs();
    void pixelUnderTheLoupeIsPickedAsItIs_data();
    void pixelUnderTheLoupeIsPickedAsItIs();
    void pixelAtTheTopEdgeIsPickedAsItIs_data();
    void pixelAtTheTopEdgeIsPickedAsItIs();
    void loupeShowsThePixelsAroundTheCursor();
    void windowsOfOthersArePickedFrom_data();
    void windowsOfOthersArePickedFrom();
    void escapeGivesUp();

private:
    bool start(const QScreen* screen, const QPoint& cursor);
    bool pick(const QPoint& point);
    bool goBack();
    QPoint randomPoint(const QScreen* screen, const QRect& within = {});

    QRandomGenerator m_random{7};
    std::unique_ptr<PixelPattern> m_pattern;
    std::unique_ptr<QWidget> m_host;
    std::unique_ptr<Pipette> m_pipette;
    QStringList m_picked;
    int m_stopped = 0;
};

void tst_ScreenPipette::initTestCase()
{
    m_pattern = std::make_unique<PixelPattern>();
    QVERIFY(m_pattern->show(NativeScreens::desktop()));
}

void tst_ScreenPipette::init()
{
    qApp->setStyleSheet(roundLoupe);
    QVERIFY(goBack());
    m_pipette = std::make_unique<Pipette>();
    m_picked.clear();
    m_stopped = 0;
    connect(m_pipette.get(), &Pipette::colorSelected, this,
            [this](const QColor& color) { m_picked.append(name(color)); });
    connect(m_pipette.get(), &Pipette::pickingStopped, this, [this] { ++m_stopped; });
}

void tst_ScreenPipette::cleanup()
{
    m_pipette.reset();
    m_host.reset();
    QVERIFY(views().isEmpty());
}

/// Starts a pick with the cursor at a point of the desktop, and waits until it has the keyboard.
bool tst_ScreenPipette::start(const QScreen* screen, const QPoint& cursor)
{
    const QWidget window;
    if (!RealInput::moveTo(&window, cursor - window.mapToGlobal(QPoint(0, 0)))) {
        return false;
    }
    m_pipette->startPicking();
    PipetteScreenView* const view = viewOf(screen);
    return view && QTest::qWaitForWindowActive(view) &&
           QTest::qWaitFor([view] { return view->hasFocus() && areInPlace(); });
}

/// Clicks at a point of the desktop and waits for the end.
bool tst_ScreenPipette::pick(const QPoint& point)
{
    const PipetteScreenView* const view = viewOf(QGuiApplication::screenAt(point));
    const int before = m_stopped;
    return view && RealInput::click(view, view->mapFromGlobal(point)) &&
           QTest::qWaitFor([this, before] { return m_stopped > before; });
}

/// To a window of the application's own. A new one: now and then Qt takes the focus that the window manager
/// gives back to the old one for that of the window that has just been closed, and forgets it.
bool tst_ScreenPipette::goBack()
{
    m_host = std::make_unique<QWidget>();
    m_host->setGeometry(
        QRect(QGuiApplication::primaryScreen()->geometry().topLeft() + QPoint(40, 40), QSize(160, 60)));
    return RealInput::showAndActivate(m_host.get());
}

/// Somewhere on the screen, or in a part of it, where the application has no window.
QPoint tst_ScreenPipette::randomPoint(const QScreen* screen, const QRect& within)
{
    const QRect area = within.isValid() ? within : screen->geometry();
    // With its frame, which may not be known yet.
    const QRect taken = m_host->frameGeometry().adjusted(-20, -40, 20, 20);
    QPoint point;
    do {
        point = area.topLeft() + QPoint(m_random.bounded(area.width()), m_random.bounded(area.height()));
    } while (taken.contains(point));
    return point;
}

// A window that is shown, hidden and shown again within one turn may never be mapped.
void tst_ScreenPipette::everyStartCoversTheScreens()
{
    const auto screens = QGuiApplication::screens();
    const int starts = screens.size() > 1 ? 100 : 300;
    for (int i = 0; i < starts; ++i) {
        const QScreen* const screen = screens.at(i % screens.size());
        QVERIFY2(start(screen, screen->geometry().center() + QPoint(i % 7, 0)),
                 qPrintable(QString::number(i)));
        QCOMPARE(views().size(), screens.size());
        m_pipette->stopPicking();
        QVERIFY(goBack());
        QCOMPARE(m_stopped, i + 1);
    }
}

void tst_ScreenPipette::everyPixelIsPickedAsItIs()
{
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        for (int i = 0; i < 100; ++i) {
            const QPoint point = randomPoint(screen);
            const QScreen* const other = screens.at(i % screens.size());
            QVERIFY(start(other, randomPoint(other)));
            QVERIFY(pick(point));
            QCOMPARE(m_picked.takeLast(), expectedAt(point));
            QVERIFY(m_picked.isEmpty());
            QVERIFY(goBack());
        }
    }
}

void tst_ScreenPipette::pixelUnderTheLoupeIsPickedAsItIs_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("round") << roundLoupe;
    QTest::newRow("square") << squareLoupe;
}

void tst_ScreenPipette::pixelUnderTheLoupeIsPickedAsItIs()
{
    QFETCH(QString, sheet);
    qApp->setStyleSheet(sheet);
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect middle = screen->geometry().adjusted(0, loupeSize, -2 * loupeSize, 0);
        for (int i = 0; i < 15; ++i) {
            const QPoint first = randomPoint(screen, middle);
            QVERIFY(start(screen, first));
            QTRY_COMPARE(loupePlace(), QRect(first - QPoint(0, loupeSize), QSize(loupeSize, loupeSize)));
            const QWidget* const view = viewOf(screen);
            const QPoint point = randomPoint(screen, loupePlace());
            // It is on the screen, over that pixel or beside it.
            const QPoint inside = view->mapFromGlobal(loupePlace().center());
            QTRY_VERIFY(name(RealInput::pixel(view, inside)) != expectedAt(loupePlace().center()));
            QVERIFY(pick(point));
            QCOMPARE(m_picked.takeLast(), expectedAt(point));
            QVERIFY(goBack());
        }
    }
}

void tst_ScreenPipette::pixelAtTheTopEdgeIsPickedAsItIs_data()
{
    pixelUnderTheLoupeIsPickedAsItIs_data();
}

// There the loupe lies below the cursor, with its corner on the pixel.
void tst_ScreenPipette::pixelAtTheTopEdgeIsPickedAsItIs()
{
    QFETCH(QString, sheet);
    qApp->setStyleSheet(sheet);
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect top(screen->geometry().topLeft() + QPoint(screen->size().width() / 2 - 50, 0),
                        QSize(100, loupeSize));
        for (int i = 0; i < 12; ++i) {
            QPoint point = randomPoint(screen, top);
            if (i % 4 == 0) {
                point.setY(top.top());
            }
            QVERIFY(start(screen, point));
            QTRY_COMPARE(loupePlace().topLeft(), point);
            const QWidget* const view = viewOf(screen);
            const QPoint inside = view->mapFromGlobal(loupePlace().center());
            QTRY_VERIFY(name(RealInput::pixel(view, inside)) != expectedAt(loupePlace().center()));
            QVERIFY(pick(point));
            QCOMPARE(m_picked.takeLast(), expectedAt(point));
            QVERIFY(goBack());
        }
    }
}

void tst_ScreenPipette::loupeShowsThePixelsAroundTheCursor()
{
    for (QScreen* screen : QGuiApplication::screens()) {
        const qreal ratio = screen->devicePixelRatio();
        QVERIFY(start(screen, randomPoint(screen)));
        PipetteScreenView* const view = viewOf(screen);
        const QRect inner = screen->geometry().adjusted(20, 20, -20, -20);
        for (int i = 0; i < 25; ++i) {
            // Every other step leads into the place where the loupe stands.
            const bool isNear = i % 2 == 1 && inner.contains(loupePlace());
            const QPoint point = randomPoint(screen, isNear ? loupePlace() : inner);
            QVERIFY(RealInput::moveTo(view, view->mapFromGlobal(point)));
            const auto* label = loupe()->findChild<QLabel*>(QStringLiteral("colorNameLabel"));
            QTRY_COMPARE(name(QColor(label->text())), expectedAt(point));

            const int pixels = qRound(loupePixels * ratio);
            const QPoint corner =
                (QPointF(point - screen->geometry().topLeft() - QPoint(loupePixels / 2, loupePixels / 2)) *
                 ratio)
                    .toPoint() +
                screen->geometry().topLeft();
            const auto differences = [&] {
                const QRect place = loupePlace();
                const QPoint local = place.topLeft() - screen->geometry().topLeft();
                const QImage seen =
                    screen->grabWindow(0, local.x(), local.y(), loupeSize, loupeSize).toImage();
                QStringList found;
                int compared = 0;
                for (int y = 0; y < pixels; ++y) {
                    for (int x = 0; x < pixels; ++x) {
                        const QPointF middle(loupeSize * (x + 0.5) / pixels, loupeSize * (y + 0.5) / pixels);
                        const QPointF off = middle - QPointF(loupeSize, loupeSize) / 2;
                        const bool isPicture = std::hypot(off.x(), off.y()) < loupeSize / 2.0 - rim - 2 &&
                                               !plate.adjusted(-2, -2, 2, 2).contains(middle.toPoint());
                        if (!isPicture || !seen.rect().contains((middle * ratio).toPoint())) {
                            continue;
                        }
                        ++compared;
                        const QColor expected =
                            darkened(QColor(PixelPattern::colorAt(corner.x() + x, corner.y() + y)));
                        if (seen.pixelColor((middle * ratio).toPoint()) != expected) {
                            found += QStringLiteral("%1,%2").arg(x).arg(y);
                        }
                    }
                }
                return compared > pixels * pixels / 3 ? found : QStringList{QStringLiteral("nothing")};
            };
            const bool isOnTheWindow = m_host->frameGeometry().adjusted(-20, -20, 20, 20).contains(point);
            if (!isOnTheWindow) {
                QTRY_COMPARE(differences(), QStringList());
            }
        }
        m_pipette->stopPicking();
        QVERIFY(goBack());
    }
}

void tst_ScreenPipette::windowsOfOthersArePickedFrom_data()
{
    QTest::addColumn<int>("window");
    QTest::newRow("ordinary") << int(PixelPattern::Window::Ordinary);
    QTest::newRow("full screen") << int(PixelPattern::Window::FullScreen);
}

void tst_ScreenPipette::windowsOfOthersArePickedFrom()
{
    QFETCH(int, window);
    const QScreen* const screen = QGuiApplication::screens().last();
    for (int i = 0; i < 4; ++i) {
        PixelPattern other;
        QVERIFY(other.show(QRect(screen->geometry().topLeft() + QPoint(200, 100), QSize(300, 200)),
                           PixelPattern::Window(window)));
        // It has the keyboard.
        QTRY_COMPARE(QGuiApplication::applicationState(), Qt::ApplicationInactive);
        const QRect area(screen->geometry().topLeft() + QPoint(260, 160), QSize(100, 60));
        const QPoint point = randomPoint(screen, area);
        QVERIFY(start(screen, point));
        QVERIFY(pick(point));
        QVERIFY(!m_picked.isEmpty());
        QCOMPARE(m_picked.takeLast(), expectedAt(point));
        QVERIFY(goBack());
    }
}

void tst_ScreenPipette::escapeGivesUp()
{
    const QScreen* const screen = QGuiApplication::screens().last();
    for (const char* key : {"Escape", "a", "ctrl+s", "F5"}) {
        QVERIFY(start(screen, randomPoint(screen)));
        m_stopped = 0;
        QVERIFY(RealInput::key(QLatin1String(key)));
        QTRY_COMPARE(m_stopped, 1);
        QVERIFY(views().isEmpty());
        QVERIFY(goBack());
        QCOMPARE(m_stopped, 1);
    }
    QCOMPARE(m_picked, QStringList());
}

UIC_TEST_MAIN(tst_ScreenPipette)
#include "tst_ScreenPipette.moc"
