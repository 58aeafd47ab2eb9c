#pragma once

#include <QAbstractScrollArea>
#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QLabel>
#include <QMouseEvent>
#include <QPoint>
#include <QRect>
#include <QScreen>
#include <QWidget>

#include <cmath>

/**
 * What a pipette shows at the moment, for tests that know its public class only.
 */
namespace PipetteWindows {

constexpr int loupePixels = 13;

/// The windows with which it covers the screens.
inline QWidgetList views()
{
    QWidgetList found;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->inherits("PipetteScreenView") && window->isVisible()) {
            found.append(window);
        }
    }
    return found;
}

inline QWidget* viewOf(const QScreen* screen)
{
    const auto all = views();
    for (QWidget* view : all) {
        if (screen && view->geometry() == screen->geometry()) {
            return view;
        }
    }
    return nullptr;
}

/// The one in a window that is shown; null while none is seen. That of the last pick may be alive, too.
inline QWidget* loupe()
{
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        const QGraphicsProxyWidget* const proxy = widget->graphicsProxyWidget();
        if (!widget->inherits("LoupeWidget") || !proxy || !proxy->isVisible() || !proxy->scene()) {
            continue;
        }
        const auto shownIn = proxy->scene()->views();
        for (const QGraphicsView* view : shownIn) {
            if (view->isVisible()) {
                return widget;
            }
        }
    }
    return nullptr;
}

/// Where it stands on the desktop.
inline QRect loupePlace()
{
    const QWidget* const widget = loupe();
    return widget ? widget->graphicsProxyWidget()->sceneBoundingRect().toRect() : QRect();
}

inline QString colorName()
{
    const QWidget* const widget = loupe();
    return widget ? widget->findChild<QLabel*>(QStringLiteral("colorNameLabel"))->text() : QString();
}

/// Sends a mouse event to the window of @p screen; it has been handled when this returns.
inline void send(QEvent::Type type, const QScreen* screen, const QPoint& point, Qt::MouseButton button)
{
    QWidget* const viewport = qobject_cast<QAbstractScrollArea*>(viewOf(screen))->viewport();
    const QPoint local = viewport->mapFromGlobal(point);
    QMouseEvent event(type, local, local, point, button, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &event);
}

inline void move(const QScreen* screen, const QPoint& point)
{
    send(QEvent::MouseMove, screen, point, Qt::NoButton);
}

/// Lets the left button go.
inline void release(const QScreen* screen, const QPoint& point)
{
    send(QEvent::MouseButtonRelease, screen, point, Qt::LeftButton);
}

/// The colors that the loupe has for the device pixels around the cursor, as it would be painted now, without
/// those at its rim and below its label: these are transparent.
inline QImage magnified(const QScreen* screen)
{
    QWidget* const widget = loupe();
    const int pixels = qRound(loupePixels * screen->devicePixelRatio());
    QImage painted(widget->size() * 4, QImage::Format_ARGB32_Premultiplied);
    painted.setDevicePixelRatio(4);
    painted.fill(Qt::transparent);
    widget->render(&painted, QPoint(), QRegion(), QWidget::RenderFlags());
    painted.setDevicePixelRatio(1);
    QImage result(pixels, pixels, QImage::Format_ARGB32);
    result.fill(Qt::transparent);
    for (int y = 0; y < pixels; ++y) {
        for (int x = 0; x < pixels; ++x) {
            const double dx = (x + 0.5) / pixels;
            const double dy = (y + 0.5) / pixels;
            if (std::hypot(dx - 0.5, dy - 0.5) < 0.4) {
                result.setPixel(x, y, painted.pixel(int(dx * painted.width()), int(dy * painted.height())));
            }
        }
    }
    return result;
}

} // namespace PipetteWindows
