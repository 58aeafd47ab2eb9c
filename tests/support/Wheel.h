#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>

/// Turns the wheel by @p delta eighths of a degree over the middle of @p widget, and returns whether the
/// event was accepted.
inline bool turnWheel(QWidget& widget, int delta)
{
    const QPoint centre = widget.rect().center();
    QWheelEvent event(centre, widget.mapToGlobal(centre), QPoint(), QPoint(0, delta), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}
