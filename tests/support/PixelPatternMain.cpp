// The application of PixelPattern.h: pixel_pattern X Y WIDTH HEIGHT WINDOW. Says "shown" when it is.
#include "PixelPattern.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <algorithm>
#include <cstdio>

namespace {

class PatternWindow : public QWidget
{
protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const QPoint corner = mapToGlobal(QPoint(0, 0));
        QImage picture(size(), QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
            for (int x = 0; x < picture.width(); ++x) {
                line[x] = PixelPattern::colorAt(corner.x() + x, corner.y() + y);
            }
        }
        QPainter(this).drawImage(0, 0, picture);
    }

    void moveEvent(QMoveEvent* /*event*/) override { update(); }
};

bool isShown(QScreen* screen, const QPoint& point)
{
    const QPoint local = point - screen->geometry().topLeft();
    return screen->grabWindow(0, local.x(), local.y(), 1, 1).toImage().pixel(0, 0) ==
           PixelPattern::colorAt(point.x(), point.y());
}

/// Whether each screen that @p window covers shows the two ends of its part.
bool isOnTheScreens(const QWidget& window)
{
    const QRect place(window.mapToGlobal(QPoint(0, 0)), window.size());
    const auto screens = QGuiApplication::screens();
    return std::all_of(screens.cbegin(), screens.cend(), [place](QScreen* screen) {
        const QRect part = place & screen->geometry();
        return part.isEmpty() || (isShown(screen, part.topLeft()) && isShown(screen, part.bottomRight()));
    });
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 6) {
        std::fputs("pixel_pattern X Y WIDTH HEIGHT WINDOW\n", stderr);
        return 2;
    }
    const QRect place(arguments.at(1).toInt(), arguments.at(2).toInt(), arguments.at(3).toInt(),
                      arguments.at(4).toInt());
    const auto kind = static_cast<PixelPattern::Window>(arguments.at(5).toInt());

    PatternWindow window;
    window.setGeometry(place);
    if (kind != PixelPattern::Window::Backmost) {
        window.setWindowTitle(QStringLiteral("Pixel pattern"));
    }
    switch (kind) {
    case PixelPattern::Window::Backmost:
        window.setWindowFlags(Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint);
        window.show();
        window.lower();
        break;
    case PixelPattern::Window::FullScreen:
        window.showFullScreen();
        break;
    case PixelPattern::Window::Ordinary:
        window.show();
        break;
    }
    if (!QTest::qWaitForWindowExposed(&window) ||
        !QTest::qWaitFor([&window] { return isOnTheScreens(window); })) {
        std::fputs("pixel_pattern: something lies over the window\n", stderr);
        return 1;
    }
    std::puts("shown");
    std::fflush(stdout);
    return QApplication::exec();
}
