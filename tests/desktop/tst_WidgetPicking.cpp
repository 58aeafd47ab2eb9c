#include "NativeScreens.h"
#include "PixelPattern.h"
#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWidget>

#include <functional>
#include <memory>

namespace {

/// Another colour in each pixel of the screen, whatever the scale.
class Target : public QWidget
{
public:
    using QWidget::QWidget;

    static QColor colorAt(const QPoint& devicePixel)
    {
        return {PixelPattern::colorAt(devicePixel.x(), devicePixel.y())};
    }

    /// The colour of the pixel that the widget's @p point is the top left of.
    QColor expected(const QPoint& point) const
    {
        return colorAt((QPointF(point) * devicePixelRatioF()).toPoint());
    }

    int presses = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const double scale = devicePixelRatioF();
        QImage picture(size() * scale, QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                picture.setPixelColor(x, y, colorAt(QPoint(x, y)));
            }
        }
        picture.setDevicePixelRatio(scale);
        QPainter(this).drawImage(0, 0, picture);
    }
    void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
};

/// The pixel of the X server that the widget's top left one is: Qt scales the size of a screen, and leaves
/// its corner where it is.
QPoint nativeCorner(const QWidget* widget)
{
    const QPoint corner = widget->mapToGlobal(QPoint(0, 0));
    const QPoint screenCorner = QGuiApplication::screenAt(corner)->geometry().topLeft();
    return screenCorner + (QPointF(corner - screenCorner) * widget->devicePixelRatioF()).toPoint();
}

} // namespace

/**
 * A user who picks colours from a widget, on each screen. The button is started with the mouse, and what
 * ends the pick is real input too.
 */
