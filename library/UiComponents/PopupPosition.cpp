#include "PopupPosition.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <initializer_list>
#include <utility>

namespace {

// Between the field and the pop-up.
constexpr int gap = 6;

/// The first of @p corners from which a pop-up inside @p area leaves @p kept free; else the first.
QPoint firstBeside(const QRect& kept, const QSize& size, const QRect& area,
                   std::initializer_list<QPoint> corners)
{
    const auto inside = [&](const QPoint& corner) {
        const QPoint last(area.x() + area.width() - size.width(), area.y() + area.height() - size.height());
        return area.isEmpty() ? corner
                              : QPoint(qMax(area.x(), qMin(corner.x(), last.x())),
                                       qMax(area.y(), qMin(corner.y(), last.y())));
    };
    for (const QPoint& corner : corners) {
        if (!kept.intersects(QRect(inside(corner), size))) {
            return inside(corner);
        }
    }
    return inside(*corners.begin());
}

} // namespace

QPoint popupPosition(const QRect& field, const QSize& size, const QRect& area, Qt::LayoutDirection direction)
{
    int before = field.x() - gap - size.width();
    int after = field.x() + field.width() + gap;
    int level = field.x();
    if (direction == Qt::RightToLeft) {
        std::swap(before, after);
        level += field.width() - size.width();
    }
    return firstBeside(field.adjusted(-gap, -gap, gap, gap), size, area,
                       {{level, field.y() + field.height() + gap},
                        {level, field.y() - gap - size.height()},
                        {after, field.y()},
                        {before, field.y()}});
}

QPoint popupPosition(const QWidget* field, const QSize& size)
{
    const QRect place(field->mapToGlobal(QPoint()), field->size());
    return popupPosition(place, size, popupArea(*field), field->layoutDirection());
}

QPoint selectorPosition(const QRect& button, const QSize& size, int offset, const QRect& area)
{
    const int y = button.y() + button.height() - size.height();
    return firstBeside(button.adjusted(-offset, 0, offset, 0), size, area,
                       {{button.x() + button.width() + offset, y}, {button.x() - offset - size.width(), y}});
}

QRect popupArea(const QWidget& widget)
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
