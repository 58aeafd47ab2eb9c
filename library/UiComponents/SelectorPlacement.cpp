#include "SelectorPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

QPoint SelectorPlacement::besideButton(const QRect& button, const QSize& size, int offset, const QRect& area)
{
    QPoint wanted(button.x() + button.width() + offset, button.y() + button.height() - size.height());
    if (area.isEmpty()) {
        return wanted;
    }
    const QPoint last(area.x() + area.width() - size.width(), area.y() + area.height() - size.height());
    const int left = button.x() - offset - size.width();
    if (wanted.x() > last.x() && left >= area.x()) {
        wanted.setX(left);
    }
    return {qMax(area.x(), qMin(wanted.x(), last.x())), qMax(area.y(), qMin(wanted.y(), last.y()))};
}

QRect SelectorPlacement::areaFor(const QWidget& widget)
{
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        const QWidget* window = widget.window();
        while (window->windowType() == Qt::Popup && window->parentWidget()) {
            window = window->parentWidget()->window();
        }
        return window->geometry();
    }
    const QScreen* screen = QGuiApplication::screenAt(widget.mapToGlobal(widget.rect().center()));
    if (!screen) {
        screen = widget.screen();
    }
    return screen ? screen->availableGeometry() : QRect();
}
