#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/LoupeWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/PipetteScreenView.h>

#include <QPainter>
#include <QRandomGenerator>
#include <QScreen>

#include <memory>

namespace {

// A loupe as an application has it: 13 pixels, 9 times enlarged.
constexpr int loupeSize = 117;
const char loupeSheet[] =
    "LoupeWidget { background: transparent; border: 3px solid #ff00ff; border-radius: 58px;"
    " min-width: 111px; max-width: 111px; min-height: 111px; max-height: 111px; }"
    "LoupeWidget > #colorNameLabel { color: #00ff00; background: #ff00ff;"
    " margin: 80px 20px 14px 20px; }";

/// Every pixel differs from those around it, and none has a channel of 127, which the overlay makes one with
/// 128.
QColor patternAt(const QPoint& point)
{
    const int red = (point.x() * 7 + point.y() * 3) % 256;
    const int green = (point.y() * 5 + point.x() / 32) % 256;
    const int blue = (point.x() + point.y() * 11) % 256;
    const auto usable = [](int channel) { return channel == 127 ? 128 : channel; };
    return {usable(red), usable(green), usable(blue)};
}

QImage pattern(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, patternAt({x, y}).rgb());
        }
    }
    return image;
}

/// An application's window that shows the pattern all over the screen. It is one row higher than the screen,
/// for window managers keep a window of just its size above the others.
class PatternWindow : public QWidget
{
public:
    PatternWindow()
        : QWidget(nullptr, Qt::FramelessWindowHint)
        , m_picture(QPixmap::fromImage(pattern(QGuiApplication::primaryScreen()->size() + QSize(0, 1))))
    {
        setGeometry(QRect(QPoint(0, 0), m_picture.size()));
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, m_picture); }

private:
    QPixmap m_picture;
};

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

} // namespace

/**
 * The screen pipette as a user has it: what lies on the screen, what comes out of a click.
 */
class tst_ScreenPipette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void everyStartCoversTheScreen();
    void everyPixelIsPickedAsItIs();
    void pixelUnderTheLoupeIsPickedAsItIs();

private:
    bool start();
    bool goBack();

    std::unique_ptr<PatternWindow> m_pattern;
    std::unique_ptr<Pipette> m_pipette;
};

void tst_ScreenPipette::initTestCase()
{
    qApp->setStyleSheet(QLatin1String(loupeSheet));
}

void tst_ScreenPipette::init()
{
    m_pattern = std::make_unique<PatternWindow>();
    QVERIFY(RealInput::showAndActivate(m_pattern.get()));
    QTRY_COMPARE(RealInput::pixel(m_pattern.get(), QPoint(3, 3)), patternAt({3, 3}));
    m_pipette = std::make_unique<Pipette>();
}

void tst_ScreenPipette::cleanup()
{
    m_pipette.reset();
    m_pattern.reset();
}

bool tst_ScreenPipette::start()
{
    m_pipette->startPicking();
    const auto all = views();
    return all.size() == QGuiApplication::screens().size() && QTest::qWaitForWindowActive(all.first());
}

/// To the application's own window; the window manager does not always choose it by itself.
bool tst_ScreenPipette::goBack()
{
    m_pattern->activateWindow();
    return QTest::qWaitForWindowActive(m_pattern.get());
}

void tst_ScreenPipette::everyStartCoversTheScreen()
{
    QVERIFY(RealInput::moveTo(m_pattern.get(), QPoint(500, 400)));
    for (int i = 0; i < 300; ++i) {
        QVERIFY2(start(), qPrintable(QString::number(i)));
        PipetteScreenView* const view = views().first();
        QCOMPARE(view->geometry(), QGuiApplication::primaryScreen()->geometry());
        QVERIFY(view->windowHandle()->isExposed());
        QVERIFY(!view->testAttribute(Qt::WA_DontShowOnScreen));
        QTRY_VERIFY(view->hasFocus());
        m_pipette->stopPicking();
        QVERIFY(goBack());
    }
}

void tst_ScreenPipette::everyPixelIsPickedAsItIs()
{
    QRandomGenerator random(7);
    QSignalSpy selected(m_pipette.get(), &Pipette::colorSelected);
    QSignalSpy stopped(m_pipette.get(), &Pipette::pickingStopped);
    for (int i = 0; i < 100; ++i) {
        const QPoint point(random.bounded(m_pattern->width()), random.bounded(m_pattern->height() - 1));
        QVERIFY(start());
        selected.clear();
        QVERIFY(RealInput::click(m_pattern.get(), point));
        QTRY_COMPARE(selected.count(), 1);
        const auto picked = selected.first().first().value<QColor>();
        QCOMPARE(picked.name(), patternAt(point).name());
        QVERIFY(goBack());
        QCOMPARE(stopped.count(), i + 1);
    }
}

void tst_ScreenPipette::pixelUnderTheLoupeIsPickedAsItIs()
{
    QRandomGenerator random(11);
    QSignalSpy selected(m_pipette.get(), &Pipette::colorSelected);
    for (int i = 0; i < 60; ++i) {
        const QPoint first(300 + random.bounded(400), 300 + random.bounded(300));
        const QPoint way(random.bounded(loupeSize), -random.bounded(loupeSize));
        QVERIFY(RealInput::moveTo(m_pattern.get(), first));
        QVERIFY(start());
        QTRY_VERIFY(loupe());
        const QPoint inside(first + QPoint(loupeSize / 2, -loupeSize / 2));
        QTRY_VERIFY(RealInput::pixel(m_pattern.get(), inside) != patternAt(inside));
        selected.clear();
        QVERIFY(RealInput::click(m_pattern.get(), first + way));
        QTRY_COMPARE(selected.count(), 1);
        const auto picked = selected.first().first().value<QColor>();
        QCOMPARE(picked.name(), patternAt(first + way).name());
        QVERIFY(goBack());
    }
}

UIC_TEST_MAIN(tst_ScreenPipette)
#include "tst_ScreenPipette.moc"