class tst_WidgetPicking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_target = new Target(m_window.get());
        m_target->setGeometry(20, 20, 160, 100);
        m_button = new WidgetColorPickerButton(m_window.get());
        m_button->setGeometry(200, 20, 40, 30);
        m_button->setTargetWidget(m_target);
        m_other = new QPushButton(m_window.get());
        m_other->setGeometry(200, 60, 40, 30);
        m_field = new ColorPickerButton(m_window.get());
        m_field->setGeometry(200, 100, 40, 30);
        auto* picker = new WidgetColorPicker({m_field});
        picker->setTarget(m_target);
        m_field->setPicker(picker);
        m_window->resize(260, 140);
        placeOn(QGuiApplication::primaryScreen());
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        QTRY_COMPARE(RealInput::pixel(m_target, QPoint(80, 50)), m_target->expected(QPoint(80, 50)));
    }

    void cleanup()
    {
        m_window.reset();
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void pixels_data()
    {
        QTest::addColumn<int>("screen");
        for (int i = 0; i < QGuiApplication::screens().size(); ++i) {
            QTest::addRow("screen %d", i) << i;
        }
    }

    void pixels()
    {
        QFETCH(int, screen);
        placeOn(QGuiApplication::screens().at(screen));
        QTRY_COMPARE(RealInput::pixel(m_target, QPoint(80, 50)), m_target->expected(QPoint(80, 50)));
        QCOMPARE(QGuiApplication::screenAt(m_target->mapToGlobal(QPoint(80, 50))),
                 QGuiApplication::screens().at(screen));

        QRandomGenerator random(20);
        const QPoint corner = nativeCorner(m_target);
        constexpr int picks = 100;
        for (int i = 0; i < picks; ++i) {
            QPoint point(random.bounded(m_target->width()), random.bounded(m_target->height()));
            // A third of them under the outline.
            if (i % 3 == 0) {
                const int depth = random.bounded(2);
                point.setX(i % 2 == 0 ? depth : m_target->width() - 1 - depth);
            } else if (i % 3 == 1) {
                const int depth = random.bounded(2);
                point.setY(i % 2 == 0 ? depth : m_target->height() - 1 - depth);
            }
            const QPoint pixel = (QPointF(point) * m_target->devicePixelRatioF()).toPoint();
            const QColor picked = pickAtNative(corner + pixel, false);
            QVERIFY2(picked == m_target->expected(point),
                     qPrintable(QStringLiteral("%1 at (%2, %3), not %4")
                                    .arg(picked.name())
                                    .arg(point.x())
                                    .arg(point.y())
                                    .arg(m_target->expected(point).name())));
        }
        QCOMPARE(m_target->presses, 0);
    }

    void pixelsBetweenPoints_data() { pixels_data(); }

    // Scaled, the mouse stands on pixels that no whole coordinate of Qt's is.
    void pixelsBetweenPoints()
    {
        QFETCH(int, screen);
        placeOn(QGuiApplication::screens().at(screen));
        QTRY_COMPARE(RealInput::pixel(m_target, QPoint(80, 50)), m_target->expected(QPoint(80, 50)));
        const QPoint corner = nativeCorner(m_target);
        for (int i = 0; i < 12; ++i) {
            const QPoint pixel(20 + i, 31 + (i * 5) % 7);
            QCOMPARE(pickAtNative(corner + pixel, i % 2 != 0), Target::colorAt(pixel));
        }
    }

    void pixelsAtTheEdges_data() { pixels_data(); }

    // The outermost pixels are half a point from the edge where a point has two: rounded, the last ones are
    // outside, and the neighbours of the first ones inside.
    void pixelsAtTheEdges()
    {
        QFETCH(const int, screen);
        placeOn(QGuiApplication::screens().at(screen));
        QTRY_COMPARE(RealInput::pixel(m_target, QPoint(80, 50)), m_target->expected(QPoint(80, 50)));
        const QPoint corner = nativeCorner(m_target);
        const QRect all(QPoint(0, 0), (QSizeF(m_target->size()) * m_target->devicePixelRatioF()).toSize());
        const QPoint inside[] = {all.topLeft(),    all.topRight(),    all.bottomLeft(), all.bottomRight(),
                                 {all.left(), 51}, {all.right(), 51}, {51, all.top()},  {51, all.bottom()}};
        for (const QPoint& pixel : inside) {
            QCOMPARE(pickAtNative(corner + pixel, false), Target::colorAt(pixel));
            QCOMPARE(m_target->presses, 0);
            QCOMPARE(pickAtNative(corner + pixel, true), Target::colorAt(pixel));
        }
        const QPoint outside[] = {
            {all.left() - 1, 51}, {all.right() + 1, 51}, {51, all.top() - 1}, {51, all.bottom() + 1}};
        for (const QPoint& pixel : outside) {
            QCOMPARE(pickAtNative(corner + pixel, false), QColor());
            // Qt rounds: for some of these presses the target is the receiver.
            QCOMPARE(m_target->presses, 0);
            QCOMPARE(pickAtNative(corner + pixel, true), QColor());
        }
    }

    void pixelsAtTheEdgesOfTheScreen_data() { pixels_data(); }

    // Rounded, the last pixel of a screen is on the next one, or on none.
    void pixelsAtTheEdgesOfTheScreen()
    {
        QFETCH(const int, screen);
        const QScreen* place = QGuiApplication::screens().at(screen);
        const QRect area = place->geometry();
        Target target;
        target.setWindowFlags(Qt::BypassWindowManagerHint);
        // To the last point, from one that is a whole pixel at every scale.
        const QPoint start((area.width() - 100) / 2 * 2, (area.height() - 60) / 2 * 2);
        target.setGeometry(QRect(area.topLeft() + start, area.bottomRight()));
        target.show();
        QVERIFY(QTest::qWaitForWindowExposed(&target));
        QTRY_COMPARE(RealInput::pixel(&target, QPoint(50, 30)), target.expected(QPoint(50, 30)));
        m_button->setTargetWidget(&target);

        const QPoint corner = nativeCorner(&target);
        // Where a screen is no whole number of points wide, Qt rounds that.
        const QPoint last = area.topLeft() +
                            QPoint(int(place->size().width() * place->devicePixelRatio()) - 1,
                                   int(place->size().height() * place->devicePixelRatio()) - 1) -
                            corner;
        for (const QPoint& pixel : {last, QPoint(last.x(), 20), QPoint(20, last.y())}) {
            QCOMPARE(pickAtNative(corner + pixel, false), Target::colorAt(pixel));
            QCOMPARE(target.presses, 0);
            QCOMPARE(pickAtNative(corner + pixel, true), Target::colorAt(pixel));
        }
        m_button->setTargetWidget(nullptr);
    }

    void windowBetweenPoints_data() { pixels_data(); }

    // A window manager places windows on any pixel.
    void windowBetweenPoints()
    {
        QFETCH(const int, screen);
        const QPoint start = QGuiApplication::screens().at(screen)->geometry().topLeft() + QPoint(300, 20);
        QWidget window;
        window.setWindowFlags(Qt::BypassWindowManagerHint);
        window.setGeometry(QRect(start, QSize(80, 60)));
        Target target(&window);
        target.setGeometry(10, 10, 60, 40);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        m_button->setTargetWidget(&target);
        const QPoint inWindow = nativeCorner(&target) - nativeCorner(&window);
        const QPoint before = nativeCorner(&window);
        for (int shift = 1; shift <= 3; ++shift) {
            const QPoint place = before + QPoint(shift, shift);
            QVERIFY(RealInput::xdotool(QStringLiteral("windowmove --sync %1 %2 %3")
                                           .arg(window.winId())
                                           .arg(place.x())
                                           .arg(place.y())));
            // Qt gets no event of the move: what the pickers remember of the last outline is to be over.
            QTest::qWait(1100);
            const QPoint corner = place + inWindow;
            QTRY_COMPARE(pickAtNative(corner + QPoint(41, 31), false), Target::colorAt(QPoint(41, 31)));
            const QRect all(QPoint(0, 0), (QSizeF(target.size()) * target.devicePixelRatioF()).toSize());
            for (const QPoint& pixel : {all.topLeft(), all.bottomRight()}) {
                QCOMPARE(pickAtNative(corner + pixel, false), Target::colorAt(pixel));
                QCOMPARE(pickAtNative(corner + pixel, true), Target::colorAt(pixel));
            }
            for (const QPoint& pixel : {all.topLeft() - QPoint(1, 1), all.bottomRight() + QPoint(1, 1)}) {
                QCOMPARE(pickAtNative(corner + pixel, false), QColor());
                QCOMPARE(pickAtNative(corner + pixel, true), QColor());
            }
            QCOMPARE(target.presses, 0);
        }
    }

    void quickScene_data()
    {
        QTest::addColumn<bool>("isTarget");
        QTest::addColumn<bool>("isWindow");
        QTest::newRow("is the target") << true << false;
        QTest::newRow("is the target and its window") << true << true;
        QTest::newRow("beside the target") << false << false;
    }

    // What lies over a scene is not painted away with it, and a window with one is painted once a frame only.
    void quickScene()
    {
        QFETCH(const bool, isTarget);
        QFETCH(const bool, isWindow);
        QWidget window;
        window.setGeometry(m_window->geometry().translated(0, 200));
        auto* scene = new QQuickWidget(isWindow ? nullptr : &window);
        const std::unique_ptr<QWidget> owned(isWindow ? scene : nullptr);
        scene->setResizeMode(QQuickWidget::SizeRootObjectToView);
        scene->setGeometry(isWindow ? window.geometry() : QRect(20, 20, 100, 100));
        QQmlComponent component(scene->engine());
        component.setData("import QtQuick 2.0\nRectangle { color: '#315f2b' }", QUrl());
        scene->setContent(QUrl(), &component, component.create());
        QCOMPARE(scene->status(), QQuickWidget::Ready);
        auto* beside = new Target(&window);
        beside->setGeometry(140, 20, 100, 100);
        QWidget* const target = isTarget ? static_cast<QWidget*>(scene) : beside;
        m_button->setTargetWidget(target);
        QVERIFY(RealInput::showAndActivate(isWindow ? scene : &window));

        const auto expected = [=](const QPoint& point) {
            return isTarget ? QColor(0x31, 0x5f, 0x2b) : beside->expected(point);
        };
        const QPoint last = target->rect().bottomRight();
        for (const QPoint& point : {QPoint(0, 0), QPoint(1, 50), QPoint(last.x() - 1, 50), QPoint(80, 1),
                                    QPoint(80, last.y() - 1), last, QPoint(80, 50), QPoint(50, 1)}) {
            QTRY_COMPARE(RealInput::pixel(target, point), expected(point));
            QCOMPARE(pickWith([&] { QVERIFY(RealInput::click(target, point)); }), expected(point));
        }
    }

    void outlineIsOnlyThereWhilePicking()
    {
        const QPoint edge(50, 1);
        const QColor outline = QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight);
        m_target->setCursor(Qt::IBeamCursor);
        QVERIFY(clickWith([&] {
            QTRY_COMPARE(RealInput::pixel(m_target, edge), outline);
            QCOMPARE(m_target->cursor().shape(), Qt::CrossCursor);
            QVERIFY(RealInput::saveScreenshot(QStringLiteral("widget-picking")));
            QVERIFY(clickInTarget(edge));
        }));
        QCOMPARE(m_button->color(), m_target->expected(edge));
        QCOMPARE(RealInput::pixel(m_target, edge), m_target->expected(edge));
        QCOMPARE(m_target->cursor().shape(), Qt::IBeamCursor);
    }

    void clickElsewhereReachesWhatIsThere()
    {
        QSignalSpy finished(m_button.data(), &WidgetColorPickerButton::pickingFinished);
        QVERIFY(clickWith([this] { QVERIFY(RealInput::click(m_window.get(), QPoint(190, 10))); }));
        QCOMPARE(finished.size(), 1);
        QVERIFY(!m_button->color().isValid());
        // The mouse is the target's own again.
        QVERIFY(clickInTarget(QPoint(80, 50)));
        QTRY_COMPARE(m_target->presses, 1);
    }

    void clickOnTheButtonEndsThePick()
    {
        QSignalSpy started(m_button.data(), &WidgetColorPickerButton::pickingStarted);
        QSignalSpy finished(m_button.data(), &WidgetColorPickerButton::pickingFinished);
        QSignalSpy clicked(m_button.data(), &QAbstractButton::clicked);
        QVERIFY(clickWith([this] { QVERIFY(RealInput::click(m_button)); }));
        QCOMPARE(finished.size(), 1);
        QVERIFY(!m_button->isDown());

        // What follows the press has been handled when the other button hears of its own click.
        QSignalSpy otherClicked(m_other, &QAbstractButton::clicked);
        QVERIFY(RealInput::click(m_other));
        QTRY_COMPARE(otherClicked.size(), 1);
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(started.size(), 1);
        QVERIFY(!m_button->isPickingInProgress());
    }

    // The second press comes as a double click too: a button takes it for a press, and hears of no release.
    void doubleClickOnTheButton()
    {
        QSignalSpy started(m_button.data(), &WidgetColorPickerButton::pickingStarted);
        QSignalSpy finished(m_button.data(), &WidgetColorPickerButton::pickingFinished);
        QVERIFY(RealInput::moveTo(m_button, m_button->rect().center()));
        QVERIFY(RealInput::xdotool(QStringLiteral("click --repeat 2 --delay 30 1")));
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(!m_button->isDown());
        QSignalSpy otherClicked(m_other, &QAbstractButton::clicked);
        QVERIFY(RealInput::click(m_other));
        QTRY_COMPARE(otherClicked.size(), 1);
        QCOMPARE(started.size(), 1);
        QVERIFY(!m_button->isPickingInProgress());
        QVERIFY(!m_button->isDown());
    }

    void keys_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("isOverTarget");
        for (const char* key : {"Escape", "space", "Return", "Shift_L", "a"}) {
            QTest::addRow("%s over the target", key) << QString::fromLatin1(key) << true;
            QTest::addRow("%s elsewhere", key) << QString::fromLatin1(key) << false;
        }
    }

    void keys()
    {
        QFETCH(QString, key);
        QFETCH(bool, isOverTarget);
        const QPoint point(33, 44);
        m_button->setFocus();
        QSignalSpy started(m_button.data(), &WidgetColorPickerButton::pickingStarted);
        QSignalSpy finished(m_button.data(), &WidgetColorPickerButton::pickingFinished);
        QVERIFY(clickWith([&] {
            QVERIFY(isOverTarget ? RealInput::moveTo(m_target, point)
                                 : RealInput::moveTo(m_window.get(), QPoint(190, 10)));
            QVERIFY(m_button->isPickingInProgress());
            QVERIFY(RealInput::key(key));
        }));
        QCOMPARE(finished.size(), 1);
        QCOMPARE(m_button->color(), isOverTarget ? m_target->expected(point) : QColor());

        QSignalSpy otherClicked(m_other, &QAbstractButton::clicked);
        QVERIFY(RealInput::click(m_other));
        QTRY_COMPARE(otherClicked.size(), 1);
        QCOMPARE(started.size(), 1);
        QVERIFY(!m_button->isDown());
    }

    void spaceAloneDrivesIt()
    {
        const QPoint point(33, 44);
        m_button->setFocus();
        QVERIFY(RealInput::moveTo(m_target, point));
        QSignalSpy started(m_button.data(), &WidgetColorPickerButton::pickingStarted);
        QSignalSpy finished(m_button.data(), &WidgetColorPickerButton::pickingFinished);
        for (int pick = 1; pick <= 3; ++pick) {
            m_button->setColor(QColor());
            connect(m_button, &WidgetColorPickerButton::pickingStarted, m_target, [this] {
                m_button->disconnect(m_target);
                QTimer::singleShot(0, this, [] { QVERIFY(RealInput::key(QStringLiteral("space"))); });
            });
            QVERIFY(RealInput::key(QStringLiteral("space")));
            QTRY_COMPARE(finished.size(), pick);
            QCOMPARE(m_button->color(), m_target->expected(point));
            QCOMPARE(started.size(), pick);
        }
    }

    void colorButton()
    {
        const QPoint point(1, 60);
        QVERIFY(clickWith(
            [&] {
                QVERIFY(m_field->isDown());
                QVERIFY(clickInTarget(point));
            },
            m_field));
        QCOMPARE(m_field->color(), std::optional<QColor>(m_target->expected(point)));
        QVERIFY(!m_field->isDown());
        const QWidget* face = m_field->findChild<QWidget*>(QStringLiteral("color"));
        QTRY_COMPARE(RealInput::pixel(face, face->rect().center()), m_target->expected(point));

        // Without a colour it stays pressed, and the next pick releases it.
        QVERIFY(clickWith([&] { QVERIFY(RealInput::click(m_field)); }, m_field));
        QVERIFY(m_field->isDown());
        QVERIFY(clickWith([&] { QVERIFY(clickInTarget(point)); }, m_field));
        QVERIFY(!m_field->isDown());
    }

    // The last test, for a failure leaves a screen out.
    void screensChangeWhilePicking()
    {
        const auto screens = QGuiApplication::screens();
        const int count = screens.size();
        QVERIFY(count > 1);
        QScreen* screen = screens.last();
        placeOn(screen);
        const QPoint point(33, 44);
        QTRY_COMPARE(RealInput::pixel(m_target, point), m_target->expected(point));
        const QString output = screen->name();
        const QPoint corner = screen->geometry().topLeft();
        const auto xrandr = [&output](const QStringList& arguments) {
            return NativeScreens::xrandr(QStringList({QStringLiteral("--output"), output}) + arguments);
        };
        const auto pickOnThePrimary = [&] {
            QVERIFY(m_button->isPickingInProgress());
            placeOn(QGuiApplication::primaryScreen());
            QTRY_COMPARE(RealInput::pixel(m_target, point), m_target->expected(point));
            QVERIFY(clickInTarget(point));
        };
        const int nativeWidth = int(screen->size().width() * screen->devicePixelRatio());
        const int nativeHeight = int(screen->size().height() * screen->devicePixelRatio());

        QVERIFY(clickWith([&] {
            QVERIFY(xrandr({QStringLiteral("--off")}));
            QTRY_COMPARE(QGuiApplication::screens().size(), count - 1);
            pickOnThePrimary();
        }));
        QCOMPARE(m_button->color(), m_target->expected(point));

        m_button->setColor(QColor());
        QVERIFY(clickWith([&] {
            QVERIFY(
                xrandr({QStringLiteral("--mode"), QStringLiteral("%1x%2").arg(nativeWidth).arg(nativeHeight),
                        QStringLiteral("--pos"), QStringLiteral("%1x%2").arg(corner.x()).arg(corner.y())}));
            QTRY_COMPARE(QGuiApplication::screens().size(), count);
            pickOnThePrimary();
        }));
        QCOMPARE(m_button->color(), m_target->expected(point));
        QVERIFY(!m_target->findChild<QWidget*>(QStringLiteral("highlightFrame")));
        QCOMPARE(m_target->cursor().shape(), Qt::ArrowCursor);
    }

