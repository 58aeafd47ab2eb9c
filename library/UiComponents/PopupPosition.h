// Internal: where PopupColorPicker and ColorPickerWidget open their pop-ups. All in global coordinates.

#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

/// The top-left corner of a pop-up of @p size below @p field and level with its leading edge; or, where that
/// would cover the field, above it or at one of its sides. It is moved into @p area, whose top left corner it
/// takes if it is larger. An empty area sets no limits.
QPoint popupPosition(const QRect& field, const QSize& size, const QRect& area, Qt::LayoutDirection direction);

/// The same for the widget @p field and its popupArea().
QPoint popupPosition(const QWidget* field, const QSize& size);

/// The same for a pop-up that is @p offset pixels to the right of @p button and has the same bottom edge, or
/// is at its left.
QPoint selectorPosition(const QRect& button, const QSize& size, int offset, const QRect& area);

/// Where a pop-up of @p widget may be: on its screen, or, on Wayland, where a program does not know the
/// screen around its windows, in the window below all pop-ups.
QRect popupArea(const QWidget& widget);
