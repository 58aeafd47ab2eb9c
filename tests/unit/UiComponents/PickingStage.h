#pragma once

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <functional>

/// A widget with another colour in each pixel, which counts what it is told.
class PatternWidget : public QWidget
{
public:
    using QWidget::QWidget;

    static QRgb colorAt(const QPoint& point)
    {
        return qRgb(point.x() + 1, point.y() + 1, (point.x() * 7 + point.y() * 13) % 256);
    }

    /// Paints this instead of the pattern.
    QColor flat;
    int presses = 0;
    int doubleClicks = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QImage picture(size(), QImage::Format_RGB32);
        for (int y = 0; y < height(); ++y) {
            for (int x = 0; x < width(); ++x) {
                picture.setPixel(x, y, flat.isValid() ? flat.rgb() : colorAt(QPoint(x, y)));
            }
        }
        QPainter(this).drawImage(0, 0, picture);
    }
    void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
    void mouseDoubleClickEvent(QMouseEvent* /*event*/) override { ++doubleClicks; }
};

/**
 * A window with something to pick from. The whole of it may be deleted.
 *
 * Input goes to the window, as the window system's does; the mouse's place is set apart from it.
 */
struct PickingStage
{
    PickingStage()
        : window(new QWidget)
        , target(new PatternWidget(window))
        , button(new QPushButton(window))
        , other(new QPushButton(window))
    {
        window->setGeometry(100, 100, 240, 120);
        target->setGeometry(10, 10, 100, 80);
        button->setGeometry(120, 10, 60, 30);
        other->setGeometry(120, 60, 60, 30);
        other->setFocus();
    }
    ~PickingStage() { delete window; }
    PickingStage(const PickingStage&) = delete;
    PickingStage& operator=(const PickingStage&) = delete;

    bool show() const
    {
        window->show();
        QApplication::setActiveWindow(window);
        return QTest::qWaitForWindowExposed(window) && QTest::qWaitFor([this] { return other->hasFocus(); });
    }

    static void moveCursor(const QWidget* widget, const QPoint& point)
    {
        QCursor::setPos(widget->mapToGlobal(point));
    }
    static void moveCursor(const QWidget* widget) { moveCursor(widget, widget->rect().center()); }

    /// Where the cursor is.
    void press(Qt::MouseButton mouseButton = Qt::LeftButton) const
    {
        QTest::mousePress(window->windowHandle(), mouseButton, {}, window->mapFromGlobal(QCursor::pos()));
    }
    void release(Qt::MouseButton mouseButton = Qt::LeftButton) const
    {
        QTest::mouseRelease(window->windowHandle(), mouseButton, {}, window->mapFromGlobal(QCursor::pos()));
    }

    /// Moves the cursor to the middle of @p widget and presses there.
    void pressOn(const QWidget* widget) const
    {
        moveCursor(widget);
        press();
    }

    QWidget* outline() const
    {
        return target ? target->findChild<QWidget*>(QStringLiteral("highlightFrame")) : nullptr;
    }

    QPointer<QWidget> window;
    QPointer<PatternWidget> target;
    QPointer<QPushButton> button;
    QPointer<QPushButton> other;
};

/// Calls @p blocking, which returns when @p inside has ended it: called in the loop that it runs. Ends it
/// with @p rescue and returns false when that did not work.
inline bool runWith(const std::function<void()>& blocking, const std::function<void()>& inside,
                    const std::function<void()>& rescue)
{
    bool isRescued = false;
    QTimer::singleShot(0, qApp, inside);
    QTimer watchdog;
    QObject::connect(&watchdog, &QTimer::timeout, qApp, [&] {
        isRescued = true;
        rescue();
    });
    watchdog.start(10000);
    blocking();
    return !isRescued;
}