private:
    /// At a place where points are whole pixels at every scale.
    void placeOn(QScreen* screen)
    {
        m_window->setGeometry(QRect(screen->geometry().topLeft() + QPoint(20, 60), m_window->size()));
    }

    /// Clicks @p start, or the button, and calls @p inside as soon as the pick runs. True when it has ended.
    bool clickWith(const std::function<void()>& inside, const QWidget* start = nullptr)
    {
        bool hasBegun = false;
        QTimer begin;
        connect(&begin, &QTimer::timeout, this, [&] {
            if (m_target->findChild<QWidget*>(QStringLiteral("highlightFrame"))) {
                begin.stop();
                hasBegun = true;
                inside();
            }
        });
        begin.start(1);
        // Comes back to this loop when the pick, which runs in one inside, is over.
        return RealInput::click(start ? start : m_button.data()) &&
               QTest::qWaitFor([&hasBegun] { return hasBegun; });
    }

    /// What the button picks, started without the mouse, when @p act ends that.
    QColor pickWith(const std::function<void()>& act)
    {
        m_button->setColor(QColor());
        QTimer::singleShot(0, this, act);
        QTimer rescue;
        bool isRescued = false;
        connect(&rescue, &QTimer::timeout, this, [this, &isRescued] {
            isRescued = true;
            m_button->stopPicking();
        });
        rescue.start(10000);
        m_button->startPicking();
        return isRescued ? QColor(Qt::transparent) : m_button->color();
    }

    /// What the button picks where the mouse is moved to and clicked, or a key is pressed there.
    QColor pickAtNative(const QPoint& place, bool isByKey)
    {
        return pickWith([isByKey, place] {
            const auto end = isByKey ? QStringLiteral("key Escape") : QStringLiteral("click --delay 0 1");
            QVERIFY(RealInput::xdotool(
                QStringLiteral("mousemove %1 %2 %3").arg(place.x()).arg(place.y()).arg(end)));
        });
    }

    bool clickInTarget(const QPoint& point) const { return RealInput::click(m_target, point); }

    std::unique_ptr<QWidget> m_window;
    Target* m_target = nullptr;
    QPushButton* m_other = nullptr;
    ColorPickerButton* m_field = nullptr;
    QPointer<WidgetColorPickerButton> m_button;
};

UIC_TEST_MAIN(tst_WidgetPicking)
#include "tst_WidgetPicking.moc"
